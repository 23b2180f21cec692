// Benchmarks of the parts of one estimation round, on the verified matches of a recording.

#include "benchmarks/BenchmarkData.h"
#include "diagnostics/Logger.h"
#include "engine/MatchGrid.h"
#include "engine/RegistrationContext.h"
#include "engine/Rotation.h"
#include "engine/RotationConsensus.h"
#include "engine/RotationFit.h"
#include "engine/SensorCalibrator.h"

#include <benchmark/benchmark.h>

#include <cstdlib>

namespace {

using namespace fieldcal;

struct Round {
    std::vector<cv::Point2f> infraredPoints, colourPoints;
    std::vector<vq::Sample> samples;
    Eigen::Vector3d initialRad;
    vq::CameraPair cameras;
};

const Round& round() {
    static const Round drawn = [] {
        const BenchmarkData data = loadRecording(recordingFolders().front());
        vq::RegistrationContext context;
        context.infraredModel = data.cameras.infrared;
        context.colourModel = data.cameras.colour;
        context.colourScaling = data.cameras.colourScaling;
        context.state->setExtrinsics(vq::poseFromExtrinsics(data.parameters.colour[ColourCamera::Third].fromDepth));
        vq::SensorCalibrator calibrator(context, {});
        calibrator.setup();
        std::srand(1);
        for (std::size_t i = 3; i < 6; ++i) {
            calibrator.prepare({data.infrared[i], data.colour[i], {}, {}});
            calibrator.generateMatches();
        }
        Round result;
        calibrator.grid().sample(7, &result.infraredPoints, &result.colourPoints);
        result.samples = vq::drawSamples(static_cast<int>(result.infraredPoints.size()));
        result.initialRad = vq::anglesFromRotation(data.factory);
        result.cameras = data.cameras;
        return result;
    }();
    return drawn;
}

void consensus(benchmark::State& state) {
    const vq::RotationCost cost(round().infraredPoints, round().colourPoints, round().cameras);
    for (auto _ : state) {
        benchmark::DoNotOptimize(vq::findConsensus(cost, round().infraredPoints, round().samples, round().initialRad));
    }
}

void refinement(benchmark::State& state) {
    const vq::RotationCost cost(round().infraredPoints, round().colourPoints, round().cameras);
    for (auto _ : state) {
        Eigen::Vector3d anglesRad;
        benchmark::DoNotOptimize(vq::fitRotationLM(cost, round().initialRad, &anglesRad));
    }
}

}  // namespace

BENCHMARK(consensus)->Unit(benchmark::kMillisecond);
BENCHMARK(refinement)->Unit(benchmark::kMicrosecond);

int main(int argc, char** argv) {
    fieldcal::setLogLevel(-1);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
