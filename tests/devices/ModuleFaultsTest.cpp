#include "tests/devices/ModuleRig.h"

#include <QFile>

#include <algorithm>

namespace fieldcal::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::IsEmpty;
using Flash = WriteBackReport::Flash;

/// 0.57 degrees about Z.
constexpr Rotation kTurned{0.99995F, -0.0099998F, 0, 0.0099998F, 0.99995F, 0, 0, 0, 1};

/// Long enough for a call that does nothing, even on a busy machine.
constexpr std::chrono::milliseconds kShort{250};

class ModuleFaultsTest : public ModuleRig {
protected:
    void expectReport(int status) const {
        EXPECT_THAT(reports, ElementsAre(EndsWith(status == 5 ? "MissingQ550" : " - " + userText(status))));
    }
    /// Closes the sensor and checks that the vendor's service is restored.
    void close() {
        sensor.reset();
        EXPECT_EQ(control.startType, 2U);
    }
};

/// Every operation that is used for opening, reading the calibration and grabbing, with the number of its first call
/// there.
constexpr const char* kFatal[] = {"openDevice:1",
                                  "initDevice:1",
                                  "serialNumber:1",
                                  "setDepthEnabled:1",
                                  "setLeftEnabled:1",
                                  "setRightEnabled:1",
                                  "setStreamOption:1",
                                  "setDepthStreamMode:1",
                                  "setThirdEnabled:1",
                                  "setThirdStreamMode:1",
                                  "hardwareControl:1",
                                  "setAutoExposure:1",
                                  "setHardwareOption:1",
                                  "setEmitter:1",
                                  "startCapture:1",
                                  "grab:1",
                                  "grab:3",
                                  "rectifiedThirdIntrinsics:1",
                                  "rectifiedLRIntrinsics:1",
                                  "zIntrinsics:1",
                                  "zToThirdExtrinsics:1"};
/// Failures of these operations cost a stream, a text or the rear camera, and are not faults of the module.
constexpr const char* kHarmless[] = {"firmwareVersionText:1",
                                     "softwareVersionText:1",
                                     "emitterControl:1",
                                     "depthEnabled:1",
                                     "leftEnabled:1",
                                     "rightEnabled:1",
                                     "thirdEnabled:1",
                                     "depthImage:1",
                                     "leftImage:1",
                                     "rightImage:1",
                                     "thirdImage:1",
                                     "platformCamera:1",
                                     "setPlatformMode:1",
                                     "setPlatformMode:2",
                                     "nonRectifiedIntrinsics:1",
                                     "rectifiedIntrinsics:1",
                                     "rectifiedIntrinsics:2",
                                     "rectificationRotation:1",
                                     "zToPlatformExtrinsics:1",
                                     "calibrationValid:1"};

TEST_F(ModuleFaultsTest, EveryCallOfTheReadPathFailsWithOneReportAndACleanEnd) {
    const auto run = [this](const std::string& fault) {
        start(QString::fromStdString(fault));
        bool good = open();
        for (int i = 0; i < 4; ++i)
            good = good && sensor->grab(true);
        return good;
    };
    const auto fails = [&](const std::string& operation, const std::string& kind, int reportedStatus) {
        SCOPED_TRACE(operation + ' ' + kind);
        EXPECT_FALSE(run(operation + ':' + kind));
        EXPECT_FALSE(sensor->grab(true)) << "nothing more happens";
        close();
        expectReport(reportedStatus);
    };
    for (const std::string operation : kFatal) {
        for (const int status : kStatuses)
            fails(operation, std::to_string(status), status);
        fails(operation, "gone", 5);
    }
    for (const std::string operation : kHarmless) {
        for (const int status : kStatuses) {
            EXPECT_TRUE(run(operation + ':' + std::to_string(status))) << operation << ' ' << status;
            close();
            EXPECT_THAT(reports, IsEmpty()) << operation << ' ' << status;
        }
    }
}

TEST_F(ModuleFaultsTest, WhatIsNotThereIsNamedOnce) {
    const auto expectReports = [this](const char* faults, const std::vector<std::string>& expected) {
        start(faults);
        EXPECT_FALSE(open());
        close();
        EXPECT_EQ(reports, expected) << faults;
    };
    expectReports("thirdCamera:1:6", {});  // only logged
    expectReports("calibrationValid:2:1", {"Not calibrated - " + userText(4)});
    expectReports("openCamera:1:1", {"MissingPlatform"});
    for (const char* issue : {"setAutoFocus:1:1", "setFocus:1:1", "setupStream:2:1", "setupStream:3:1"})
        expectReports(issue, {"PlatformIssue"});
    session::writeFile(path("session.json"), QByteArray::fromStdString(session::kSessionText));
    expectReports("", {"MissingPlatform"});  // a camera of another name
}

