#include "session/RecordedSession.h"
#include "simulator/synthesis/Rig.h"
#include "tests/workflow/WorkflowRig.h"

#include <Eigen/Core>
#include <QDir>

#include <cmath>

namespace fieldcal::testing {
namespace {

using Matrix = Eigen::Matrix<double, 3, 3, Eigen::RowMajor>;

/// The workflow over the rendered module: a hand that moves and trembles, and frames that come when they are ready.
class WorldWorkflowTest : public WorkflowTest {
protected:
    WorldWorkflowTest() : WorkflowTest(QString()) {
        set("KXSIM_WORLD", "mountains");
        set("KXSIM_SEED", "5");
        set("KXSIM_DRIFT", "2.5,-1,1.2");
    }
    ~WorldWorkflowTest() override {
        for (const char* variable : {"KXSIM_WORLD", "KXSIM_SEED", "KXSIM_DRIFT", "KXSIM_LIGHT", "XDG_DATA_HOME"})
            qunsetenv(variable);
    }
};

double degreesFrom(const session::Matrix3& truth, const Rotation& estimate) {
    const Matrix found = Eigen::Map<const Eigen::Matrix<float, 3, 3, Eigen::RowMajor>>(estimate.data()).cast<double>();
    const Matrix d = found * Eigen::Map<const Matrix>(truth.data()).transpose();
    const Eigen::Vector3d axis(d(2, 1) - d(1, 2), d(0, 2) - d(2, 0), d(1, 0) - d(0, 1));
    return std::atan2(axis.norm() / 2, (d.trace() - 1) / 2) * 180 / 3.141592653589793;
}

TEST_F(WorldWorkflowTest, BothCamerasAreCalibratedOutOfAMovingHandWhichWalksOutIntoTheSun) {
    synthesis::RigWishes wishes;
    wishes.platform = true;
    wishes.thirdDriftDeg = {{2.5, -1, 1.2}};
    const auto rig = synthesis::drawRig(5, wishes);
    set("KXSIM_LIGHT", "walk-out");
    // Without a file of its own the flash lives in the user's data folder.
    set("KXSIM_FLASH", {});
    set("XDG_DATA_HOME", folder.path());
    start();
    ASSERT_TRUE(user->waitFor(State::ShowingIntroduction));
    workflow->requestState(State::DetectingLighting);
    ASSERT_TRUE(user->waitUntil([&] { return user->lit; }));
    EXPECT_GT(user->darkReadings, 20) << "five seconds of darkness";
    solve();
    EXPECT_LT(degreesFrom(*rig.truthThird, *workflow->records().estimated(ColourCamera::InModule)), 0.05);
    workflow->requestState(State::RefiningCalibration);
    ASSERT_TRUE(user->waitUntil([&] { return !user->dotted.empty(); }));
    workflow->switchCamera(ColourCamera::OutOfModule);
    solve(State::RefiningCalibration);
    EXPECT_LT(degreesFrom(*rig.truthPlatform, *workflow->records().estimated(ColourCamera::OutOfModule)), 0.08)
        << "the rear camera stands 60 mm aside";
    EXPECT_THAT(user->dotted, ::testing::ElementsAre(State::RefiningCalibration));
    EXPECT_TRUE(stopAndSave().stored);
    EXPECT_TRUE(QFile::exists(folder.filePath("simulated-deepvane/module-700005.flash")));
}

}  // namespace
}  // namespace fieldcal::testing
