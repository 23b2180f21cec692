// Prints the table of docs/estimation.md: the effect of the form of the residual on the result of one round, over the
// given recordings and seeds.
//   compare-residuals SEEDS RECORDING...          add --mismatched to pair infrared with the colour of another still

#include "benchmarks/BenchmarkData.h"
#include "diagnostics/Logger.h"
#include "engine/CrossModalMatcher.h"
#include "engine/MatchGrid.h"
#include "engine/MatchVerification.h"
#include "engine/Rotation.h"
#include "engine/RotationConsensus.h"
#include "engine/RotationFit.h"
#include "engine/Stopwatch.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

using namespace fieldcal;

struct Lists {
    std::vector<cv::Point2f> infrared, colour;
};

struct Tally {
    std::vector<double> consensusDeg, refinedDeg, share, rivalShare;
    double seconds = 0;
};

struct Form {
    const char* name;
    vq::ResidualLoss loss;
    Tally tally;
};

/// Least squares.
double linearShape(double /*squaredPx*/, double /*squaredScalePx*/) {
    return 1.0;
}

/// Bounded (Geman and McClure).
double boundedShape(double squaredPx, double squaredScalePx) {
    return 1.0 / std::sqrt(squaredPx + squaredScalePx);
}

cv::Mat view(const vq::ImagePairRecord& record, int type) {
    return {static_cast<int>(record.height), static_cast<int>(record.width), type,
            const_cast<std::uint8_t*>(record.pixels.data())};
}

std::vector<Lists> verifiedMatches(const BenchmarkData& data, bool mismatched) {
    vq::CrossModalMatcher matcher;
    matcher.setup(data.cameras, vq::anglesFromRotation(data.factory), {}, 0.2);
    std::vector<Lists> all;
    for (std::size_t i = 0; i < data.infrared.size(); ++i) {
        const std::size_t j = mismatched ? (i + 1) % data.colour.size() : i;
        matcher.prepare(view(data.infrared[i], CV_16UC1), view(data.colour[j], CV_8UC4), 1);
        Lists lists;
        matcher.findCrossModalMatches(&lists.colour, &lists.infrared);
        vq::verifyMatches(matcher.grey(), matcher.infrared(), &lists.colour, &lists.infrared);
        for (cv::Point2f& point : lists.colour)
            point = data.cameras.colourModelPoint(point);
        all.push_back(std::move(lists));
    }
    return all;
}

void tryRound(const BenchmarkData& data, const Lists& round, const std::vector<vq::Sample>& samples, Form* form) {
    const Eigen::Vector3d initialRad = vq::anglesFromRotation(data.factory);
    const vq::RotationCost cost(round.infrared, round.colour, data.cameras, form->loss);
    vq::Stopwatch watch;
    const vq::Consensus consensus = vq::findConsensus(cost, round.infrared, samples, initialRad);
    form->tally.seconds += watch.lap();
    if (!consensus.found) return;
    std::vector<double> distancesPx;
    cost.distancesPx(consensus.anglesRad, &distancesPx);
    const auto inliers = std::count_if(distancesPx.begin(), distancesPx.end(),
                                       [](double distancePx) { return distancePx <= vq::kInlierPx; });
    form->tally.share.push_back(static_cast<double>(inliers) / static_cast<double>(distancesPx.size()));
    form->tally.rivalShare.push_back(static_cast<double>(consensus.rivalInlierCount) /
                                     std::max(1, consensus.inlierCount));
    form->tally.consensusDeg.push_back(vq::angleBetweenDeg(vq::rotationFromAngles(consensus.anglesRad), data.truth));
    Eigen::Vector3d refinedRad;
    if (vq::fitRotationLM(cost, initialRad, &refinedRad)) {
        form->tally.refinedDeg.push_back(vq::angleBetweenDeg(vq::rotationFromAngles(refinedRad), data.truth));
    }
}

double quantile(std::vector<double> values, double share) {
    if (values.empty()) return -1;
    std::sort(values.begin(), values.end());
    return values[std::min(values.size() - 1, static_cast<std::size_t>(share * static_cast<double>(values.size())))];
}

}  // namespace

int main(int argc, char** argv) {
    setLogLevel(-1);
    if (argc < 3) {
        std::fprintf(stderr, "usage: compare-residuals SEEDS RECORDING... [--mismatched]\n");
        return 2;
    }
    const bool mismatched = std::strcmp(argv[argc - 1], "--mismatched") == 0;
    using vq::ResidualLoss;
    std::vector<Form> forms{{"least squares", ResidualLoss(linearShape, 1), {}},
                            {"bounded, 2 px", ResidualLoss(boundedShape, 2), {}},
                            {"Cauchy, 0.6 px", ResidualLoss::cauchy(0.6), {}},
                            {"Cauchy, 1.0 px", ResidualLoss::cauchy(1.0), {}},
                            {"Cauchy, 2.5 px", ResidualLoss::cauchy(2.5), {}}};
    for (int argument = 2; argument < argc - (mismatched ? 1 : 0); ++argument) {
        const BenchmarkData data = loadRecording(argv[argument]);
        const std::vector<Lists> pairs = verifiedMatches(data, mismatched);
        for (int seed = 1; seed <= std::atoi(argv[1]); ++seed) {
            std::srand(static_cast<unsigned>(seed));
            vq::MatchGrid grid(4, 3, 10);
            for (std::size_t k = 0; k < 3; ++k) {
                const Lists& pair = pairs[(static_cast<std::size_t>(seed) + k) % pairs.size()];
                grid.beginPair();
                grid.add(pair.colour, pair.infrared, data.cameras.infrared.width, data.cameras.infrared.height);
            }
            Lists round;
            grid.sample(7, &round.infrared, &round.colour);
            if (round.infrared.size() < vq::kSampleSize) continue;
            const auto samples = vq::drawSamples(static_cast<int>(round.infrared.size()));
            for (Form& form : forms)
                tryRound(data, round, samples, &form);
        }
    }
    std::printf("%-28s %-24s %-24s %-24s %-14s %s\n", "form", "consensus med/95%/max", "refined med/95%/max",
                "inlier share min/med/max", "rival med/max", "ms a round");
    for (const Form& form : forms) {
        const Tally& t = form.tally;
        std::printf("%-28s %.4f %.4f %.4f     %.4f %.4f %.4f     %.2f %.2f %.2f           %.2f %.2f      %.1f\n",
                    form.name, quantile(t.consensusDeg, 0.5), quantile(t.consensusDeg, 0.95),
                    quantile(t.consensusDeg, 1), quantile(t.refinedDeg, 0.5), quantile(t.refinedDeg, 0.95),
                    quantile(t.refinedDeg, 1), quantile(t.share, 0), quantile(t.share, 0.5), quantile(t.share, 1),
                    quantile(t.rivalShare, 0.5), quantile(t.rivalShare, 1),
                    t.seconds * 1e3 / static_cast<double>(std::max<std::size_t>(1, t.consensusDeg.size())));
    }
    return 0;
}
