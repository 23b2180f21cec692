// Benchmarks of one live frame without an accepted pair: grab, brightness and frame selection together, and the last
// two separately.

#include "benchmarks/BenchmarkData.h"
#include "devices/CameraParameterReader.h"
#include "devices/Sensor.h"
#include "diagnostics/Assertions.h"
#include "engine/CalibratorInterface.h"

#include <QtGlobal>
#include <benchmark/benchmark.h>

namespace {

using namespace fieldcal;

void discard(QtMsgType, const QMessageLogContext&, const QString&) {}

struct Live {
    Sensor sensor;
    CameraParameters parameters;
    vq::RegistrationContext context;
    vq::CalibratorInterface engine{context, parameters};

    explicit Live(const std::string& folder, bool platformCamera) {
        qputenv("KXSIM_SESSION", QByteArray::fromStdString(folder));
        qputenv("KXSIM_SPEED", "0");
        SensorSettings settings = applicationSettings();
        settings.usePlatformCamera = platformCamera;
        if (!sensor.open(settings) || !readCameraParameters(sensor, &parameters, [] {})) {
            fatalFailure("the recording cannot be played", 1);
        }
        engine.setCameraParameters(platformCamera);
        engine.setup();
    }
};

void liveFrame(benchmark::State& state, std::size_t recording, bool platformCamera) {
    Live live(recordingFolders().at(recording), platformCamera);
    std::uint16_t brightness = 0;
    const FrameRecords& frames = live.sensor.frames();
    for (auto _ : state) {
        live.sensor.grab(true);
        live.engine.measureInfraredBrightness(frames.leftInfrared, &brightness);
        live.engine.inputDistanceFrames(frames.rightInfrared, frames.depth);
        live.engine.inputFramesAndCheckMovement(
            frames.leftInfrared, frames.colour[platformCamera ? ColourCamera::Platform : ColourCamera::Third]);
    }
}

void grabOnly(benchmark::State& state) {
    Live live(recordingFolders().front(), false);
    for (auto _ : state)
        live.sensor.grab(true);
}

void brightnessOnly(benchmark::State& state) {
    Live live(recordingFolders().front(), false);
    live.sensor.grab(true);
    std::uint16_t brightness = 0;
    for (auto _ : state) {
        live.engine.measureInfraredBrightness(live.sensor.frames().leftInfrared, &brightness);
        benchmark::DoNotOptimize(brightness);
    }
}

}  // namespace

int main(int argc, char** argv) {
    setLogLevel(-1);
    qInstallMessageHandler(discard);
    benchmark::RegisterBenchmark("liveFrame/third", liveFrame, 0, false)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("liveFrame/platform", liveFrame, 1, true)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("grab/third", grabOnly)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("brightness", brightnessOnly)->Unit(benchmark::kMillisecond);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
