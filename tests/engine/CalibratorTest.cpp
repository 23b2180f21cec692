#include "diagnostics/Logger.h"
#include "engine/Median.h"
#include "tests/engine/CalibratorRig.h"
#include "tests/engine/Matchers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <map>
#include <numeric>
#include <thread>

namespace vq::testing {
namespace {

using ::testing::ElementsAre;

const Eigen::Vector3d kFactoryDeg(0.6, -0.9, 1.1), kTrueDeg(3.1, -1.9, -0.1);

class Calibrator : public ::testing::Test {
protected:
    Calibrator() {
        std::srand(1);
        fieldcal::setLogLevel(-1);
    }
    ~Calibrator() override { fieldcal::setLogLevel(2); }

    void expectAnswer(const CalibratorResult& result, std::int32_t code, const std::string& message) const {
        EXPECT_EQ(result.code, code);
        EXPECT_EQ(result.message, message);
    }
    CalibratorRig rig_{kFactoryDeg};
};

/// Removes the texture to the right of and below `corner` in both images. Infrared pixels.
ScenePair blankedFrom(const ScenePair& still, const cv::Point& corner, const cv::Point& colourOffset) {
    const auto blanked = [](const cv::Mat& picture, const cv::Point& from, const cv::Scalar& with) {
        cv::Mat result(picture.size(), picture.type(), with);
        const cv::Rect rest = cv::Rect({0, 0}, from) & cv::Rect({0, 0}, picture.size());
        picture(rest).copyTo(result(rest));
        return result;
    };
    return {blanked(still.infrared, corner, cv::Scalar(400)),
            blanked(still.colour, corner + colourOffset, cv::Scalar(100, 100, 100, 255))};
}

TEST_F(Calibrator, TellsTheUserWhatToDo) {
    const ScenePair still = rig_.scene(kTrueDeg, 1);
    const char* remain = "Please remain still so the application can capture\nthe frame for calibration.";
    for (int i = 1; i <= 8; ++i)
        expectAnswer(rig_.show(still), 5, remain);
    expectAnswer(rig_.show(still), 3, "Proceeding with Calibration to process Image Pair");
    for (int i = 1; i <= 12; ++i)
        expectAnswer(rig_.show(still), 4, "Please rotate the device left or right to continue.");
    EXPECT_EQ(rig_.engine.resetState(), 0);
    for (int i = 1; i <= 8; ++i) {
        expectAnswer(rig_.show(still), 5, remain);
        if (i == 3) rig_.engine.setup();
    }
    EXPECT_EQ(rig_.show(still).code, 3) << "a set-up leaves the selection alone";
}

TEST_F(Calibrator, SolvesWithTheThirdDecisionImprovesWithMoreAndStaysSolvedUntilReset) {
    const auto isNearTruth = NearRotation(rotationFromAngles(kTrueDeg * kDeg), 0.05 * kDeg);
    std::int32_t code = 0;
    for (int pair = 1; code != 8; ++pair) {
        ASSERT_LE(pair, 8) << "eight pairs are enough, however accurate the solution is";
        const CalibratorResult result = rig_.calibrateOn(rig_.scene(kTrueDeg, pair));
        code = result.code;
        EXPECT_EQ(rig_.core.attemptCount(), pair);
        EXPECT_EQ(rig_.engine.hasSolution(), pair >= 3) << pair;
        const std::optional<SolutionQuality> quality = rig_.engine.quality();
        const bool enough = pair == 8 || (pair >= 4 && quality && quality->meets(AccuracyGoal()));
        enough ? expectAnswer(result, 8, "Found good solution")
               : expectAnswer(result, 2, "Adding additional Frames for convergence");
        EXPECT_THAT(rig_.rotation(), isNearTruth);
    }
    const std::optional<SolutionEvidence> evidence = rig_.core.evidence();
    ASSERT_TRUE(evidence);
    const auto medianPx = [&](const Eigen::Matrix3d& rotation) {
        std::vector<double> lengths;
        for (const EvidenceMatch& match : evidence->matches)
            lengths.push_back(evidence->residualPx(match, rotation).norm());
        return medianOf(lengths);
    };
    EXPECT_LT(medianPx(rig_.rotation()), 0.2);
    EXPECT_GT(medianPx(rotationFromAngles(kFactoryDeg * kDeg)), 3.0);
    const std::vector<int>& perStill = evidence->matchesPerStill;
    EXPECT_EQ(static_cast<int>(perStill.size()), rig_.core.attemptCount());
    EXPECT_EQ(evidence->shownStill, std::max_element(perStill.begin(), perStill.end()) - perStill.begin());
    EXPECT_EQ(evidence->infrared.size(), cv::Size(320, 240));
    const auto areas = evidence->matchesPerArea();
    EXPECT_EQ(std::accumulate(areas.begin(), areas.end(), std::size_t{0}), evidence->matches.size());
    // A plain wall does not invalidate the solution.
    const ScenePair wall = blankedFrom(rig_.scene(kTrueDeg, 1), {8, 8}, {0, 0});
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(rig_.calibrateOn(wall).code, 8);
    EXPECT_THAT(rig_.rotation(), isNearTruth);
    EXPECT_EQ(rig_.engine.setup(), 0);
    EXPECT_TRUE(rig_.core.goodSolution()) << "a set-up clears nothing";
    EXPECT_EQ(rig_.engine.resetState(), 0);
    EXPECT_FALSE(rig_.core.goodSolution());
    EXPECT_FALSE(rig_.core.evidence());
    EXPECT_EQ(rig_.core.attemptCount(), 0);
    EXPECT_EQ(rig_.gridTotal(), 0U);
    EXPECT_THAT(rig_.rotation(), isNearTruth) << "registration stays";
}

TEST_F(Calibrator, EstimatesWhenHalfOfTheCellsAreFilled) {
    // Infrared cells are 80 x 80.
    const ScenePair still = rig_.scene(kFactoryDeg, 1);
    const cv::Point2f middle = mapped(colourFromInfrared(rig_.cameras, kFactoryDeg * kDeg), {160, 120});
    const cv::Point offset = cv::Point(middle) - cv::Point(160, 120);
    expectAnswer(rig_.calibrateOn(blankedFrom(still, {160, 240}, offset)), 2,
                 "Adding additional Frames for convergence");
    EXPECT_EQ(rig_.core.grid().underfilledCells(), 6);
    EXPECT_TRUE(rig_.core.frameUsable());
    rig_.engine.resetState();
    expectAnswer(rig_.calibrateOn(blankedFrom(still, {160, 160}, offset)), 0, "Need more images to process");
    EXPECT_GT(rig_.core.grid().underfilledCells(), 6);
    EXPECT_FALSE(rig_.core.frameUsable());
    EXPECT_EQ(rig_.core.attemptCount(), 0);
}

TEST_F(Calibrator, SeventhAttemptOnAverageBelowThirtyIsTooSimple) {
    // Stills with more and more texture, by the number of matches in each one.
    std::map<int, ScenePair> stills;
    const ScenePair full = rig_.scene(kTrueDeg, 1);
    for (int fromX = 40; fromX <= 80; fromX += 2) {
        const ScenePair still = blankedFrom(full, {fromX, 240}, {0, 12});
        rig_.calibrateOn(still);
        stills.emplace(rig_.verified(), still);
        rig_.engine.resetState();
    }
    // Sums that seven of them can reach, with the stills of each sum.
    std::map<int, std::vector<int>> reached{{0, {}}};
    for (int step = 0; step < 7; ++step) {
        std::map<int, std::vector<int>> next;
        for (const auto& [sum, counts] : reached) {
            for (const auto& [count, still] : stills)
                (next[sum + count] = counts).push_back(count);
        }
        reached = next;
    }
    for (const auto& [sum, lastCodeIsSix] : {std::pair{209, true}, {210, false}}) {
        ASSERT_EQ(reached[sum].size(), 7U);
        rig_.engine.setup();  // counts from zero again, as after a reset
        CalibratorResult result;
        for (const int count : reached[sum]) {
            EXPECT_NE(result.code, 6) << "not before the seventh";
            result = rig_.calibrateOn(stills.at(count));
            ASSERT_EQ(rig_.verified(), count);
        }
        EXPECT_EQ(result.code == 6 && result.message.empty(), lastCodeIsSix) << sum;
    }
}

TEST_F(Calibrator, FourthFailureInARowEmptiesTheGrid) {
    // A correct rotation within the search range about the factory angles, but outside the acceptance range.
    CalibratorRig rig({3.0, 0, 0});
    const Eigen::Matrix3d factory = rig.rotation();
    for (int decision = 1; decision <= 9; ++decision) {
        EXPECT_EQ(rig.calibrateOn(rig.scene({4.5, 0, 0}, decision)).code, 2);
        EXPECT_TRUE(rig.core.outOfRange());
        EXPECT_EQ(rig.gridTotal() == 0, decision % 4 == 0) << decision;
        EXPECT_EQ(rig.core.attemptCount(), decision) << "goes on counting";
    }
    EXPECT_THAT(rig.rotation(), NearRotation(factory, 1e-6)) << "nothing recorded";
    rig.engine.resetState();
    EXPECT_FALSE(rig.core.outOfRange());
    for (int decision = 1; decision <= 3; ++decision)
        rig.calibrateOn(rig.scene({4.5, 0, 0}, decision));
    EXPECT_GT(rig.gridTotal(), 0U) << "the reset forgot the ninth";
}

TEST_F(Calibrator, RefusesPicturesThatAreNotOfItsCameras) {
    rig_.calibrateOn(rig_.scene(kTrueDeg, 1));
    ScenePair small = rig_.scene(kTrueDeg, 2);
    small.infrared = cv::Mat(120, 160, CV_16UC1, cv::Scalar(400));
    rig_.calibrateOn(small);
    EXPECT_EQ(rig_.verified(), 0);
    EXPECT_EQ(rig_.core.statistics().matched, 0);
    CalibratorRig fresh(kFactoryDeg);
    EXPECT_EQ(fresh.engine.inputImageAndTryCalibration().code, 0) << "nothing selected yet";
}

TEST_F(Calibrator, TakesTheChosenCameraAndLetsItBeDragged) {
    EXPECT_THAT(rig_.rotation(), NearRotation(rotationFromAngles(kFactoryDeg * kDeg), 1e-6));
    EXPECT_THAT(rig_.translation(), ElementsAre(0.025F, 0.5F, -0.25F));
    rig_.engine.setCameraParameters(true);
    EXPECT_THAT(rig_.translation(), ElementsAre(0.0625F, -0.125F, 0.0F));
    EXPECT_EQ(rig_.context.colourModel.width, 310);
    EXPECT_EQ(rig_.context.colourScaling.x, 1.0F);
    rig_.engine.setDragAreaSize(400, 300);
    rig_.engine.beginDrag(100, 50);
    rig_.engine.drag(150, 290);
    rig_.engine.endDrag();
    rig_.engine.drag(300, 50);
    EXPECT_THAT(rig_.rotation(), NearRotation(rotationFromAngles(Eigen::Vector3d(-1.5, 1.5, -0.75) * kDeg), 1e-6));
    EXPECT_NEAR(rig_.context.currentAnglesDeg[1], 1.5F, 1e-5F);
}

TEST_F(Calibrator, CanBeTouchedWhileItDecides) {
    rig_.calibrateOn(rig_.scene(kTrueDeg, 1));
    rig_.engine.setDragAreaSize(400, 300);
    std::atomic<bool> done{false};
    std::thread deciding([&] {
        for (int i = 0; i < 3; ++i)
            rig_.engine.inputImageAndTryCalibration();
        rig_.engine.resetState();
        done = true;
    });
    int touches = 0;
    for (; !done; ++touches) {
        rig_.engine.setTouchAreaSize(400, 300);
        rig_.engine.beginDrag(100, 50);
        rig_.engine.drag(100 + touches % 50, 50);
        EXPECT_THAT(rig_.rotation(), IsRotation(1e-5));
        rig_.engine.endDrag();
        EXPECT_EQ(rig_.translation()[0], 0.025F);
        EXPECT_LE(rig_.core.grid().underfilledCells(), 12);
        EXPECT_FALSE(rig_.core.outOfRange());
        std::this_thread::yield();
    }
    deciding.join();
    EXPECT_GT(touches, 20) << "a touch does not wait for a decision";
}

}  // namespace
}  // namespace vq::testing
