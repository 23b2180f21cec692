#include "tests/tools/SessionTool.h"

namespace fieldcal::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

std::vector<std::uint8_t> bytesOf(const ImageFrame& frame) {
    return {frame.bytes(), frame.bytes() + frame.byteCount()};
}

/// The images of one grab; `platform` is the newest image at that time.
struct Delivered {
    std::vector<std::uint8_t> infrared, right, depth, third, platform;
    bool operator==(const Delivered& other) const {
        return infrared == other.infrared && right == other.right && depth == other.depth && third == other.third &&
               platform == other.platform;
    }
};

/// Plays a recording cyclically.
std::vector<Delivered> play(const QString& folder, int grabs) {
    session::SessionDescription session;
    std::string why;
    EXPECT_TRUE(session::readDescription(folder.toStdString(), &session, &why)) << why;
    std::vector<Delivered> out;
    Delivered now;
    for (std::size_t i = 0; static_cast<int>(out.size()) < grabs; ++i) {
        const std::size_t index = i % session.frames.size();
        session::FrameImages images;
        EXPECT_TRUE(session::readImages(folder.toStdString(), session, index, &images, &why)) << why;
        now.infrared = bytesOf(images.infrared);
        now.right = bytesOf(images.right);
        now.third = bytesOf(images.third);
        now.depth = bytesOf(images.depth);
        // A missing depth image equals one without depth.
        now.depth.resize(std::size_t{2} * session.depth.width * session.depth.height);
        if (!images.platform.empty()) now.platform = images.platform;
        out.insert(out.end(), session.frames[index].repeat, now);
    }
    out.resize(grabs);
    return out;
}

class RecordTest : public SessionToolTest {
protected:
    /// The name of a folder that does not exist.
    static QString target() {
        QDir(path("recorded")).removeRecursively();
        return path("recorded");
    }
    static Result record(const QString& from, const QString& to, int frames, const QString& faults = {}) {
        return run({"record", to, "--frames", QString::number(frames)},
                   {{"SESSION", from}, {"SPEED", "0"}, {"FAULTS", faults}});
    }
};

TEST_F(RecordTest, EveryGrabIsPlayedBackAsItWasDelivered) {
    // Frame 1 lacks the rear image, frame 2 depth, frame 3 is frame 2 again, and frame 4 the same without the right
    // image.
    const QString source = changed("varied", [](session::SessionDescription* session, const QString&) {
        const int repeats[] = {3, 1, 2, 2, 1};
        session->frames[1].platform.clear();
        session->frames[2].depth.clear();
        session->frames[3] = session->frames[4] = session->frames[2];
        session->frames[4].right.clear();
        for (std::size_t i = 0; i < 5; ++i)
            session->frames[i].repeat = repeats[i];
    });
    const QString copy = target();
    const int grabs = 3 + 1 + 2 + 2 + 1 + 2;  // continues into the second cycle
    const Result made = record(source, copy, grabs);
    ASSERT_EQ(made.status, 0) << made.error.constData();
    EXPECT_THAT(made.out.toStdString(), HasSubstr("recorded 11 frame sets as 5 frames, with the rear camera"));

    std::vector<int> repeats;
    for (const session::FrameEntry& frame : described(copy).frames)
        repeats.push_back(frame.repeat);
    EXPECT_THAT(repeats, ElementsAre(3, 1, 4, 1, 2));
    const std::vector<Delivered> before = play(source, grabs);
    const std::vector<Delivered> after = play(copy, grabs);
    for (int i = 0; i < grabs; ++i)
        EXPECT_TRUE(before[i] == after[i]) << "grab " << i;
}

/// The description as the library reports it: with 32-bit numbers, without frames, and without data that a module does
/// not have.
QJsonValue asReported(const QJsonValue& value) {
    if (value.isDouble()) return static_cast<double>(static_cast<float>(value.toDouble()));
    QJsonArray array = value.toArray();
    for (int i = 0; i < array.size(); ++i)
        array[i] = asReported(array.at(i));
    if (value.isArray()) return array;
    QJsonObject object = value.toObject();
    for (const QString& key : object.keys())
        object[key] = asReported(object.value(key));
    for (const char* omitted : {"frames", "truth"})
        object.remove(omitted);
    return value.isObject() ? QJsonValue(object) : value;
}