TEST_F(ModuleFaultsTest, ACallThatHangsIsGivenUpEverywhere) {
    dropPlatform();
    limits = {kShort, kShort};
    for (const std::string operation : kFatal) {
        SCOPED_TRACE(operation);
        start(QString::fromStdString(operation + ":hang"));
        EXPECT_FALSE(open() && sensor->grab(true) && sensor->grab(true) && sensor->grab(true));
        close();
        EXPECT_EQ(reports, std::vector<std::string>{"The camera does not answer - An unknown error has occured."});
    }
}

TEST_F(ModuleFaultsTest, ACameraThatDoesNotLetGoDisturbsNothingElse) {
    limits = {kShort, kShort};
    start("platformCamera:1:0,setSink:2:hang,destroyDevice:1:hang");
    ASSERT_TRUE(open()) << "the rear camera, which cannot be used, hangs as it is closed";
    EXPECT_TRUE(sensor->grab(true));
    close();
    EXPECT_THAT(reports, IsEmpty());

    start("grab:1:hang,setSink:2:hang");
    EXPECT_TRUE(open());
    EXPECT_FALSE(sensor->grab(true));
    const auto begin = std::chrono::steady_clock::now();
    close();
    EXPECT_LT(std::chrono::steady_clock::now() - begin, 4 * kShort);
}

TEST_F(ModuleFaultsTest, AStatusThatBelongsToTheCallersThreadIsTold) {
    start("thread-bound-status,zIntrinsics:1:7");
    EXPECT_FALSE(open());
    expectReport(7);
}

/// The calls of a write-back, numbered after opening and reading the calibration.
const std::string kWriting[] = {
    "stopCapture:1",  "rectParameters:1", "privateInterface:1", "writeRectParameters:1", "commitCalibration:1",
    "resumeDevice:1", "rectParameters:2", "rectParameters:3",   "zToThirdExtrinsics:2",  "zToPlatformExtrinsics:2"};

class WriteFaultsTest : public ModuleFaultsTest {
protected:
    WriteFaultsTest() { takeBaseline(); }
    void takeBaseline() {
        factory = stored();
        EXPECT_TRUE(sensor->updateRotation(kTurned, parameters.colour[ColourCamera::Platform].fromDepth.rotation));
        turned = stored();
        EXPECT_NE(turned, factory);
        sensor.reset();
    }
    /// Makes a write with this fault on a fresh flash, checks the conditions that must always hold, and returns the
    /// result.
    bool tryWriting(const std::string& fault) {
        QFile::remove(flashFile);
        reopen(QString::fromStdString(fault));
        const bool stored =
            sensor->updateRotation(kTurned, parameters.colour[ColourCamera::Platform].fromDepth.rotation);
        report = sensor->writeBack();
        close();
        firstReports = reports;
        checkFlash();
        EXPECT_EQ(stored, report.reason.isEmpty());
        EXPECT_TRUE(!stored || report.flash == Flash::Written);
        EXPECT_EQ(firstReports.size(), stored ? 0U : 1U) << ::testing::PrintToString(firstReports);
        return stored;
    }
    /// The flash holds the old or the new block as reported, and the backup restores the old one.
    void checkFlash() {
        const QByteArray found = stored();
        holdsNew = found == turned;
        EXPECT_TRUE(holdsNew || found == factory) << "torn";
        const bool reportsOld = report.flash == Flash::Untouched || report.flash == Flash::Previous;
        EXPECT_TRUE(report.flash == Flash::Unknown ||
                    (report.flash == Flash::Written ? holdsNew : reportsOld && !holdsNew));
        if (report.backupFile.isEmpty()) return;
        ParameterBackup backup;
        QString why;
        ASSERT_TRUE(readBackup(report.backupFile, &backup, &why)) << why.toStdString();
        EXPECT_TRUE(sensor->restoreParameters(backup.block));
        EXPECT_EQ(this->stored(), factory);
    }

    QByteArray factory, turned;
    WriteBackReport report;
    std::vector<std::string> firstReports;
    bool holdsNew = false;
};

TEST_F(WriteFaultsTest, EveryCallThatFailsIsReportedOnceAndTheFlashIsKnown) {
    const auto fails = [this](const std::string& fault, int reportedStatus) {
        SCOPED_TRACE(fault);
        EXPECT_FALSE(tryWriting(fault));
        reports = firstReports;
        expectReport(reportedStatus);
    };
    for (const std::string& operation : kWriting) {
        fails(operation + ":6", 6);
        EXPECT_NE(report.flash, Flash::Unknown) << "one failure; the module can still say what its flash holds";
        fails(operation + ":gone", 5);
    }
    fails("commitCalibration:1:done+6", 6);
    EXPECT_EQ(report.flash, Flash::Written) << "it said no, and stored it";
}

TEST_F(WriteFaultsTest, PowerThatGoesLeavesTheOldOrTheNewBlock) {
    for (const auto& [fault, isNew] : {std::pair{"writeRectParameters:1:gone", false},
                                       {"writeRectParameters:1:gone-after", false},
                                       {"commitCalibration:1:gone", false},
                                       {"commitCalibration:1:gone-after", true}}) {
        EXPECT_FALSE(tryWriting(fault)) << fault;
        EXPECT_EQ(report.flash, Flash::Unknown) << fault;
        EXPECT_EQ(holdsNew, isNew) << fault;
    }
}

