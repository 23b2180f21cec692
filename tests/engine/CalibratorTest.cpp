#include "diagnostics/Logger.h"
#include "engine/InfraredConversion.h"
#include "tests/engine/CalibratorRig.h"
#include "tests/engine/Matchers.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <map>
#include <thread>

namespace vq::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

const Eigen::Vector3d kTrueDeg(3.1, -1.9, -0.1);

class Calibrator : public ::testing::Test {
protected:
    Calibrator() {
        std::srand(1);
        fieldcal::setLogLevel(-1);
    }
    ~Calibrator() override { fieldcal::setLogLevel(2); }

    CalibratorRig rig_;
};

void expectAnswer(const CalibratorResult& result, std::int32_t code, const std::string& message) {
    EXPECT_EQ(result.code, code);
    EXPECT_EQ(result.message, message);
}

/// Nothing to see from `corner` to the right or from it downwards, in both pictures. Infrared pixels.
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
    const char* rotate = "Please rotate the device left or right to continue.";
    for (int i = 0; i < 8; ++i)
        expectAnswer(rig_.show(still), 5, remain);
    expectAnswer(rig_.show(still), 3, "Proceeding with Calibration to process Image Pair");
    for (int i = 0; i < 12; ++i)
        expectAnswer(rig_.show(still), 4, rotate);
    EXPECT_EQ(rig_.engine.resetState(), 0);
    expectAnswer(rig_.show(still), 5, remain);
    rig_.show(still);
    rig_.engine.setup();
    for (int i = 3; i <= 8; ++i)
        expectAnswer(rig_.show(still), 5, remain);
    EXPECT_EQ(rig_.show(still).code, 3) << "a set-up leaves the selection alone";
}

TEST_F(Calibrator, SolvesWithTheThirdDecisionAndStaysSolved) {
    for (int pair = 1; pair <= 4; ++pair) {
        const CalibratorResult result = rig_.calibrateOn(rig_.scene(kTrueDeg, pair));
        EXPECT_EQ(rig_.engine.calibrator().attemptCount(), pair);
        if (pair < 3) {
            expectAnswer(result, 2, "Adding additional Frames for convergence");
        } else {
            expectAnswer(result, 8, "Found good solution");
        }
        EXPECT_THAT(rig_.rotation(), NearRotation(rotationFromAngles(kTrueDeg * kDeg), 0.05 * kDeg));
    }
    float translation[3];
    EXPECT_EQ(rig_.engine.getTranslation(translation), translation);
    EXPECT_THAT(translation, ElementsAre(0.025F, 0.5F, -0.25F));

    rig_.engine.setup();
    EXPECT_TRUE(rig_.engine.calibrator().goodSolution());
    EXPECT_GT(rig_.gridTotal(), 0U);
    EXPECT_EQ(rig_.engine.resetState(), 0);
    EXPECT_FALSE(rig_.engine.calibrator().goodSolution());
    EXPECT_EQ(rig_.engine.calibrator().attemptCount(), 0);
    EXPECT_EQ(rig_.gridTotal(), 0U);
    EXPECT_THAT(rig_.rotation(), NearRotation(rotationFromAngles(kTrueDeg * kDeg), 0.05 * kDeg))
        << "registration stays";
    EXPECT_EQ(rig_.calibrateOn(rig_.scene(kTrueDeg, 5)).code, 2) << "and counts anew";
}

TEST_F(Calibrator, EstimatesWhenHalfOfTheCellsAreFilled) {
    // Infrared cells are 80 x 80; the factory angles move the colour picture by a few pixels only.
    const Eigen::Vector3d factoryDeg(0.6, -0.9, 1.1);
    const ScenePair still = rig_.scene(factoryDeg, 1);
    const cv::Point2f middle = mapped(colourFromInfrared(rig_.pair, factoryDeg * kDeg), {160, 120});
    const cv::Point offset = cv::Point(middle) - cv::Point(160, 120);
    const ScenePair half = blankedFrom(still, {160, 240}, offset);
    expectAnswer(rig_.calibrateOn(half), 2, "Adding additional Frames for convergence");
    EXPECT_EQ(rig_.engine.calibrator().grid().underfilledCells(), 6);
    EXPECT_TRUE(rig_.engine.calibrator().frameUsable());
    rig_.engine.resetState();
    expectAnswer(rig_.calibrateOn(blankedFrom(still, {160, 160}, offset)), 0, "Need more images to process");
    EXPECT_GT(rig_.engine.calibrator().grid().underfilledCells(), 6);
    EXPECT_FALSE(rig_.engine.calibrator().frameUsable());
    EXPECT_EQ(rig_.engine.calibrator().attemptCount(), 0);
}

