// Benchmark of one accepted pair from images to result, and of the OpenCV corner detection that it includes, for the
// first recording of FIELDCAL_RECORDINGS. Distances are measured where it has right infrared images.

#include "benchmarks/ModuleStills.h"
#include "diagnostics/Logger.h"
#include "engine/CalibratorInterface.h"
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

const ModuleStills& data() {
    static const ModuleStills loaded = playStills(recordingFolders().front());
    return loaded;
}

const JudgedCamera& camera() {
    static const JudgedCamera first = judgedCameras(data().session, data().parameters).front();
    return first;
}

vq::ImagePairRecord recordOf(const ImageFrame& frame) {
    vq::ImagePairRecord record;
    record.assign(frame.width(), frame.height(), frame.bytes(), frame.bytesPerPixel());
    return record;
}

std::vector<vq::SelectedImages> pairsOfRecording() {
    std::vector<vq::SelectedImages> pairs;
    for (const FrameRecords& still : data().stills)
        pairs.push_back({recordOf(still.leftInfrared), recordOf(still.colour[camera().camera]),
                         recordOf(still.rightInfrared), recordOf(still.depth)});
    return pairs;
}

void corners(const cv::Mat& image, int maximumCount) {
    std::vector<cv::KeyPoint> keyPoints;
    cv::GFTTDetector::create(maximumCount, 0.01, 4.0, 3, false, 0.04)->detect(image, keyPoints);
    std::vector<cv::Point2f> points;
    cv::KeyPoint::convert(keyPoints, points);
    cv::cornerSubPix(image, points, {3, 3}, {-1, -1}, {3, 40, 0.001});
    benchmark::DoNotOptimize(points.data());
}

/// The reference: corner detection in both images with OpenCV, one after the other, for all stills of the recording.
void cornerCalls(benchmark::State& state) {
    std::vector<cv::Mat> infrared, grey;
    for (const vq::SelectedImages& pair : pairsOfRecording()) {
        cv::Mat converted;
        vq::convertInfrared(cv::Mat(static_cast<int>(pair.infrared.height), static_cast<int>(pair.infrared.width),
                                    CV_16UC1, const_cast<std::uint8_t*>(pair.infrared.pixels.data())),
                            1, &converted);
        infrared.push_back(converted.clone());
        vq::convertToGrey(cv::Mat(static_cast<int>(pair.colour.height), static_cast<int>(pair.colour.width), CV_8UC4,
                                  const_cast<std::uint8_t*>(pair.colour.pixels.data())),
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
    vq::CalibratorInterface engine(context, data().parameters);
    engine.setCameraParameters(camera().camera == ColourCamera::Platform);
    vq::SensorCalibrator calibrator(context, {});
    const std::vector<vq::SelectedImages> pairs = pairsOfRecording();
    vq::PairStatistics sum;
    for (auto _ : state) {
        std::srand(1);
        calibrator.reset();
        engine.setCameraParameters(camera().camera == ColourCamera::Platform);
        calibrator.setup();
        for (const vq::SelectedImages& pair : pairs) {
            calibrator.prepare(pair);
            calibrator.generateMatches();
            calibrator.tryDetermineStableSolution();
            const vq::PairStatistics& s = calibrator.statistics();
            sum.conversionSeconds += s.conversionSeconds;
            sum.detectionSeconds += s.detectionSeconds;
            sum.descriptionSeconds += s.descriptionSeconds;
            sum.distanceSeconds += s.distanceSeconds;
            sum.matchingSeconds += s.matchingSeconds;
            sum.verificationSeconds += s.verificationSeconds;
            sum.estimationSeconds += s.estimationSeconds;
        }
    }
    const double toMilliseconds = 1e3 / static_cast<double>(pairs.size());
    const auto perPair = [&](double seconds) {
        return benchmark::Counter(seconds * toMilliseconds, benchmark::Counter::kAvgIterations);
    };
    state.counters["conversion_ms"] = perPair(sum.conversionSeconds);
    state.counters["detection_ms"] = perPair(sum.detectionSeconds);
    state.counters["description_ms"] = perPair(sum.descriptionSeconds);
    state.counters["distance_ms"] = perPair(sum.distanceSeconds);
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