TEST_F(RecordTest, EveryParameterIsTheLibrarys) {
    const QString copy = target();
    const Result made = record(recording(), copy, 130);
    ASSERT_EQ(made.status, 0) << made.error.constData();
    EXPECT_TRUE(made.out.startsWith("50 of 130 frame sets\n100 of 130 frame sets\nrecorded 130 ")) << made.out.data();
    const auto description = [](const QString& folder) {
        QFile file(folder + "/session.json");
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return QJsonDocument(asReported(QJsonDocument::fromJson(file.readAll()).object()).toObject()).toJson();
    };
    EXPECT_EQ(description(copy).toStdString(), description(recording()).toStdString());
    const session::SessionDescription before = described(recording()), after = described(copy);
    EXPECT_EQ(before.platform->rectification, after.platform->rectification) << "which has 64 bits";
    EXPECT_FALSE(after.truthThird || after.truthPlatform) << "no module knows it";
}

TEST_F(RecordTest, ATabletWithoutRearCameraOrCalibrationOfItIsRecordedWithout) {
    const QString uncalibrated = changed("uncalibrated", [](session::SessionDescription* session, const QString&) {
        session->platform.reset();
        session->truthPlatform.reset();
        for (session::FrameEntry& frame : session->frames)
            frame.platform.clear();
    });
    for (const auto& [source, faults] : {std::pair{uncalibrated, ""}, {recording(), "openCamera:1:1"}}) {
        const QString copy = target();
        const Result made = record(source, copy, 2, faults);
        ASSERT_EQ(made.status, 0) << made.error.constData();
        EXPECT_FALSE(described(copy).platform);
        EXPECT_EQ(QDir(copy).entryList(QDir::Files).size(), 5) << "description, infrared, right, third, depth";
    }
}

TEST_F(RecordTest, WhatFailsLeavesNothingAndNothingIsOverwritten) {
    for (const char* faults :
         {"grab:3:6", "zToThirdExtrinsics:1:1", "nonRectifiedIntrinsics:2:1", "openDevice:1:5", "leftImage:2:1"}) {
        const QString nothing = target();
        const Result failed = record(recording(), nothing, 5, faults);
        EXPECT_EQ(failed.status, 1) << faults;
        EXPECT_EQ(failed.errorLines(), 1) << failed.error.constData();
        EXPECT_FALSE(QDir(nothing).exists()) << faults;
    }
    const QString copy = target();
    ASSERT_EQ(record(recording(), copy, 1).status, 0);
    const QStringList files = QDir(copy).entryList(QDir::Files);
    const Result again = record(recording(), copy, 40);
    EXPECT_EQ(again.status, 1);
    EXPECT_EQ(again.errorLines(), 1) << again.error.constData();
    EXPECT_EQ(QDir(copy).entryList(QDir::Files), files);
    EXPECT_EQ(described(copy).grabCount(), 1);
}

TEST_F(RecordTest, InfoDescribesTheConnectedModule) {
    const QString turned = changed("turned", [](session::SessionDescription* session, const QString&) {
        const double c = 0.8660254037844387;
        session->third.rotation = {1, 0, 0, 0, c, -0.5, 0, 0.5, c};  // 30 degrees about X
        session->platform->rotation = {c, 0, 0.5, 0, 1, 0, -0.5, 0, c};
        session->module.firmware = "9.8.7";
    });
    const Result info = run({"info"}, {{"SESSION", turned}});
    ASSERT_EQ(info.status, 0) << info.error.constData();
    const std::string text = info.out.toStdString();
    EXPECT_THAT(text, HasSubstr("firmware 9.8.7, software 2.2.0, calibration valid\n"));
    EXPECT_THAT(text, HasSubstr("from depth: 30.0000 0.0000 0.0000 degrees"));
    EXPECT_THAT(text, HasSubstr("from depth: 0.0000 30.0000 0.0000 degrees"));
    EXPECT_THAT(text, HasSubstr("platform     1280 x 720"));

    const QString invalid = changed("invalid module", [](session::SessionDescription* session, const QString&) {
        session->module.calibrationValid = false;
    });
    const Result withoutCalibration = run({"info"}, {{"SESSION", invalid}});
    EXPECT_EQ(withoutCalibration.status, 0);
    EXPECT_THAT(withoutCalibration.out.toStdString(), HasSubstr("calibration INVALID"));

    const Result none = run({"info"}, {{"FAULTS", "openDevice:1:5"}});
    EXPECT_EQ(none.status, 1);
    EXPECT_EQ(none.error, "The depth camera was not found.\n");
}

}  // namespace
}  // namespace fieldcal::testing