TEST_F(Calibrator, SeventhAttemptOnAverageBelowThirtyIsTooSimple) {
    // Stills with more and more to see, and how many matches each one gives.
    std::map<int, ScenePair> byCount;
    const ScenePair full = rig_.scene(kTrueDeg, 1);
    for (int fromX = 40; fromX <= 80; fromX += 2) {
        const ScenePair still = blankedFrom(full, {fromX, 240}, {0, 12});
        rig_.calibrateOn(still);
        byCount.emplace(rig_.verified(), still);
        rig_.engine.resetState();
    }
    // Seven of them with a given sum, by how far each further count reaches.
    const auto sevenThatGive = [&byCount](int sum) {
        std::map<int, std::vector<int>> reached{{0, {}}};
        for (int step = 0; step < 7; ++step) {
            std::map<int, std::vector<int>> next;
            for (const auto& [total, counts] : reached) {
                for (const auto& [count, still] : byCount) {
                    if (total + count > sum) continue;
                    auto& entry = next[total + count];
                    entry = counts;
                    entry.push_back(count);
                }
            }
            reached = next;
        }
        return reached[sum];
    };
    for (const auto& [sum, tooSimple] : {std::pair{209, true}, {210, false}}) {
        const std::vector<int> counts = sevenThatGive(sum);
        ASSERT_EQ(counts.size(), 7U) << sum;
        rig_.engine.resetState();
        for (int attempt = 1; attempt <= 7; ++attempt) {
            const CalibratorResult result = rig_.calibrateOn(byCount.at(counts[static_cast<std::size_t>(attempt - 1)]));
            ASSERT_EQ(rig_.verified(), counts[static_cast<std::size_t>(attempt - 1)]);
            if (attempt == 7 && tooSimple) {
                expectAnswer(result, 6, "");
            } else {
                EXPECT_NE(result.code, 6) << sum << ", attempt " << attempt;
            }
        }
    }
}

TEST_F(Calibrator, SetupCountsAttemptsAnewAndKeepsTheGrid) {
    const ScenePair flat{cv::Mat(240, 320, CV_16UC1, cv::Scalar(400)), greyColour({336, 252}, 90)};
    ASSERT_TRUE(rig_.capture(flat));
    for (int round = 0; round < 2; ++round) {
        for (int attempt = 1; attempt <= 6; ++attempt)
            expectAnswer(rig_.engine.inputImageAndTryCalibration(), 0, "Need more images to process");
        expectAnswer(rig_.engine.inputImageAndTryCalibration(), 6, "");
        rig_.engine.setup();
    }
    rig_.calibrateOn(rig_.scene(kTrueDeg, 1));
    const std::size_t collected = rig_.gridTotal();
    EXPECT_GT(collected, 100U);
    rig_.engine.setup();
    EXPECT_EQ(rig_.gridTotal(), collected);
    EXPECT_FALSE(rig_.engine.calibrator().frameUsable());
}

TEST_F(Calibrator, FourthFailureInARowEmptiesTheGrid) {
    // Right, and inside the search range about the factory angles, but outside of what may be accepted.
    CalibratorRig rig({3.0, 0, 0});
    const Eigen::Matrix3d factory = rig.rotation();
    for (int decision = 1; decision <= 8; ++decision) {
        EXPECT_EQ(rig.calibrateOn(rig.scene({4.5, 0, 0}, decision)).code, 2);
        EXPECT_TRUE(rig.engine.calibrator().outOfRange());
        EXPECT_EQ(rig.gridTotal() == 0, decision % 4 == 0) << decision;
        EXPECT_EQ(rig.engine.calibrator().attemptCount(), decision) << "goes on counting";
    }
    EXPECT_THAT(rig.rotation(), NearRotation(factory, 1e-6)) << "nothing recorded";
    rig.calibrateOn(rig.scene({4.5, 0, 0}, 9));
    rig.engine.resetState();
    EXPECT_FALSE(rig.engine.calibrator().outOfRange());
    for (int decision = 1; decision <= 3; ++decision)
        rig.calibrateOn(rig.scene({4.5, 0, 0}, decision));
    EXPECT_GT(rig.gridTotal(), 0U) << "the reset forgot the one before";
}

