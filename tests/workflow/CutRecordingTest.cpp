#include "tests/workflow/WorkflowRig.h"

#include <algorithm>

namespace fieldcal::testing {
namespace {

using ::testing::Contains;
using ::testing::ContainsRegex;
using ::testing::IsEmpty;
using ::testing::Not;
using Stills = std::vector<session::FrameImages>;

/// A frame of a recording that is derived from another one.
struct EditedFrame {
    session::FrameImages images;
    int repeat = 26;
};

/// The recording of the mountains, edited: `cut` receives its stills and returns the frames to play. Written into
/// `folder`.
void cutMountains(const QString& folder,
                  const std::function<std::vector<EditedFrame>(const std::vector<session::FrameImages>&)>& cut) {
    const std::string original = mountainRecording().toStdString();
    session::SessionDescription description;
    std::string why;
    ASSERT_TRUE(session::readDescription(original, &description, &why)) << why;
    std::vector<session::FrameImages> stills(description.frames.size());
    for (std::size_t i = 0; i < stills.size(); ++i)
        ASSERT_TRUE(session::readImages(original, description, i, &stills[i], &why)) << why;
    description.frames.clear();
    for (const EditedFrame& frame : cut(stills)) {
        const std::string name = std::to_string(description.frames.size());
        session::FrameEntry entry{name + "_ir.png", name + "_colour.png", {}, {}, frame.repeat};
        if (!frame.images.platform.empty()) entry.platform = name + "_rear.nv12";
        session::FrameImages images = frame.images;
        images.depth = {};
        ASSERT_TRUE(session::writeImages(folder.toStdString(), entry, images, &why)) << why;
        description.frames.push_back(entry);
    }
    ASSERT_TRUE(session::writeDescription(folder.toStdString(), description, &why)) << why;
}

/// Tests the workflow on a recording that becomes faulty in the middle.
class CutRecordingTest : public WorkflowTest {
protected:
    void play(const std::function<std::vector<EditedFrame>(const Stills&)>& cut) {
        const QString recording = folder.filePath("cut");
        cutMountains(recording, cut);
        set("KXSIM_SESSION", recording);
        start();
        ASSERT_TRUE(user->waitFor(State::ShowingIntroduction));
    }
    double errorDeg() const {
        return degreesBetween(*workflow->records().estimated(ColourCamera::Third),
                              *describe(mountainRecording()).truthThird);
    }
};

TEST_F(CutRecordingTest, LightThatIsLostIsAwaitedAndWhatWasTakenBeforeCounts) {
    play([](const Stills& stills) {
        std::vector<EditedFrame> frames;
        for (std::size_t i = 0; i < stills.size(); ++i) {
            frames.push_back({stills[i]});
            if (i % 2 == 0) continue;
            EditedFrame dark{stills[i]};
            for (std::size_t k = 0; k < dark.images.infrared.byteCount() / 2; ++k)
                dark.images.infrared.pixels()[k] /= 8;
            dark.images.third.bytes()[0] ^= 1U;  // a colour camera never delivers the same image in different light
            frames.push_back(dark);
        }
        return frames;
    });
    workflow->requestState(State::DetectingLighting);
    ASSERT_TRUE(user->waitUntil([&] { return user->lit; }));
    solve();
    EXPECT_THAT(user->events, ContainsRegex("PDL.*P")) << "three photos are needed, and never three come without dark";
    EXPECT_THAT(user->states, Not(Contains(State::WaitingToCalibrate)));
    EXPECT_LT(errorDeg(), 0.05);
}

TEST_F(CutRecordingTest, AnAttemptThatFailsIsFollowedByOneThatSucceeds) {
    // Infrared and colour of different views, twelve times; then matching ones.
    play([](const Stills& stills) {
        std::vector<EditedFrame> frames;
        for (std::size_t i = 0; i < 18; ++i) {
            frames.push_back({stills[i % 6]});
            if (i < 12) frames.back().images.infrared = stills[(i + 3) % 6].infrared;
        }
        return frames;
    });
    const auto failures = [this] { return std::count(user->events.begin(), user->events.end(), 'F'); };
    bool failed = false, solvedAfterwards = false;
    for (int attempt = 0; attempt < 12 && !solvedAfterwards; ++attempt) {
        const auto failuresBefore = failures();
        workflow->requestState(State::StartingCalibration);
        ASSERT_TRUE(user->waitUntil(
            [&] { return failures() > failuresBefore || workflow->state() == State::RefiningTutorial; }));
        const bool solved = failures() == failuresBefore;
        solvedAfterwards = failed && solved;
        failed = !solved;
    }
    EXPECT_LT(errorDeg(), 0.05);
    EXPECT_TRUE(solvedAfterwards) << user->events;
    EXPECT_THAT(user->events, ContainsRegex("PPPPPPP.?F")) << "eight photos, or seven that are too simple";
}

TEST_F(CutRecordingTest, ARearCameraThatDiesDuringItsCaptureIsToldOnceAndTheFlashIsKept) {
    set("KXSIM_SPEED", "2");  // its silence is measured in seconds
    play([](const Stills& stills) {
        std::vector<EditedFrame> frames;
        frames.reserve(13);
        for (int i = 0; i < 12; ++i)
            frames.push_back({stills[i % 6]});
        frames.push_back({stills[0], 100000});
        frames.back().images.platform.clear();
        return frames;
    });
    const QByteArray before = flash();
    workflow->switchCamera(ColourCamera::Platform);
    workflow->requestState(State::StartingCalibration);
    ASSERT_TRUE(user->waitUntil([&] { return user->rearCameraIssues > 0; }));
    EXPECT_THAT(user->events, ContainsRegex("P"));
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    thread->stop(Stop::ToLeave);
    EXPECT_THAT(workflow->leave().errors, IsEmpty());
    EXPECT_EQ(user->rearCameraIssues, 1);
    EXPECT_THAT(user->errors, IsEmpty());
    EXPECT_EQ(flash(), before);
    EXPECT_EQ(control.startType, 2U);
}

}  // namespace
}  // namespace fieldcal::testing
