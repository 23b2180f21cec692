#include "tests/devices/ModuleRig.h"

#include <QFile>

#include <algorithm>
#include <random>

namespace fieldcal::testing {
namespace {

using ::testing::IsEmpty;
using Flash = WriteBackReport::Flash;

/// 0.57 degrees about Z.
constexpr Rotation kTurned{0.99995F, -0.0099998F, 0, 0.0099998F, 0.99995F, 0, 0, 0, 1};

/// Long for a call that does nothing, even on a busy machine.
constexpr std::chrono::milliseconds kShort{250};

class ModuleFaultsTest : public ModuleRig {
protected:
    void expectReport(int status) const {
        ASSERT_EQ(reports.size(), 1U) << ::testing::PrintToString(reports);
        if (status == 5) {
            EXPECT_EQ(reports[0], "MissingQ550");
        } else {
            EXPECT_THAT(reports[0], ::testing::EndsWith(" - " + userText(status)));
        }
    }
    /// Closes the sensor; the vendor's service must be as it was.
    void close() {
        sensor.reset();
        EXPECT_EQ(control.startType, 2U);
    }
};

/// Every operation that opening, reading out and grabbing use, with the call that comes first there.
struct ReadOperation {
    const char* name;
    int call;
};
constexpr ReadOperation kFatal[] = {{"openDevice", 1},
                                    {"initDevice", 1},
                                    {"serialNumber", 1},
                                    {"setDepthEnabled", 1},
                                    {"setLeftEnabled", 1},
                                    {"setRightEnabled", 1},
                                    {"setStreamOption", 1},
                                    {"setDepthStreamMode", 1},
                                    {"setThirdEnabled", 1},
                                    {"setThirdStreamMode", 1},
                                    {"hardwareControl", 1},
                                    {"setAutoExposure", 1},
                                    {"setHardwareOption", 1},
                                    {"setEmitter", 1},
                                    {"startCapture", 1},
                                    {"grab", 1},
                                    {"grab", 3},
                                    {"rectifiedThirdIntrinsics", 1},
                                    {"rectifiedLRIntrinsics", 1},
                                    {"zIntrinsics", 1},
                                    {"zToThirdExtrinsics", 1}};
/// What fails here costs a stream, a text or the rear camera, and is no fault of the module's.
constexpr ReadOperation kHarmless[] = {{"firmwareVersionText", 1},
                                       {"softwareVersionText", 1},
                                       {"emitterControl", 1},
                                       {"depthEnabled", 1},
                                       {"leftEnabled", 1},
                                       {"rightEnabled", 1},
                                       {"thirdEnabled", 1},
                                       {"depthImage", 1},
                                       {"leftImage", 1},
                                       {"rightImage", 1},
                                       {"thirdImage", 1},
                                       {"platformCamera", 1},
                                       {"setPlatformMode", 1},
                                       {"setPlatformMode", 2},
                                       {"nonRectifiedIntrinsics", 1},
                                       {"rectifiedIntrinsics", 1},
                                       {"rectifiedIntrinsics", 2},
                                       {"rectificationRotation", 1},
                                       {"zToPlatformExtrinsics", 1},
                                       {"calibrationValid", 1}};

TEST_F(ModuleFaultsTest, EveryCallOfTheReadPathFailsWithOneReportAndACleanEnd) {
    const auto run = [this](const ReadOperation& operation, const QString& kind) {
        start(QString("%1:%2:%3").arg(operation.name).arg(operation.call).arg(kind));
        bool good = open();
        for (int i = 0; i < 4; ++i)
            good = good && sensor->grab(true);
        return good;
    };
    for (const int status : kStatuses) {
        for (const ReadOperation& operation : kFatal) {
            SCOPED_TRACE(std::string(operation.name) + " " + std::to_string(status));
            EXPECT_FALSE(run(operation, QString::number(status)));
            EXPECT_FALSE(sensor->grab(true)) << "nothing more happens";
            close();
            expectReport(status);
        }
        for (const ReadOperation& operation : kHarmless) {
            SCOPED_TRACE(std::string(operation.name) + " " + std::to_string(status));
            EXPECT_TRUE(run(operation, QString::number(status)));
            close();
            EXPECT_THAT(reports, IsEmpty());
        }
    }
    for (const ReadOperation& operation : kFatal) {
        SCOPED_TRACE(std::string(operation.name) + " gone");
        EXPECT_FALSE(run(operation, "gone"));
        close();
        expectReport(5);
    }
}

TEST_F(ModuleFaultsTest, WhatIsNotThereIsNamedOnce) {
    const struct {
        const char* faults;
        std::vector<std::string> reports;
    } cases[] = {{"thirdCamera:1:6", {}},  // only logged
                 {"calibrationValid:2:1", {"Not calibrated - " + userText(4)}},
                 {"openCamera:1:1", {"MissingPlatform"}},
                 {"setAutoFocus:1:1", {"PlatformIssue"}},
                 {"setFocus:1:1", {"PlatformIssue"}},
                 {"setupStream:3:1", {"PlatformIssue"}}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.faults);
        start(c.faults);
        EXPECT_FALSE(open());
        close();
        EXPECT_EQ(reports, c.reports);
    }
}

TEST_F(ModuleFaultsTest, ACallThatHangsIsGivenUpEverywhere) {
    dropPlatform();
    callLimit = kShort;
    for (const ReadOperation& operation : kFatal) {
        SCOPED_TRACE(operation.name);
        start(QString("%1:%2:hang").arg(operation.name).arg(operation.call));
        EXPECT_FALSE(open() && sensor->grab(true) && sensor->grab(true) && sensor->grab(true));
        close();
        EXPECT_EQ(reports, std::vector<std::string>{"The camera does not answer - An unknown error has occured."});
    }
}

/// The calls of a write-back, with the number that each has after opening and reading out.
struct WriteOperation {
    const char* name;
    int call;
    bool canLie;
};
constexpr WriteOperation kWriting[] = {{"stopCapture", 1, true},       {"rectParameters", 1, false},
                                       {"privateInterface", 1, false}, {"writeRectParameters", 1, true},
                                       {"commitCalibration", 1, true}, {"resumeDevice", 1, true},
                                       {"rectParameters", 2, false},   {"rectParameters", 3, false}};

class WriteFaultsTest : public ModuleFaultsTest {
protected:
    WriteFaultsTest() { takeBaseline(); }
    void takeBaseline() {
        factory = stored();
        EXPECT_TRUE(sensor->updateRotation(kTurned, parameters.depthToOutOfModule.rotation));
        turned = stored();
        EXPECT_NE(turned, factory);
        sensor.reset();
    }
    /// A write with this fault, from a fresh flash. Checks what must hold whatever happened, and gives the result.
    bool tryWriting(const QString& fault) {
        QFile::remove(flashFile);
        reopen(fault);
        const bool stored = sensor->updateRotation(kTurned, parameters.depthToOutOfModule.rotation);
        said = sensor->writeBack();
        close();
        firstReports = reports;
        checkFlash();
        EXPECT_EQ(stored, said.reason.isEmpty());
        if (stored) {
            EXPECT_EQ(said.flash, Flash::Written);
        } else {
            EXPECT_EQ(firstReports.size(), 1U) << ::testing::PrintToString(firstReports);
        }
        return stored;
    }
    /// Old or new, as the report says; and the backup brings the old one back.
    void checkFlash() {
        const QByteArray found = stored();
        holdsNew = found == turned;
        EXPECT_TRUE(holdsNew || found == factory) << "torn";
        if (said.flash == Flash::Written) {
            EXPECT_TRUE(holdsNew);
        }
        if (said.flash == Flash::Untouched || said.flash == Flash::Previous) {
            EXPECT_FALSE(holdsNew);
        }
        EXPECT_NE(said.flash, Flash::Other);
        if (said.backupFile.isEmpty()) return;
        ParameterBackup backup;
        QString why;
        ASSERT_TRUE(readBackup(said.backupFile, &backup, &why)) << why.toStdString();
        EXPECT_TRUE(sensor->restoreParameters(backup.block));
        EXPECT_EQ(this->stored(), factory);
    }

