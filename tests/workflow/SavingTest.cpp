#include "devices/CameraParameterReader.h"
#include "tests/devices/SensorFixture.h"
#include "workflow/ProcessingThread.h"
#include "workflow/SaveNote.h"
#include "workflow/Saving.h"
#include "workflow/Workflow.h"

#include <QDir>
#include <QFile>

#include <atomic>
#include <thread>

namespace fieldcal::testing {
namespace {

constexpr std::uint32_t kSerial = 550101;
constexpr Rotation kAboutY{0, 0, 1, 0, 1, 0, -1, 0, 0};

class SavingTest : public SensorTest {
protected:
    SavingTest() {
        EXPECT_TRUE(sensor->open(applicationSettings()) && readCameraParameters(*sensor, &parameters, [] {}));
        records.setFactory(parameters.colour[ColourCamera::Third].fromDepth.rotation,
                           parameters.colour[ColourCamera::Platform].fromDepth.rotation);
        device->onWrite = [this] { noteAtWrite = readSaveNote(data.path(), kSerial); };
    }
    void accept() {
        records.setEstimated(ColourCamera::Third, kAboutY, [] { return true; });
        EXPECT_TRUE(records.accept(ColourCamera::Third, kAboutY));
    }

    CameraParameters parameters;
    CalibrationRecords records;
    std::optional<SaveNote> noteAtWrite;
};

TEST_F(SavingTest, ANoteStandsOnDiskWhileTheOutcomeIsOpen) {
    accept();
    EXPECT_TRUE(storeCalibration(*sensor, records, data.path()).stored);
    ASSERT_TRUE(noteAtWrite) << "whatever ends the program here must be known at the next start";
    EXPECT_EQ(noteAtWrite->serial, kSerial);
    EXPECT_FALSE(readSaveNote(data.path(), kSerial));

    device->failCall("commitCalibration", 2, 6);
    records.accept(ColourCamera::Third, parameters.colour[ColourCamera::Third].fromDepth.rotation);
    EXPECT_FALSE(storeCalibration(*sensor, records, data.path()).stored);
    const std::optional<SaveNote> note = readSaveNote(data.path(), kSerial);
    ASSERT_TRUE(note);
    EXPECT_EQ(note->reason, sensor->writeBack().reason);
    EXPECT_EQ(note->flash, "The camera's flash holds the previous calibration.");
    EXPECT_TRUE(LogCapture::has("Failed to store calibration information to flash."));
}

TEST_F(SavingTest, TheNextStartDecidesByTheModulesBlock) {
    using Outcome = LastSave::Outcome;
    accept();
    const KXCalibRectParameters before = device->flash;
    ASSERT_TRUE(storeCalibration(*sensor, records, data.path()).stored);
    ASSERT_TRUE(noteAtWrite && noteAtWrite->change);
    EXPECT_TRUE(QFile::exists(noteAtWrite->backupFile));
    const KXCalibRectParameters after = device->flash;
    KXCalibRectParameters other = before;
    other.rectificationThird[4] += 1;
    for (const auto& [block, outcome] : {std::pair(after, Outcome::Stored), std::pair(before, Outcome::NotStored),
                                         std::pair(other, Outcome::Neither)}) {
        ASSERT_TRUE(writeSaveNote(data.path(), *noteAtWrite));
        device->flash = block;
        const auto last = settleLastSave(*sensor, data.path());
        ASSERT_TRUE(last);
        EXPECT_EQ(last->outcome, outcome);
        EXPECT_FALSE(settleLastSave(*sensor, data.path())) << "reported once";
    }
    ASSERT_TRUE(writeSaveNote(data.path(), *noteAtWrite));
    device->failCall("rectParameters", 3 + 3 + 1, 6);
    EXPECT_FALSE(settleLastSave(*sensor, data.path())) << "nothing is known, so nothing is said";
    EXPECT_TRUE(readSaveNote(data.path(), kSerial)) << "it waits";
    EXPECT_FALSE(sensor->faulted());
}

TEST_F(SavingTest, WithoutANoteOnTheDiskNothingIsWritten) {
    accept();
    ASSERT_TRUE(QDir(data.path()).mkpath("save-note-550101.json"));
    const SaveResult result = storeCalibration(*sensor, records, data.path());
    EXPECT_FALSE(result.stored);
    EXPECT_FALSE(result.reported);
    EXPECT_FALSE(noteAtWrite) << "no call has reached the flash";
    EXPECT_EQ(sensor->writeBack().flash, WriteBackReport::Flash::Untouched);
    EXPECT_FALSE(sensor->faulted());
}

TEST_F(SavingTest, WithoutAnythingAcceptedBothRecordsArePassedAndNothingIsNoted) {
    EXPECT_TRUE(storeCalibration(*sensor, records, data.path()).stored);
    EXPECT_EQ(device->calls.back(), "zToPlatformExtrinsics()");
    EXPECT_FALSE(noteAtWrite);
}

TEST_F(SavingTest, ADamagedNoteClaimsNothing) {
    QFile file(data.filePath("save-note-550101.json"));
    for (const char* text :
         {"", "{", "[1]", R"({"version": 2})", R"({"version": 1, "block": {"bytes": "00", "previous": "x"}})"}) {
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        file.close();
        EXPECT_FALSE(readSaveNote(data.path(), kSerial)->isWhole) << text;
        EXPECT_FALSE(settleLastSave(*sensor, data.path())) << "the calibration may be stored all the same";
        EXPECT_FALSE(readSaveNote(data.path(), kSerial)) << "and it is said once";
    }
}

/// A complete workflow with the fake module.
class EndingTest : public SensorTest {
protected:
    struct Listener : WorkflowListener {
        void stateChanged(State) override { opened = true; }
        void deviceError(const QString&) override { ++errors; }
        void platformCameraIssue() override { ++rearCameraIssues; }
        std::atomic<bool> opened{false};
        std::atomic<int> errors{0};
        std::atomic<int> rearCameraIssues{0};
    };
    void start() {
        thread = std::make_unique<ProcessingThread>(workflow.loop());
        while (!listener.opened)
            std::this_thread::yield();
    }

