// One accepted pair, picture to answer, beside the OpenCV corner calls that it cannot do without.

#include "benchmarks/BenchmarkData.h"
#include "diagnostics/Logger.h"
#include "engine/GreyConversion.h"
#include "engine/InfraredConversion.h"
#include "engine/RegistrationContext.h"
#include "engine/SensorCalibrator.h"

#include <benchmark/benchmark.h>
#include <opencv2/features2d.hpp>
#include <opencv2/imgproc.hpp>

#include <cstdlib>

namespace {

using namespace fieldcal;

const BenchmarkData& data() {
    static const BenchmarkData loaded = loadRecording(recordingFolders().front());
    return loaded;
}

void prepareContext(vq::RegistrationContext* context) {
    context->infraredModel = data().cameras.infrared;
    context->colourModel = data().cameras.colour;
    context->colourScaling = data().cameras.colourScaling;
    context->state->setExtrinsics(vq::poseFromExtrinsics(data().parameters.depthToInModule));
}

void corners(const cv::Mat& image, int maximumCount) {
    std::vector<cv::KeyPoint> keyPoints;
    cv::GFTTDetector::create(maximumCount, 0.01, 4.0, 3, false, 0.04)->detect(image, keyPoints);
    std::vector<cv::Point2f> points;
    cv::KeyPoint::convert(keyPoints, points);
    cv::cornerSubPix(image, points, {3, 3}, {-1, -1}, {3, 40, 0.001});
    benchmark::DoNotOptimize(points.data());
}

/// The peer: corners of both pictures, one after the other, as OpenCV gives them. All stills of the recording.
void cornerCalls(benchmark::State& state) {
    std::vector<cv::Mat> infrared, grey;
    for (std::size_t i = 0; i < data().infrared.size(); ++i) {
        const auto& ir = data().infrared[i];
        const auto& colour = data().colour[i];
        cv::Mat converted;
        vq::convertInfrared(cv::Mat(static_cast<int>(ir.height), static_cast<int>(ir.width), CV_16UC1,
                                    const_cast<std::uint8_t*>(ir.pixels.data())),
                            1, &converted);
        infrared.push_back(converted.clone());
        vq::convertToGrey(cv::Mat(static_cast<int>(colour.height), static_cast<int>(colour.width), CV_8UC4,
                                  const_cast<std::uint8_t*>(colour.pixels.data())),
                          &converted);
        grey.push_back(converted.clone());
    }
    for (auto _ : state) {
        for (std::size_t i = 0; i < infrared.size(); ++i) {
            corners(infrared[i], 100000);
            corners(grey[i], 1000);
        }
    }
}

/// Conversion, corners, descriptors, matching, verification, grid and a stability decision for every still.
void pairToAnswer(benchmark::State& state) {
    vq::RegistrationContext context;
    prepareContext(&context);
    vq::SensorCalibrator calibrator(context, {});
    vq::PairStatistics sum;
    for (auto _ : state) {
        std::srand(1);
        calibrator.reset();
        calibrator.setup();
        for (std::size_t i = 0; i < data().infrared.size(); ++i) {
            calibrator.prepare({data().infrared[i], data().colour[i], {}, {}});
            calibrator.generateMatches();
            calibrator.tryDetermineStableSolution();
            const vq::PairStatistics& s = calibrator.statistics();
            sum.conversionSeconds += s.conversionSeconds;
            sum.detectionSeconds += s.detectionSeconds;
            sum.descriptionSeconds += s.descriptionSeconds;
            sum.matchingSeconds += s.matchingSeconds;
            sum.verificationSeconds += s.verificationSeconds;
            sum.estimationSeconds += s.estimationSeconds;
        }
    }
    const double toMilliseconds = 1e3 / static_cast<double>(data().infrared.size());
    const auto perPair = [&](double seconds) {
        return benchmark::Counter(seconds * toMilliseconds, benchmark::Counter::kAvgIterations);
    };
    state.counters["conversion_ms"] = perPair(sum.conversionSeconds);
    state.counters["detection_ms"] = perPair(sum.detectionSeconds);
    state.counters["description_ms"] = perPair(sum.descriptionSeconds);
    state.counters["matching_ms"] = perPair(sum.matchingSeconds);
    state.counters["verification_ms"] = perPair(sum.verificationSeconds);
    state.counters["estimation_ms"] = perPair(sum.estimationSeconds);
}

}  // namespace

BENCHMARK(cornerCalls)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(pairToAnswer)->Unit(benchmark::kMillisecond)->UseRealTime();

int main(int argc, char** argv) {
    fieldcal::setLogLevel(-1);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