TEST_F(Calibrator, RefusesColourOfAnotherScene) {
    for (int pair = 1; pair <= 6; ++pair) {
        ScenePair still = rig_.scene(kTrueDeg, pair);
        still.colour = rig_.scene(kTrueDeg, pair + 100).colour;
        EXPECT_NE(rig_.calibrateOn(still).code, 8) << pair;
    }
}

TEST_F(Calibrator, RefusesPicturesThatAreNotOfItsCameras) {
    const ScenePair small{cv::Mat(120, 160, CV_16UC1, cv::Scalar(400)), greyColour({336, 252}, 90)};
    rig_.calibrateOn(rig_.scene(kTrueDeg, 1));
    rig_.engine.resetState();
    rig_.calibrateOn(small);
    EXPECT_EQ(rig_.verified(), 0);
    EXPECT_EQ(rig_.engine.calibrator().statistics().matched, 0);
    EXPECT_FALSE(rig_.engine.calibrator().frameUsable());
    CalibratorRig fresh;
    EXPECT_EQ(fresh.engine.inputImageAndTryCalibration().code, 0) << "nothing selected yet";
}

TEST_F(Calibrator, TakesTheChosenCamera) {
    CalibratorRig rig({0.6, -0.9, 1.1}, true);
    float translation[3];
    EXPECT_THAT(std::vector<float>(rig.engine.getTranslation(translation), translation + 3),
                ElementsAre(0.0625F, -0.125F, 0.0F));
    const Eigen::Vector3d platformDeg(-1.5, 0.5, -0.75);
    EXPECT_THAT(rig.rotation(), NearRotation(rotationFromAngles(platformDeg * kDeg), 1e-6));
    EXPECT_EQ(rig.context.colourModel.width, 310);
    EXPECT_EQ(rig.context.colourScaling.x, 1.0F);
    rig.engine.setDragAreaSize(400, 300);
    rig.engine.beginDrag(100, 50);
    rig.engine.drag(150, 290);
    EXPECT_THAT(rig.rotation(),
                NearRotation(rotationFromAngles((platformDeg + Eigen::Vector3d(0, 1, 0)) * kDeg), 1e-6));
    rig.engine.endDrag();
    rig.engine.drag(300, 50);
    EXPECT_NEAR(rig.context.currentAnglesDeg[1], 1.5F, 1e-5F);
    rig.engine.setCameraParameters(false);
    EXPECT_THAT(rig.rotation(), NearRotation(rotationFromAngles(Eigen::Vector3d(0.6, -0.9, 1.1) * kDeg), 1e-6));
}

TEST_F(Calibrator, MeasuresBrightness) {
    std::uint16_t brightness = 7;
    rig_.engine.measureInfraredBrightness(infraredFrame(cv::Mat(50, 60, CV_16UC1, cv::Scalar(321))), &brightness);
    EXPECT_EQ(brightness, 321);
    rig_.engine.measureInfraredBrightness({}, &brightness);
    EXPECT_EQ(brightness, 0);
}

TEST_F(Calibrator, LogsAPairInTheFixedWords) {
    ASSERT_TRUE(rig_.capture(rig_.scene(kTrueDeg, 1)));
    fieldcal::setLogLevel(2);
    ::testing::internal::CaptureStderr();
    rig_.engine.inputImageAndTryCalibration();
    rig_.engine.resetState();
    rig_.engine.setup();
    const std::string log = ::testing::internal::GetCapturedStderr();
    std::size_t from = 0;
    for (const char* line :
         {"Generating matches...", "rgb [336 x 252] IR [320 x 240]", "Matches.size: ", "Found matches",
          "number of matches: rgb = ", "number of matches after ZNCC: rgb = ", "Found ",
          "Current number of attempts: 1", "Current avg number of features: ",
          "Trying to determine a stable solution...", "resetting", "Preparing Calibrator"}) {
        const std::size_t at = log.find(std::string("INFO: : ") + line, from);
        ASSERT_NE(at, std::string::npos) << line << " in\n" << log;
        from = at + 1;
    }
}

TEST_F(Calibrator, CanBeTouchedWhileItDecides) {
    ASSERT_TRUE(rig_.capture(rig_.scene(kTrueDeg, 1)));
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
        float translation[3];
        rig_.engine.getTranslation(translation);
        EXPECT_LE(rig_.engine.calibrator().grid().underfilledCells(), 12);
        rig_.engine.calibrator().goodSolution();
        std::this_thread::yield();
    }
    deciding.join();
    EXPECT_GT(touches, 20) << "a touch does not wait for a decision";
}

}  // namespace
}  // namespace vq::testing
