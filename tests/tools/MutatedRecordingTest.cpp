#include "tests/session/BadMeanings.h"
#include "tests/simulator/TestModule.h"

namespace fieldcal::session {
namespace {

/// Enough for every frame of the short recording.
constexpr int kGrabs = 30;

/// Recordings played by the camera library, as whatever stands above it would.
class MutatedRecording : public ModuleTest {
protected:
    MutatedRecording() { writeOddPictures(QString::fromStdString(folder)); }

    /// Opens the module and grabs; every picture is looked at. The last status when something failed.
    std::int32_t play() const {
        const std::shared_ptr<KXDevice> device = create();
        const bool played = device->openDevice(-1) && device->initDevice() && setUpStreams(device.get()) &&
                            device->startCapture() && grabAll(*device);
        return played ? KX_STATUS_OK : device->lastStatus();
    }

private:
    static bool grabAll(KXDevice& device) {
        KXThirdCamera& third = *device.thirdCamera();
        for (int i = 0; i < kGrabs; ++i) {
            if (!device.grab(true)) return false;
            EXPECT_LE(device.leftImage()[device.lrWidth() * device.lrHeight() - 1], 1023);
            const std::uint16_t depth = device.depthImage()[device.depthWidth() * device.depthHeight() - 1];
            EXPECT_TRUE(depth == 0 || depth == 9521) << depth;
            EXPECT_EQ(third.thirdImage()[third.thirdWidth() * third.thirdHeight() * 4 - 1], 255);
        }
        return true;
    }
};

TEST_F(MutatedRecording, IsPlayedByTheLibraryOrRefusedWithOneLine) {
    const QByteArray valid = QByteArray::fromStdString(kSessionText);
    BadMeanings meanings(valid, 5);
    for (int i = 0; i < 1000; ++i) {
        const ChangedMeaning meaning = meanings.next();
        SCOPED_TRACE(meaning.what.toStdString());
        writeFile(path("session.json"), meaning.text);
        const bool canBePlayed = verify(folder, &why);
        ::testing::internal::CaptureStderr();
        const std::int32_t status = play();
        const std::string line = ::testing::internal::GetCapturedStderr();
        EXPECT_EQ(status, canBePlayed ? KX_STATUS_OK : KX_STATUS_DEVICE_ERROR);
        EXPECT_EQ(line, canBePlayed ? "" : "KXAPI: " + why + "\n");
        if (i % 50 != 0) continue;
        writeFile(path("session.json"), valid);
        EXPECT_EQ(play(), KX_STATUS_OK);
    }
}

}  // namespace
}  // namespace fieldcal::session
