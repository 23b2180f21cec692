#include "tests/tools/RenderedRecording.h"
#include "tools/RecordingCalibration.h"
#include "workflow/Workflow.h"

#include <cstdlib>

namespace fieldcal::testing {
namespace {

/// The application's thread and the command line run the same engine and must give the same result.
TEST(SameAnswerTest, TheApplicationAndTheCommandLineFindTheSameRotation) {
    const QString recording = mountainRecording();
    qputenv("KXSIM_SESSION", recording.toLocal8Bit());
    qputenv("KXSIM_SPEED", "0");
    WorkflowListener nobody;
    QTemporaryDir data;
    Workflow workflow(nobody, {[] { return std::make_unique<Sensor>(); }, data.path()});
    workflow.loop().pass();
    ASSERT_EQ(workflow.state(), State::ShowingIntroduction);
    workflow.requestState(State::StartingCalibration);
    std::srand(7);
    for (int pass = 0; pass < 2000 && workflow.state() != State::RefiningTutorial; ++pass)
        workflow.loop().pass();
    const std::optional<Rotation> found = workflow.records().estimated(ColourCamera::Third);
    ASSERT_TRUE(found);
    workflow.leave();

    session::SessionDescription session;
    std::string whyNot;
    ASSERT_TRUE(session::readDescription(recording.toStdString(), &session, &whyNot)) << whyNot;
    RecordingCalibration commandLine(recording.toStdString(), session, ColourCamera::Third, {});
    QString why;
    std::srand(7);
    ASSERT_TRUE(commandLine.run(&why)) << why.toStdString();
    ASSERT_TRUE(commandLine.report().solved);
    for (std::size_t i = 0; i < found->size(); ++i)
        EXPECT_EQ(commandLine.report().rotation[i], static_cast<double>((*found)[i])) << i;
    qunsetenv("KXSIM_SESSION");
    qunsetenv("KXSIM_SPEED");
}

}  // namespace
}  // namespace fieldcal::testing
