#include "engine/ResidualBlocks.h"
#include "engine/SolutionJudge.h"
#include "tests/engine/Matchers.h"
#include "tests/engine/Scenes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <random>

namespace vq::testing {
namespace {

const Eigen::Vector3d kStoredRad = Eigen::Vector3d(0.3, -0.2, 0.1) * kDeg;
const Eigen::Vector3d kTrueRad = Eigen::Vector3d(1.3, -1.2, 0.4) * kDeg;

/// Generates matches of several stills with independent noise and with noise common to the matches of a quarter of a
/// still.
struct MatchMaker {
    std::mt19937 random;
    double ownPx = 0.2, sharedPx = 0.1;
    bool tellsDistances = true;
    Projection projection{fullCameras(), {0.025, 0.0005, -0.0003}};
    /// Applied to each colour point; receives the direction on the plane Z = 1 and the inverse depth.
    std::function<Eigen::Vector2d(const Eigen::Vector2d&, const Eigen::Vector2d&, double)> departure;

    explicit MatchMaker(unsigned seed) : random(seed) {}

    std::vector<MeasuredMatch> still() {
        std::normal_distribution<double> normal;
        std::uniform_real_distribution<double> uniform;
        std::array<Eigen::Vector2d, 4> shared;
        for (Eigen::Vector2d& offset : shared)
            offset = sharedPx * Eigen::Vector2d(normal(random), normal(random));
        const Eigen::Matrix3d rotation = rotationFromAngles(kTrueRad);
        const fieldcal::CameraModel& colour = projection.cameras.colour;
        std::vector<MeasuredMatch> matches;
        for (int i = 0; i < 400; ++i) {
            MeasuredMatch match;
            match.place.infrared = {static_cast<float>(628 * uniform(random)),
                                    static_cast<float>(468 * uniform(random))};
            const double inverseDepth = 0.2 * uniform(random);
            if (tellsDistances) match.place.inverseDepth = static_cast<float>(inverseDepth);
            Eigen::Vector2d point = projection.colourPoint(rotation, match.place.infrared, inverseDepth);
            const Eigen::Vector2d onPlane((point.x() - colour.cx) / colour.fx, (point.y() - colour.cy) / colour.fy);
            if (departure) point = departure(point, onPlane, inverseDepth);
            const std::size_t quarter =
                (match.place.infrared.x < 314 ? 0U : 1U) + (match.place.infrared.y < 234 ? 0U : 2U);
            point += shared[quarter] + ownPx * Eigen::Vector2d(normal(random), normal(random));
            match.colour = {static_cast<float>(point.x()), static_cast<float>(point.y())};
            match.information = Eigen::Matrix2d::Identity() / (ownPx * ownPx);
            matches.push_back(match);
        }
        return matches;
    }