    Listener listener;
    Workflow workflow{listener, {[this] { return std::make_unique<Sensor>(environment()); }, data.path()}};
    std::unique_ptr<ProcessingThread> thread;
};

TEST_F(EndingTest, SavingWaitsForACallThatIsSlow) {
    device->onGrab = [] { std::this_thread::sleep_for(std::chrono::milliseconds(500)); };
    start();
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    thread->stop(Stop::ToSave);
    const LeaveReport report = workflow.save(Storing::WithRefinement);
    EXPECT_TRUE(report.stored) << report.writeBack.reason.toStdString();
}

TEST_F(EndingTest, ASilentRearCameraIsToldOnceAndTheRestGoesOn) {
    std::atomic<int> grabs{0};
    device->onGrab = [&] { ++grabs; };
    start();
    while (grabs < 20)
        std::this_thread::yield();
    thread->stop(Stop::ToLeave);
    EXPECT_EQ(listener.rearCameraIssues, 1);
    EXPECT_EQ(listener.errors, 0);
}

TEST_F(EndingTest, WhatFailsAfterTheUserWantsToEndIsKeptForTheEnd) {
    std::atomic<int> grabs{0};
    device->onGrab = [&] {
        if (++grabs == 3) workflow.loop().requestStop(Stop::ToSave);
    };
    device->failCall("grab", 3, 6);
    start();
    while (grabs < 3)
        std::this_thread::yield();
    thread->stop(Stop::ToSave);
    EXPECT_EQ(workflow.save(Storing::WithRefinement).errors.size(), 1);
    EXPECT_EQ(listener.errors, 0);
}

}  // namespace
}  // namespace fieldcal::testing
