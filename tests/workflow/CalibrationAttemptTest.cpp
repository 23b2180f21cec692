#include "workflow/CalibrationAttempt.h"

#include <QDir>
#include <QTemporaryDir>
#include <gmock/gmock.h>

#include <cmath>
#include <deque>
#include <string>
#include <vector>

namespace fieldcal {
namespace {

using testing::ElementsAre;
using Outcome = CalibrationAttempt::Outcome;

constexpr const char* kMoveText = "Move the device to capture a different calibration photo.";
constexpr const char* kPauseText = "Pause to capture a calibration photo.";

/// Returns scripted results and records its calls.
class ScriptedCalibrator : public vq::ICalibrator {
public:
    std::uint16_t brightness = 500;
    std::deque<std::int32_t> movementCodes;  ///< empty: every frame is selected
    std::deque<std::int32_t> pairCodes;      ///< empty: `AddingFramesForConvergence`
    vq::ParallaxReport report;
    bool solution = false;
    std::string calls;  ///< a remembered baseline appears in tenths of a millimetre

    std::int32_t setup() override { return note("setup ", 0); }
    vq::CalibratorResult inputFramesAndCheckMovement(const ImageFrame16&, const ImageFrame32&) override {
        return {note("check ", next(movementCodes, vq::ProcessImagePair)), ""};
    }
    vq::CalibratorResult inputImageAndTryCalibration() override {
        return {note("pair ", next(pairCodes, vq::AddingFramesForConvergence)), ""};
    }
    void measureInfraredBrightness(const ImageFrame16&, std::uint16_t* out) override { *out = brightness; }
    std::int32_t resetState() override { return note("reset ", 0); }
    std::int32_t setCameraParameters(bool platform) override { return note(platform ? "platform " : "third ", 0); }
    float* getTranslation(float out[3]) override { return out; }
    float* getRotationMatrix(float out[9]) override { return out; }
    void setTouchAreaSize(float, float) override {}
    void setDragAreaSize(float, float) override {}
    void beginDrag(std::int32_t, std::int32_t) override {}
    void drag(std::int32_t, std::int32_t) override {}
    void endDrag() override {}
    void inputDistanceFrames(const ImageFrame16&, const ImageFrame16&) override {}
    void setRememberedBaseline(double metres) override { note(std::to_string(std::lround(metres * 1e4)) + ' ', 0); }
    vq::ParallaxReport parallax() const override { return report; }
    bool hasSolution() const override { return solution; }
    std::optional<vq::SolutionQuality> quality() const override { return std::nullopt; }

private:
    std::int32_t note(const std::string& call, std::int32_t result) {
        calls += call;
        return result;
    }
    static std::int32_t next(std::deque<std::int32_t>& codes, std::int32_t otherwise) {
        if (codes.empty()) return otherwise;
        const std::int32_t code = codes.front();
        codes.pop_front();
        return code;
    }
};

class Notes : public AttemptListener {
public:
    std::vector<double> progress;
    std::vector<std::string> movement, start;
    std::vector<bool> darkness;
    int captured = 0, howToMove = 0;

    void movementText(const std::string& text, bool holdStill) override {
        EXPECT_EQ(holdStill, text.rfind("Pause", 0) == 0) << text;
        movement.push_back(text);
    }
    void startText(const std::string& text) override { start.push_back(text); }
    void calibrationProgress(double value) override { progress.push_back(value); }
    void returnToWellLitArea(bool needed) override { darkness.push_back(needed); }
    void pairCaptured() override { ++captured; }
    void offerHowToMove() override { ++howToMove; }
};

class CalibrationAttemptTest : public testing::Test {
protected:
    CalibrationAttemptTest() {
        infrared.resize(4, 3);
        colour.resize(5, 4);
        attempt.start(ColourCamera::Third);
    }
    /// Returns the outcome of the last frame. A failed attempt is ended as its owner would do.
    Outcome feed(int frames) {
        Outcome outcome = Outcome::Continues;
        for (int i = 0; i < frames; ++i)
            outcome = attempt.processFrame({infrared, colour, none, none});
        if (outcome == Outcome::Failed) attempt.fail();
        return outcome;
    }

