#include "simulator/synthesis/Rig.h"
#include "tests/workflow/WorkflowRig.h"

#include <QDir>

namespace fieldcal::testing {
namespace {

/// Tests the workflow with the rendered module: a hand that moves and trembles, and frames that arrive when they are
/// ready.
class WorldWorkflowTest : public WorkflowTest {
protected:
    WorldWorkflowTest() : WorkflowTest(QString()) {
        set("KXSIM_WORLD", "mountains");
        set("KXSIM_SEED", "5");
        set("KXSIM_DRIFT", "2.5,-1,1.2");
    }
    ~WorldWorkflowTest() override { qunsetenv("XDG_DATA_HOME"); }
};

TEST_F(WorldWorkflowTest, BothCamerasAreCalibratedOutOfAMovingHandWhichWalksOutIntoTheSun) {
    synthesis::RigOptions wishes;
    wishes.platform = true;
    wishes.thirdDriftDeg = {{2.5, -1, 1.2}};
    const auto rig = synthesis::drawRig(5, wishes);
    set("KXSIM_LIGHT", "walk-out");
    // Without a configured file, the flash is in the user's data folder.
    set("KXSIM_FLASH", {});
    set("XDG_DATA_HOME", folder.path());
    start();
    ASSERT_TRUE(user->waitFor(State::ShowingIntroduction));
    workflow->requestState(State::DetectingLighting);
    ASSERT_TRUE(user->waitUntil([&] { return user->lit; }));
    EXPECT_GT(user->darkReadings, 20) << "five seconds of darkness";
    solve();
    EXPECT_LT(degreesBetween(*rig.truthThird, *workflow->records().estimated(ColourCamera::Third)), 0.05);
    workflow->requestState(State::RefiningCalibration);
    ASSERT_TRUE(user->waitUntil([&] { return !user->dotted.empty(); }));
    workflow->switchCamera(ColourCamera::Platform);
    solve(State::RefiningCalibration);
    EXPECT_LT(degreesBetween(*rig.truthPlatform, *workflow->records().estimated(ColourCamera::Platform)), 0.08)
        << "the rear camera stands 60 mm aside";
    EXPECT_THAT(user->dotted, ::testing::ElementsAre(State::RefiningCalibration));
    EXPECT_TRUE(stopAndSave().stored);
    EXPECT_TRUE(QFile::exists(folder.filePath("simulated-deepvane/module-700005.block")));
}

}  // namespace
}  // namespace fieldcal::testing