    QByteArray factory, turned;
    WriteBackReport said;
    std::vector<std::string> firstReports;
    bool holdsNew = false;
};

TEST_F(WriteFaultsTest, EveryCallWithEveryStatus) {
    for (const WriteOperation& operation : kWriting) {
        for (const int status : kStatuses) {
            const QString fault = QString("%1:%2:%3").arg(operation.name).arg(operation.call).arg(status);
            SCOPED_TRACE(fault.toStdString());
            EXPECT_FALSE(tryWriting(fault));
            reports = firstReports;
            expectReport(status);
            EXPECT_NE(said.flash, Flash::Unknown) << "one failure; the module can still say what its flash holds";
        }
        SCOPED_TRACE(std::string(operation.name) + " gone");
        EXPECT_FALSE(tryWriting(QString("%1:%2:gone").arg(operation.name).arg(operation.call)));
        reports = firstReports;
        expectReport(5);
    }
}

TEST_F(WriteFaultsTest, Lies) {
    for (const WriteOperation& operation : kWriting) {
        if (!operation.canLie) continue;
        SCOPED_TRACE(operation.name);
        // A module that does not resume has stored the block all the same.
        const bool stored = std::string(operation.name) == "resumeDevice";
        EXPECT_EQ(tryWriting(QString("%1:%2:lie").arg(operation.name).arg(operation.call)), stored);
    }
}

TEST_F(WriteFaultsTest, Hangs) {
    dropPlatform();
    takeBaseline();
    callLimit = kShort;
    for (const WriteOperation& operation : kWriting) {
        SCOPED_TRACE(operation.name);
        EXPECT_FALSE(tryWriting(QString("%1:%2:hang").arg(operation.name).arg(operation.call)));
        EXPECT_EQ(firstReports[0], "The camera does not answer - An unknown error has occured.");
    }
}

TEST_F(WriteFaultsTest, PowerCutsAndBitsThatArriveWrongAtEveryStep) {
    constexpr int kSteps = 34;
    for (int step = 1; step <= kSteps; ++step) {
        for (const char* kind : {"powercut", "powercut+9", "corrupt", "garble"}) {
            SCOPED_TRACE(QString("flash:%1:%2").arg(step).arg(kind).toStdString());
            const bool stored = tryWriting(QString("flash:%1:%2").arg(step).arg(kind));
            // The erasing of a bank that was never used cannot show a wrong bit that is written over afterwards.
            if (step > 1) {
                EXPECT_FALSE(stored);
                EXPECT_FALSE(holdsNew);
            }
        }
    }
    EXPECT_FALSE(tryWriting(QString("flash:%1:powercut+16").arg(kSteps)));
    EXPECT_TRUE(holdsNew) << "the header was whole when the power went";
    EXPECT_TRUE(tryWriting(QString("flash:%1:powercut").arg(kSteps + 1))) << "there are no more steps";
}

/// FIELDCAL_POWER_CUTS: how many.
TEST_F(WriteFaultsTest, PowerCutsAnywhere) {
    const int asked = qEnvironmentVariableIntValue("FIELDCAL_POWER_CUTS");
    std::mt19937 random(11);
    int foundNew = 0;
    for (int i = 0; i < (asked > 0 ? asked : 40); ++i) {
        const auto step = random() % 34 + 1;
        const QString fault = QString("flash:%1:powercut+%2").arg(step).arg(random() % (step == 1 ? 2100 : 70));
        SCOPED_TRACE(fault.toStdString());
        EXPECT_FALSE(tryWriting(fault));
        foundNew += holdsNew ? 1 : 0;
    }
    RecordProperty("holdsNew", foundNew);
}

/// The high byte of the infrared matrix' first entry: 1 becomes 1e38.
constexpr const char* kNonsense = "flash:21:garble+59";

TEST_F(WriteFaultsTest, ABlockThatArrivedAsNonsenseIsNeverLoaded) {
    EXPECT_FALSE(tryWriting(kNonsense));
    EXPECT_EQ(said.flash, Flash::Previous) << "it was put back while the module rested";

    // Twice: the module is left with the nonsense, and says so at the next start. The backup brings it back to life.
    QFile::remove(flashFile);
    reopen(QString(kNonsense) + ",flash:55:garble+59");
    EXPECT_FALSE(sensor->updateRotation(kTurned, parameters.depthToOutOfModule.rotation));
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