    JudgedSolution solution(int stills) {
        JudgedSolution made{projection, rotationFromAngles(kTrueRad), rotationFromAngles(kStoredRad), {}, {}};
        made.options.cauchy = 1.5;
        std::vector<MeasuredMatch> all;
        for (int i = 0; i < stills; ++i) {
            const std::vector<MeasuredMatch> matches = still();
            made.stills.push_back({matches, matches});
            all.insert(all.end(), matches.begin(), matches.end());
        }
        const auto fitted = fitRotation(all, projection, made.rotation, made.options);
        if (fitted) made.rotation = fitted->rotation;
        return made;
    }
};

TEST(Uncertainty, BlocksTellHowFarAnswersScatterThoughMatchesErrTogether) {
    constexpr int kRuns = 120;
    Eigen::Vector3d squares = Eigen::Vector3d::Zero();
    for (int run = 0; run < kRuns; ++run) {
        MatchMaker maker(static_cast<unsigned>(run));
        const JudgedSolution solution = maker.solution(4);
        ResidualBlocks blocks(solution.projection, solution.rotation, solution.options);
        for (const JudgedStill& still : solution.stills)
            blocks.addStill(still.taken);
        const Eigen::AngleAxisd turn(solution.rotation * rotationFromAngles(kTrueRad).transpose());
        squares += (turn.angle() * turn.axis()).cwiseQuotient(blocks.deviationRad()).cwiseAbs2();
    }
    const Eigen::Vector3d rms = (squares / kRuns).cwiseSqrt();
    EXPECT_GT(rms.minCoeff(), 0.8) << rms.transpose();
    EXPECT_LT(rms.maxCoeff(), 1.25) << rms.transpose();
}

TEST(Uncertainty, DistancesThatNobodyMeasuredMakeTheAnglesUncertain) {
    MatchMaker maker(1);
    const SolutionQuality known = judgeSolution(maker.solution(4));
    maker.tellsDistances = false;
    const JudgedSolution blind = maker.solution(4);
    const SolutionQuality unknown = judgeSolution(blind);
    const Eigen::AngleAxisd turn(blind.rotation * rotationFromAngles(kTrueRad).transpose());
    EXPECT_GT(turn.angle(), 20 * known.deviationDeg[1] * kDeg)
        << "a mean inverse depth of 0.1 is a turn of 0.14 degrees";
    EXPECT_LT(turn.angle(), 3 * unknown.deviationDeg[1] * kDeg);
    EXPECT_LT(unknown.samplingDeg[1], unknown.deviationDeg[1] / 5) << "more pairs would not help";
}

TEST(Uncertainty, TheProofJudgesEachStillByTheOthers) {
    MatchMaker maker(2);
    JudgedSolution solution = maker.solution(4);
    const auto proof = judgeSolution(solution).proof;
    ASSERT_TRUE(proof);
    EXPECT_EQ(proof->stills, 4);
    EXPECT_NEAR(proof->storedPx, 13, 3) << "a turn of one degree about X and Y";
    EXPECT_NEAR(proof->newPx, 0.26, 0.05) << "the median of noise of 0.2 px along both axes, and a little more";
    EXPECT_TRUE(proof->isClear());
    // Stills whose matches are unrelated to the fitted rotation.
    std::uniform_real_distribution<float> anywhere(-40, 40);
    for (JudgedStill& still : solution.stills)
        for (MeasuredMatch& match : still.verified)
            match.colour += cv::Point2f(anywhere(maker.random), anywhere(maker.random));
    const auto refuted = judgeSolution(solution).proof;
    ASSERT_TRUE(refuted);
    EXPECT_GT(refuted->newPx, 10);
    EXPECT_FALSE(refuted->isClear());
}

TEST(ModelCheck, TellsARotationFromAChangedLensAndATranslation) {
    const fieldcal::CameraModel colour = fullCameras().colour;
    const Eigen::Vector2d centre(colour.cx, colour.cy);
    using Vector = Eigen::Vector2d;
    const struct {
        ModelDeparture departure;
        std::function<Vector(const Vector&, const Vector&, double)> change;
    } cases[]{
        {ModelDeparture::FocalLength,
         [&](const Vector& p, const Vector&, double) { return Vector(centre + 1.005 * (p - centre)); }},
        {ModelDeparture::Distortion,
         [&](const Vector& p, const Vector& n, double) {
             return Vector(centre + (1 + 0.02 * n.squaredNorm()) * (p - centre));
         }},
        {ModelDeparture::Translation,
         [&](const Vector& p, const Vector&, double inverseDepth) {
             return Vector(p + Vector(0, colour.fy * 0.01 * inverseDepth));
         }},
        {ModelDeparture::RollingShear,
         [&](const Vector& p, const Vector& n, double) { return Vector(p + Vector(2 * n.y(), 0)); }},
        {ModelDeparture::SecondRotation,
         [&](const Vector& p, const Vector& n, double) { return Vector(p + Vector(n.y() < 0 ? 2 : 0, 0)); }},
    };
    for (const auto& [departure, change] : cases) {
        MatchMaker maker(3);
        maker.sharedPx = 0.03;
        maker.departure = change;
        const auto found = judgeSolution(maker.solution(5)).model.departure();
        ASSERT_TRUE(found) << static_cast<int>(departure);
        // A small distortion is similar to a different focal length.
        if (departure != ModelDeparture::Distortion) {
            EXPECT_EQ(*found, departure);
        }
    }
    int alarms = 0;
    for (unsigned seed = 0; seed < 60; ++seed) {
        MatchMaker maker(100 + seed);
        if (judgeSolution(maker.solution(4)).model.departure()) ++alarms;
    }
    EXPECT_LE(alarms, 1);
}

}  // namespace
}  // namespace vq::testing
