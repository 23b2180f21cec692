#include "devices/CameraParameterReader.h"
#include "tests/devices/SensorFixture.h"
#include "workflow/SaveNote.h"
#include "workflow/Saving.h"

#include <QFile>

namespace fieldcal::testing {
namespace {

constexpr Rotation kAboutY{0, 0, 1, 0, 1, 0, -1, 0, 0};

class SavingTest : public SensorTest {
protected:
    SavingTest() {
        EXPECT_TRUE(sensor->open(applicationSettings()) && readCameraParameters(*sensor, &parameters, [] {}));
        records.setFactory(parameters.depthToInModule.rotation, parameters.depthToOutOfModule.rotation);
        device->onWrite = [this] { noteAtWrite = readSaveNote(data.path()); };
    }
    void accept() {
        records.setEstimated(ColourCamera::InModule, kAboutY, [] { return true; });
        EXPECT_TRUE(records.accept(ColourCamera::InModule, kAboutY));
    }

    CameraParameters parameters;
    CalibrationRecords records;
    std::optional<SaveNote> noteAtWrite;
};

TEST_F(SavingTest, ANoteStandsOnDiskWhileTheOutcomeIsOpen) {
    accept();
    EXPECT_TRUE(storeCalibration(*sensor, records, data.path()));
    ASSERT_TRUE(noteAtWrite) << "whatever ends the program here must be known at the next start";
    EXPECT_EQ(noteAtWrite->serial, 550101U);
    EXPECT_FALSE(readSaveNote(data.path()));

    device->ignoreWrites = true;
    records.accept(ColourCamera::InModule, parameters.depthToInModule.rotation);
    EXPECT_FALSE(storeCalibration(*sensor, records, data.path()));
    EXPECT_EQ(readSaveNote(data.path())->reason, sensor->writeBack().reason);
    EXPECT_TRUE(LogCapture::has("Failed to store calibration information to flash."));
}

TEST_F(SavingTest, WithoutAnythingAcceptedBothRecordsArePassedAndNothingIsNoted) {
    EXPECT_TRUE(storeCalibration(*sensor, records, data.path()));
    EXPECT_EQ(device->calls.back(), "rectParameters()");
    EXPECT_FALSE(noteAtWrite);
}

TEST_F(SavingTest, ANoteThatCannotBeReadStillCounts) {
    QFile file(data.filePath("save-note.json"));
    for (const char* text : {"", "{", "[1]", R"({"version": 2})", R"({"version": 1, "serial": -5e99, "begun": 7})"}) {
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        file.close();
        EXPECT_TRUE(readSaveNote(data.path())) << text;
    }
    EXPECT_TRUE(removeSaveNote(data.path()));
    EXPECT_FALSE(readSaveNote(data.path()));
}

}  // namespace
}  // namespace fieldcal::testing