    ImageFrame16 infrared;
    const ImageFrame16 none;
    ImageFrame32 colour;
    ScriptedCalibrator calibrator;
    Notes notes;
    LightGate light;
    CalibrationAttempt attempt{calibrator, notes, light, 8};
};

TEST_F(CalibrationAttemptTest, EightPairsWithoutASolutionEndTheAttempt) {
    EXPECT_EQ(feed(7), Outcome::Continues);
    EXPECT_EQ(feed(1), Outcome::Failed);
    EXPECT_THAT(notes.progress, ElementsAre(0.2, 0.4, 0.6, 0.8, 0.9, 0.9, 0.9, 0.9));
    EXPECT_THAT(notes.start,
                ElementsAre("Calibration isn't working because the scenery in these photos is too simple.\n"
                            "Let's try again. Point at interesting scenery like buildings or trees."));
    EXPECT_EQ(notes.howToMove, 1);
    EXPECT_EQ(attempt.photoCount(), 0);
    EXPECT_TRUE(calibrator.calls.find("reset") != std::string::npos);

    calibrator.calls.clear();
    EXPECT_EQ(feed(3), Outcome::Continues);
    EXPECT_EQ(calibrator.calls, "") << "nothing may reach the engine between attempts";
    attempt.start(ColourCamera::Platform);
    EXPECT_EQ(calibrator.calls, "reset platform setup ") << "what was collected for the other camera must go";
    EXPECT_EQ(feed(8), Outcome::Failed);
}

TEST_F(CalibrationAttemptTest, ASolutionWithTheLastPermittedPairCounts) {
    calibrator.pairCodes = {0, 2, 0, 2, 2, 2, 2, vq::GoodSolution};
    EXPECT_EQ(feed(8), Outcome::Solved);
    EXPECT_TRUE(notes.start.empty());
    EXPECT_EQ(calibrator.calls.rfind("reset"), 0U) << "the solution must stay readable";
    EXPECT_EQ(attempt.photoCount(), 8);
}

TEST_F(CalibrationAttemptTest, ATooSimpleSceneEndsTheAttemptAtOnce) {
    calibrator.pairCodes = {0, vq::SceneTooSimple};
    EXPECT_EQ(feed(2), Outcome::Failed);
    EXPECT_EQ(notes.howToMove, 1);
}

TEST_F(CalibrationAttemptTest, ABaselineThatASolutionMeasuredIsKnownToTheModulesNextAttempts) {
    using Source = vq::BaselineSource;
    const QTemporaryDir data;
    const BaselineMemory memory(data.path());
    const auto solveWith = [&](Source source, double baselineM, std::int32_t code) {
        calibrator.calls.clear();
        calibrator.report.baselineFrom = source;
        calibrator.report.baselineM = baselineM;
        calibrator.pairCodes = {code};
        attempt.start(ColourCamera::Third);
        feed(1);
        return calibrator.calls;
    };
    solveWith(Source::Depth, 0.05, vq::GoodSolution);
    EXPECT_TRUE(QDir(data.path()).isEmpty()) << "only who asks for it has a memory";

    attempt.useMemory(memory, 7);
    solveWith(Source::Depth, 0.05, vq::AddingFramesForConvergence);
    solveWith(Source::Depth, 0.05, vq::SceneTooSimple);
    EXPECT_EQ(solveWith(Source::Fit, 0.0551, vq::GoodSolution), "reset third 0 setup check pair ");
    EXPECT_EQ(solveWith(Source::Remembered, 0.06, vq::GoodSolution), "reset third 551 setup check pair ");
    solveWith(Source::None, 0.06, vq::GoodSolution);
    EXPECT_EQ(solveWith(Source::Depth, 0.0553, vq::GoodSolution), "reset third 551 setup check pair ");
    attempt.useMemory(memory, 8);
    EXPECT_EQ(solveWith(Source::Fit, 0.07, vq::GoodSolution), "reset third 0 setup check pair ");
    EXPECT_NEAR(*memory.find(7), 0.0553, 1e-9);
    EXPECT_NEAR(*memory.find(8), 0.07, 1e-9);
}

TEST_F(CalibrationAttemptTest, InstructionsNeverCountAsPhotos) {
    calibrator.movementCodes = {vq::RemainStill, vq::RotateDevice, vq::RemainStill, vq::ProcessImagePair};
    feed(3);
    EXPECT_EQ(attempt.photoCount(), 0);
    EXPECT_EQ(notes.captured, 0);
    EXPECT_THAT(notes.movement, ElementsAre(kPauseText, kMoveText, kPauseText));
    feed(1);
    EXPECT_EQ(attempt.photoCount(), 1);
    EXPECT_EQ(notes.captured, 1);
}

TEST_F(CalibrationAttemptTest, DarkAndEmptyFramesNeverReachTheEngine) {
    calibrator.calls.clear();
    calibrator.brightness = 129;
    feed(2);
    EXPECT_EQ(calibrator.calls, "");
    EXPECT_THAT(notes.darkness, ElementsAre(true, true));
    EXPECT_THAT(notes.movement, ElementsAre("", ""));

    calibrator.brightness = 130;  // exactly at the threshold counts as lit during capture
    attempt.processFrame({infrared, ImageFrame32(), none, none});
    attempt.processFrame({none, colour, none, none});
    EXPECT_EQ(calibrator.calls, "");
    feed(1);
    EXPECT_EQ(notes.darkness.back(), false);
    EXPECT_EQ(attempt.photoCount(), 1);
}

TEST(LightGateTest, ThresholdFallsOnceLitAndRisesWhenLost) {
    LightGate gate;
    EXPECT_EQ(gate.detect(0).progress, 0.0);
    EXPECT_EQ(gate.detect(8).progress, 0.0);
    EXPECT_NEAR(gate.detect(73).progress, 0.5, 1e-12);
    EXPECT_FALSE(gate.detect(130).lit);
    EXPECT_TRUE(gate.detect(131).lit);
    EXPECT_TRUE(gate.detect(111).lit);
    EXPECT_EQ(gate.detect(111).progress, 1.0);
    EXPECT_TRUE(gate.isLitForCapture(111));
    EXPECT_FALSE(gate.isLitForCapture(110));
    EXPECT_TRUE(gate.wellLit()) << "capture only reads the flag";
    EXPECT_FALSE(gate.detect(110).lit);
    EXPECT_FALSE(gate.isLitForCapture(129));
    EXPECT_TRUE(gate.isLitForCapture(130));
}

}  // namespace
}  // namespace fieldcal
