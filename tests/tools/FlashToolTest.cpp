#include "devices/SingleInstance.h"
#include "tests/tools/SessionTool.h"

#include <QDirIterator>

namespace fieldcal::testing {
namespace {

/// Tests of the commands that write the simulated module's flash.
class FlashToolTest : public SessionToolTest {
protected:
    FlashToolTest() {
        QFile::remove(flash);
        knobs = {{"SESSION", recording()}, {"SPEED", "0"}, {"FLASH", flash}};
    }

    Result calibrateAndWrite(const QString& camera, const QString& faults = {}) {
        auto withFaults = knobs;
        withFaults["FAULTS"] = faults;
        return run({"calibrate", recording(), "--camera", camera, "--seed", "1", "--write", "--json", "-"}, withFaults);
    }
    QByteArray flashBytes() const {
        QFile file(flash);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    QByteArray info() { return run({"info"}, knobs).out; }

    const QString flash = path("flash");
    std::map<QString, QString> knobs;
};

TEST_F(FlashToolTest, WhatIsWrittenIsTheNextFactoryRotation) {
    for (const QString camera : {"third", "platform"}) {
        const Result written = calibrateAndWrite(camera);
        ASSERT_EQ(written.status, 0) << written.error.constData();
        EXPECT_TRUE(written.json()["written"].toBool());
        const Result again = run({"calibrate", recording(), "--camera", camera, "--seed", "1", "--json", "-"}, knobs);
        EXPECT_FALSE(again.json().contains("written"));
        const QJsonArray stored = again.json()["factoryRotation"].toArray();
        for (int i = 0; i < 9; ++i)
            EXPECT_NEAR(stored[i].toDouble(), written.json()["rotation"].toArray()[i].toDouble(), 1e-6);
    }
    QDirIterator history(data.path(), {"history.csv"}, QDir::Files, QDirIterator::Subdirectories);
    QFile lines(history.next());
    ASSERT_TRUE(lines.open(QIODevice::ReadOnly));
    EXPECT_EQ(lines.readAll().count(",stored\n"), 2);
}

TEST_F(FlashToolTest, ABackupBringsTheOldCalibrationBack) {
    const QByteArray before = info();
    const QString kept = path("kept");
    ASSERT_EQ(run({"backup", kept}, knobs).status, 0);
    EXPECT_EQ(run({"backup", kept}, knobs).status, 1) << "nothing is overwritten";
    ASSERT_EQ(calibrateAndWrite("third").status, 0);
    EXPECT_NE(info(), before);
    ASSERT_EQ(run({"restore", kept}, knobs).status, 0);
    EXPECT_EQ(info(), before);

    const Result dated = run({"backup"}, knobs);
    EXPECT_EQ(dated.status, 0);
    EXPECT_TRUE(dated.out.contains(".fcbackup")) << dated.out.constData();

    auto otherModule = knobs;
    otherModule["FLASH"] = path("other-flash");
    otherModule["SESSION"] =
        changed("other", [](session::SessionDescription* s, const QString&) { s->module.serial = 9; });
    const Result refused = run({"restore", kept}, otherModule);
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.error, "the backup is of module 700010, the connected one is 9\n");
    const Result noBackup = run({"restore", flash}, knobs);
    EXPECT_EQ(noBackup.error, flash.toLocal8Bit() + ": it is no backup of a parameter block\n");
}

TEST_F(FlashToolTest, AFailedWriteSaysWhatTheFlashHolds) {
    const QByteArray before = info();
    const Result failed = calibrateAndWrite("third", "commitCalibration:1:7");
    EXPECT_EQ(failed.status, 1);
    EXPECT_EQ(failed.errorLines(), 1);
    EXPECT_TRUE(failed.error.endsWith("before proceeding. (The camera's flash holds the previous calibration.)\n"))
        << failed.error.constData();
    const QJsonObject json = failed.json();
    EXPECT_TRUE(json["solved"].toBool() && !json["written"].toBool(true));
    EXPECT_EQ(json["error"].toString() + '\n', QString(failed.error));
    EXPECT_EQ(info(), before);
    // The module holds and reports the new rotation, but its images show another one.
    const Result displaced = calibrateAndWrite("third", "displaced-colour");
    EXPECT_EQ(displaced.status, 1);
    EXPECT_EQ(displaced.error,
              "The camera's images do not fit the new calibration "
              "(The camera's flash holds the previous calibration.)\n");
    EXPECT_EQ(info(), before);
}

TEST_F(FlashToolTest, ATabletThatLosesPowerLeavesTheOldOrTheNewCalibration) {
    const QByteArray before = info();
    for (const char* fault : {"writeRectParameters:1:die-after", "commitCalibration:1:die"}) {
        EXPECT_EQ(calibrateAndWrite("third", fault).status, 137) << fault;
        EXPECT_EQ(info(), before) << fault;
    }
    EXPECT_EQ(calibrateAndWrite("third", "commitCalibration:1:die-after").status, 137);
    EXPECT_NE(info(), before);
    // The last save was interrupted after the commit, and its note is still on the disk.
    const Result next = calibrateAndWrite("third");
    EXPECT_EQ(next.status, 0) << next.error.constData();
    EXPECT_TRUE(next.json()["lastSave"].toString().startsWith("The last calibration is stored in the camera"));
    EXPECT_FALSE(calibrateAndWrite("third").json().contains("lastSave"));
}

TEST_F(FlashToolTest, NothingIsWrittenBesideAProgramThatUsesTheCamera) {
    const QByteArray before = info();
    const auto running = std::make_unique<SingleInstance>();
    ASSERT_TRUE(running->isFirst());
    const Result refused = calibrateAndWrite("third");
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.error, "Another program uses the camera. Close the Field Calibrator and try again.\n");
    EXPECT_EQ(info(), before);
}

}  // namespace
}  // namespace fieldcal::testing