TEST_F(WriteFaultsTest, Lies) {
    const std::string unstored = "The camera said that it stored the calibration, but it did not - " + userText(77);
    for (const std::string operation : {"stopCapture:1", "writeRectParameters:1"})
        EXPECT_FALSE(tryWriting(operation + ":lie")) << operation;
    EXPECT_FALSE(tryWriting("commitCalibration:1:lie"));
    EXPECT_EQ(firstReports, std::vector<std::string>{unstored});
    EXPECT_FALSE(tryWriting("resumeDevice:1:lie")) << "the module goes on with the old rotation";
    EXPECT_EQ(report.flash, Flash::Previous);
}

TEST_F(WriteFaultsTest, Hangs) {
    dropPlatform();
    takeBaseline();
    limits = {kShort, kShort};
    for (const std::string& operation : kWriting) {
        SCOPED_TRACE(operation);
        if (operation == "zToPlatformExtrinsics:2") continue;
        EXPECT_FALSE(tryWriting(operation + ":hang"));
        EXPECT_EQ(firstReports[0], "The camera does not answer - An unknown error has occured.");
    }
}

TEST_F(WriteFaultsTest, ABlockWithALifeOfItsOwnIsStoredAndRestored) {
    QFile::remove(flashFile);
    reopen("living-block,meddling-companion");
    for (const Rotation& rotation : {kTurned, parameters.colour[ColourCamera::Third].fromDepth.rotation}) {
        ASSERT_TRUE(sensor->updateRotation(rotation, parameters.colour[ColourCamera::Platform].fromDepth.rotation));
        EXPECT_EQ(sensor->writeBack().flash, Flash::Written);
    }
    EXPECT_TRUE(
        LogCapture::has("Outside of the rotation the companion library changed 1 bytes, the first one at 1457"));
    EXPECT_TRUE(LogCapture::has("The module keeps the block with changes of its own: 5 bytes, the first one at 2040"));
    ParameterBackup backup;
    QString why;
    ASSERT_TRUE(readBackup(sensor->writeBack().backupFile, &backup, &why)) << why.toStdString();
    EXPECT_TRUE(sensor->restoreParameters(backup.block)) << sensor->writeBack().reason.toStdString();
    EXPECT_THAT(reports, IsEmpty());
}

TEST_F(WriteFaultsTest, WhatIsReadAfterResumingCountsWhereItMatters) {
    EXPECT_TRUE(tryWriting("rectParameters:3:garble+2")) << "a byte of the module's own";
    EXPECT_FALSE(tryWriting("rectParameters:3:garble+257")) << "in the third camera's rotation";
    EXPECT_EQ(report.flash, Flash::Previous) << "put back";
    EXPECT_FALSE(tryWriting("rectParameters:3:garble+1420")) << "in a matrix";
    EXPECT_EQ(report.flash, Flash::Previous);
    EXPECT_FALSE(tryWriting("rectParameters:3:6,rectParameters:4:6")) << "it could not be read";
}

TEST_F(WriteFaultsTest, WritingMayTakeLongerThanOtherCalls) {
    dropPlatform();
    takeBaseline();
    limits.call = kShort;
    EXPECT_TRUE(tryWriting("writeRectParameters:1:late+600,commitCalibration:1:late+600"));
    EXPECT_FALSE(tryWriting("rectParameters:2:late+600"));
}

/// The high byte of the infrared matrix' first entry: 1 becomes 1e38.
constexpr const char* kNonsense = "writeRectParameters:1:garble+1275";

TEST_F(WriteFaultsTest, ABlockThatArrivedWrongIsPutBackBeforeItIsLoaded) {
    EXPECT_FALSE(tryWriting(kNonsense));
    EXPECT_EQ(report.flash, Flash::Previous) << "it was put back while the module rested";

    // Twice: the module is left with an invalid block and reports it at the next start. The backup repairs it.
    QFile::remove(flashFile);
    reopen(kNonsense + QString(",writeRectParameters:2:garble+1275"));
    EXPECT_FALSE(sensor->updateRotation(kTurned, parameters.colour[ColourCamera::Platform].fromDepth.rotation));
    EXPECT_EQ(sensor->writeBack().flash, Flash::Other);
    const QString kept = sensor->writeBack().backupFile;
    start();
    EXPECT_FALSE(open());
    expectReport(4);
    start();
    ASSERT_TRUE(sensor->open(applicationSettings()));
    ParameterBackup backup;
    QString why;
    ASSERT_TRUE(readBackup(kept, &backup, &why)) << why.toStdString();
    EXPECT_TRUE(sensor->restoreParameters(backup.block)) << sensor->writeBack().reason.toStdString();
    EXPECT_EQ(stored(), factory);
}

}  // namespace
}  // namespace fieldcal::testing
