#include "tests/session/BadMeanings.h"
#include "tests/simulator/TestModule.h"

#include <cctype>

namespace fieldcal::session {
namespace {

/// Enough for every frame of the short recording.
constexpr int kGrabs = 30;

/// "file: key: reason", one line, about a file in `folder`.
bool namesFileAndKey(const std::string& why, const std::string& folder) {
    if (why.compare(0, folder.size() + 1, folder + "/") != 0 || why.find('\n') != std::string::npos) return false;
    const std::size_t key = why.find(": ", folder.size()) + 2;
    const std::size_t reason = why.find(": ", key);
    if (reason == std::string::npos || reason == key || reason + 2 == why.size()) return false;
    return std::all_of(why.begin() + static_cast<long>(key), why.begin() + static_cast<long>(reason), [](char c) {
        return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '.' || c == '[' || c == ']';
    });
}

/// A key that stands twice is JSON, too; Qt's parser loses memory over it.
bool isJson(const QByteArray& text, const std::string& why) {
    QJsonParseError error{};
    if (why.find("the key stands twice") == std::string::npos) QJsonDocument::fromJson(text, &error);
    return error.error == QJsonParseError::NoError;
}

/// Changed recordings, as they are checked, and as the camera library plays them for whatever stands above it.
class BadMeaning : public ModuleTest {
protected:
    BadMeaning() { writeOddPictures(QString::fromStdString(folder)); }

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
            const std::uint16_t* right = device.rightImage();
            EXPECT_TRUE(right == nullptr || right[device.lrWidth() * device.lrHeight() - 1] <= 1023);
            const std::uint16_t depth = device.depthImage()[device.depthWidth() * device.depthHeight() - 1];
            EXPECT_TRUE(depth == 0 || depth == 9521) << depth;
            EXPECT_EQ(third.thirdImage()[third.thirdWidth() * third.thirdHeight() * 4 - 1], 255);
        }
        return true;
    }
};

TEST_F(BadMeaning, ChangedRecordingsAreRefusedByFileAndKeyOrPlayed) {
    const QByteArray valid = QByteArray::fromStdString(kSessionText);
    BadMeanings meanings(valid, 4);
    int bad = 0, playable = 0;
    for (int i = 0; i < 2000; ++i) {
        const ChangedMeaning meaning = meanings.next();
        SCOPED_TRACE(meaning.what.toStdString());
        writeFile(path("session.json"), meaning.text);
        const bool plays = verify(folder, &why);
        EXPECT_TRUE(plays ? !meaning.isBad : namesFileAndKey(why, folder)) << why;
        playable += plays ? 1 : 0;
        bad += !plays && isJson(meaning.text, why) ? 1 : 0;
        ::testing::internal::CaptureStderr();
        EXPECT_EQ(play(), plays ? KX_STATUS_OK : KX_STATUS_DEVICE_ERROR);
        EXPECT_EQ(::testing::internal::GetCapturedStderr(), plays ? "" : "KXAPI: " + why + "\n");
        if (i % 50 != 0) continue;
        writeFile(path("session.json"), valid);
        EXPECT_EQ(play(), KX_STATUS_OK);
    }
    EXPECT_GT(bad, 2000 * 2 / 3);
    EXPECT_GT(playable, 50);
}

}  // namespace
}  // namespace fieldcal::session
