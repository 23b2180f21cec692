// Runs the rendered module with the loop's work on every frame (grab, brightness, frame selection) as fast as possible.
// Prints the frame rate while the hand moves, when it has just come to rest (new frames are made then) and while it
// rests, the total processor time of a frame, and the time spent waiting for keyframes.
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
#include <string_view>
#include <unordered_map>
#include <vector>

namespace {

using namespace fieldcal;
using Clock = std::chrono::steady_clock;

constexpr double kMaxFrameMs = 150;  // longer than any frame takes that needs no new keyframe

void discard(QtMsgType, const QMessageLogContext&, const QString&) {}

double millisecondsSince(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

/// Processor time of all threads.
double processorMilliseconds() {
    return 1000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

struct Frame {
    std::size_t infrared = 0;  ///< a hash of its image
    double ms = 0, processorMs = 0;
};

void print(const char* what, std::vector<Frame> frames) {
    if (frames.empty()) return;
    std::sort(frames.begin(), frames.end(), [](const Frame& a, const Frame& b) { return a.ms < b.ms; });
    double sum = 0, processorSum = 0;
    for (const Frame& frame : frames) {
        sum += frame.ms;
        processorSum += frame.processorMs;
    }
    const auto count = static_cast<double>(frames.size());
    std::printf("%-22s %5zu frames  median %7.2f ms  90 %% %7.2f ms  processors %7.2f ms  %6.1f frames a second\n",
                what, frames.size(), frames[frames.size() / 2].ms, frames[frames.size() * 9 / 10].ms,
                processorSum / count, 1000 * count / sum);
}

std::size_t hashOf(const ImageFrame16& frame) {
    return std::hash<std::string_view>()({reinterpret_cast<const char*>(frame.pixels()), frame.byteCount()});
}

/// Prints frames by kind: whether a frame waited for a keyframe, otherwise how often its image occurred. Because of
/// noise, every image of a moving hand is unique, and those of a resting hand are repeated.
void printByKind(const std::vector<Frame>& all) {
    std::unordered_map<std::size_t, int> shown, shownBefore;
    for (const Frame& frame : all)
        ++shown[frame.infrared];
    std::vector<Frame> moving, comingToRest, resting, waiting;
    for (const Frame& frame : all) {
        const bool first = shownBefore[frame.infrared]++ == 0;
        if (frame.ms > kMaxFrameMs) {
            waiting.push_back(frame);
        } else if (shown[frame.infrared] == 1) {
            moving.push_back(frame);
        } else {
            (first ? comingToRest : resting).push_back(frame);
        }
    }
    print("moving", moving);
    print("coming to rest", comingToRest);
    print("resting, from memory", resting);
    print("waiting for a view", waiting);
}

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

    std::vector<Frame> all;
    const FrameRecords& records = sensor.frames();
    for (int i = 0; i < frames; ++i) {
        const auto start = Clock::now();
        const double processorsBefore = processorMilliseconds();
        if (!sensor.grab(true)) fatalFailure("grab failed", 1);
        const ImageFrame32& colour = records.colour[platform ? ColourCamera::Platform : ColourCamera::Third];
        if (records.leftInfrared.empty() || colour.empty()) continue;  // the first keyframe is not rendered yet
        std::uint16_t brightness = 0;
        engine.measureInfraredBrightness(records.leftInfrared, &brightness);
        engine.inputFramesAndCheckMovement(records.leftInfrared, colour);
        const double ms = millisecondsSince(start);
        const double processorMs = processorMilliseconds() - processorsBefore;
        all.push_back({hashOf(records.leftInfrared), ms, processorMs});
    }
    printByKind(all);
    return 0;
}
