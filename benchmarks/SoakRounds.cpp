// Opens, calibrates, saves and closes again and again in one process, and prints what the process holds every ten
// rounds, as CSV. The module is the simulated one; everything above it is the application's own, without its interface:
//
//   soak-rounds RECORDING FOLDER ROUNDS      FOLDER: for the data of the program; it is created
//
// A round loads the camera library, opens the module and the rear camera, matches stills until a rotation is found (in
// turn of the camera inside the module and of the rear camera), refines, saves (backup, note, flash, reading back,
// comparing fresh images, report and history), and closes everything. The flash is new in each round, so that each save
// writes. The recording needs the rear camera.
#include "devices/Sensor.h"
#include "diagnostics/Logger.h"
#include "engine/Stopwatch.h"
#include "workflow/ProcessingThread.h"

#include <QCoreApplication>
#include <QDir>

#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <malloc.h>
#include <mutex>
#include <string>

namespace fieldcal {
namespace {

constexpr int kRoundsPerSample = 10;
constexpr std::chrono::seconds kPatience{300};

void discard(QtMsgType, const QMessageLogContext&, const QString&) {}

/// Waits for states that the workflow reports.
class Watch : public WorkflowListener {
public:
    /// Returns false after a fault.
    bool waitFor(State state) {
        std::unique_lock lock(mutex_);
        return changed_.wait_for(lock, kPatience, [&] { return state_ == state || failed_; }) && !failed_;
    }
    void stateChanged(State state) override { note(state, false); }
    void refining(State state) override { note(state, false); }
    void deviceError(const QString& text) override {
        std::fprintf(stderr, "soak-rounds: %s\n", qUtf8Printable(text));
        note(State::FirstOpened, true);
    }
    void missingModule() override { note(State::FirstOpened, true); }
    void missingPlatformCamera() override { note(State::FirstOpened, true); }

private:
    void note(State state, bool failed) {
        const std::lock_guard lock(mutex_);
        state_ = state;
        failed_ = failed_ || failed;
        changed_.notify_all();
    }

    std::mutex mutex_;
    std::condition_variable changed_;
    State state_ = State::FirstOpened;
    bool failed_ = false;
};

/// Returns false when the calibration was not stored.
bool makeRound(ColourCamera camera, const QString& data) {
    const auto makeSensor = [&] {
        SensorEnvironment environment = systemEnvironment();
        environment.power = nullptr;  // measured on any computer
        environment.dataFolder = data;
        return std::make_unique<Sensor>(environment);
    };
    Watch watch;
    Workflow workflow(watch, {makeSensor, data});
    ProcessingThread thread(workflow);
    if (!watch.waitFor(State::ShowingIntroduction)) return false;
    if (camera == ColourCamera::Platform) workflow.switchCamera(camera);
    workflow.requestState(State::StartingCalibration);
    if (camera == ColourCamera::Third) {
        if (!watch.waitFor(State::RefiningTutorial)) return false;
        workflow.requestState(State::RefiningCalibration);
    }
    if (!watch.waitFor(State::RefiningCalibration)) return false;
    thread.stop(Stop::ToSave);
    return workflow.save(Storing::WithRefinement).stored;
}

/// Returns the number in a line of the process's status.
long statusOf(const std::string& name) {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.compare(0, name.size() + 1, name + ':') == 0) return std::stol(line.substr(name.size() + 1));
    return 0;
}

void printSample(int round, double seconds) {
    const std::filesystem::directory_iterator descriptors("/proc/self/fd");
    std::printf("%d,%.1f,%ld,%zu,%ld,%ld\n", round, seconds, statusOf("VmRSS"), mallinfo2().uordblks / 1024,
                statusOf("Threads"), static_cast<long>(std::distance(begin(descriptors), end(descriptors))));
    std::fflush(stdout);
}

int run(const QString& recording, const QDir& folder, int rounds) {
    const QString flash = folder.filePath("flash"), data = folder.filePath("data");
    qputenv("KXSIM_SESSION", recording.toLocal8Bit());
    qputenv("KXSIM_SPEED", "0");
    qputenv("KXSIM_FLASH", flash.toLocal8Bit());
    std::printf("round,seconds,resident_kb,allocated_kb,threads,descriptors\n");
    vq::Stopwatch watch;
    double seconds = 0;
    for (int round = 0; round <= rounds; ++round) {
        if (round % kRoundsPerSample == 0) {
            seconds += watch.lap();
            printSample(round, seconds);
            QDir(data + "/reports").removeRecursively();  // they would fill the disk
        }
        if (round == rounds) break;
        QFile::remove(flash);
        if (!makeRound(round % 2 == 0 ? ColourCamera::Third : ColourCamera::Platform, data)) {
            std::fprintf(stderr, "soak-rounds: round %d was not stored\n", round);
            return 1;
        }
    }
    return 0;
}

}  // namespace
}  // namespace fieldcal

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 4) {
        std::fprintf(stderr, "usage: soak-rounds RECORDING FOLDER ROUNDS\n");
        return 2;
    }
    fieldcal::setLogLevel(-1);
    qInstallMessageHandler(fieldcal::discard);
    QDir().mkpath(arguments[2]);
    return fieldcal::run(arguments[1], QDir(arguments[2]), arguments[3].toInt());
}
