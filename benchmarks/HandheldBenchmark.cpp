// The rendered module with the loop's work on every frame (grab, brightness, frame selection), as fast as it can: how
// many frames a second while the hand moves and while it rests, what a frame costs all processors together, and how
// long it waits for views.
//
//   HandheldBenchmark [third|platform] [FRAMES]        (KXSIM_WORLD, KXSIM_SEED as usual)

#include "devices/CameraParameterReader.h"
#include "devices/Sensor.h"
#include "diagnostics/Assertions.h"
#include "engine/CalibratorInterface.h"

#include <QtGlobal>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <deque>
#include <string_view>
#include <vector>

namespace {

using namespace fieldcal;
using Clock = std::chrono::steady_clock;

constexpr double waitMs = 150;  // more than any frame takes that needs no new view

void discard(QtMsgType, const QMessageLogContext&, const QString&) {}

double millisecondsSince(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

/// Of all threads.
double processorMilliseconds() {
    return 1000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

struct Cost {
    std::vector<double> ms;
    double processorMs = 0;
    void add(double oneMs, double oneProcessorMs) {
        ms.push_back(oneMs);
        processorMs += oneProcessorMs;
    }
};

void print(const char* what, Cost cost) {
    std::vector<double>& ms = cost.ms;
    if (ms.empty()) return;
    std::sort(ms.begin(), ms.end());
    double sum = 0;
    for (double one : ms)
        sum += one;
    const auto count = static_cast<double>(ms.size());
    std::printf("%-22s %5zu frames  median %7.2f ms  90 %% %7.2f ms  processors %7.2f ms  %6.1f frames a second\n",
                what, ms.size(), ms[ms.size() / 2], ms[ms.size() * 9 / 10], cost.processorMs / count,
                1000 * count / sum);
}

/// Whether the picture is one of the last ones again.
class Memory {
public:
    bool knows(const ImageFrame16& frame) {
        const auto bytes = std::string_view(reinterpret_cast<const char*>(frame.pixels()), frame.byteCount());
        const std::size_t hash = std::hash<std::string_view>()(bytes);
        const bool known = std::find(last_.begin(), last_.end(), hash) != last_.end();
        last_.push_back(hash);
        if (last_.size() > 12) last_.pop_front();
        return known;
    }

private:
    std::deque<std::size_t> last_;
};

}  // namespace

int main(int argc, char** argv) {
    setLogLevel(-1);
    qInstallMessageHandler(discard);
    qputenv("KXSIM_SPEED", "0");
    const bool platform = argc > 1 && std::string_view(argv[1]) == "platform";
    const int frames = argc > 2 ? std::atoi(argv[2]) : 600;

    Sensor sensor;
    CameraParameters parameters;
    SensorSettings settings = applicationSettings();
    settings.usePlatformCamera = platform;
    if (!sensor.open(settings) || !readCameraParameters(sensor, &parameters, [] {}))
        fatalFailure("the module does not open", 1);
    vq::RegistrationContext context;
    vq::CalibratorInterface engine(context, parameters);
    engine.setCameraParameters(platform);
    engine.setup();

    Cost resting, moving, waiting;
    Memory memory;
    const FrameRecords& records = sensor.frames();
    for (int i = 0; i < frames; ++i) {
        const auto start = Clock::now();
        const double processorsBefore = processorMilliseconds();
        if (!sensor.grab(true)) fatalFailure("grab failed", 1);
        const ImageFrame32& colour = platform ? records.outOfModuleColour : records.inModuleColour;
        if (records.leftInfrared.empty() || colour.empty()) continue;  // the very first view is not there yet
        std::uint16_t brightness = 0;
        engine.measureInfraredBrightness(records.leftInfrared, &brightness);
        engine.inputFramesAndCheckMovement(records.leftInfrared, colour);
        const double ms = millisecondsSince(start);
        const double processorMs = processorMilliseconds() - processorsBefore;
        const bool known = memory.knows(records.leftInfrared);
        (ms > waitMs ? waiting : known ? resting : moving).add(ms, processorMs);
    }
    print("resting, from memory", resting);
    print("new pictures (moving)", moving);
    print("waiting for a view", waiting);
    return 0;
}
