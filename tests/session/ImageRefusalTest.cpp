#include "tests/session/TestSession.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <gmock/gmock.h>

#include <functional>

namespace fieldcal::session {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

/// The system's own message for a file that does not exist.
std::string missingFile() {
    QFile file(QDir::tempPath() + "/no file has this name");
    return file.open(QIODevice::ReadOnly) ? "" : file.errorString().toStdString();
}

class ImageRefusal : public SessionFolder {
protected:
    void expectRefused(const std::string& file, const std::string& key, const std::string& reason) {
        std::string why;
        EXPECT_FALSE(verify(folder, &why));
        EXPECT_THAT(why, StartsWith(path(file) + ": " + key + ": "));
        EXPECT_THAT(why, HasSubstr(reason));
        EXPECT_THAT(why, Not(HasSubstr("\n")));
    }
};

void save(const std::string& path, const QImage& image) {
    ASSERT_TRUE(image.save(QString::fromStdString(path), "png"));
}

QImage grey(int width, int height, std::uint16_t value) {
    QImage image(width, height, QImage::Format_Grayscale16);
    image.fill(Qt::black);
    reinterpret_cast<std::uint16_t*>(image.scanLine(height - 1))[width - 1] = value;
    return image;
}

QImage colour(int width, int height, QImage::Format format, const QColor& fill = Qt::white) {
    QImage image(width, height, format);
    image.fill(fill);
    return image;
}

/// An image of the session, the expected message, and its replacement: another image, or its own bytes changed.
struct BadImage {
    std::string file;
    std::string key;
    std::string reason;
    QImage image;
    std::function<void(QByteArray*)> change = {};
};

const BadImage kBadImages[] = {
    {"a_infrared.png", "frames[0].infrared", "the picture is 4 x 6, not 6 x 4", grey(4, 6, 0)},
    {"a_infrared.png", "frames[0].infrared", "value 1024 above 1023 at x 5, y 3", grey(6, 4, 1024)},
    {"a_infrared.png", "frames[0].infrared", "not a 16-bit grey picture", colour(6, 4, QImage::Format_Grayscale8)},
    {"a_infrared.png", "frames[0].infrared", "not a 16-bit grey picture", colour(6, 4, QImage::Format_RGB32)},
    {"a_right.png", "frames[0].right", "the picture is 5 x 3, not 6 x 4", grey(5, 3, 0)},
    {"a_right.png", "frames[0].right", "value 1024 above 1023 at x 5, y 3", grey(6, 4, 1024)},
    {"a_right.png", "frames[0].right", "not a 16-bit grey picture", colour(6, 4, QImage::Format_Grayscale8)},
    {"a_right.png", "frames[0].right", "truncated picture", {}, [](auto* bytes) { bytes->chop(1); }},
    {"a_depth.png", "frames[0].depth", "the picture is 6 x 4, not 5 x 3", grey(6, 4, 0)},
    {"b_third.png", "frames[1].third", "not an 8-bit RGB picture", colour(8, 6, QImage::Format_RGBX64)},
    {"b_third.png", "frames[1].third", "not an 8-bit RGB picture", colour(8, 6, QImage::Format_Indexed8)},
    {"b_third.png", "frames[1].third", "transparent pixels", colour(8, 6, QImage::Format_ARGB32, QColor(1, 2, 3, 254))},
    {"b_third.png", "frames[1].third", "truncated picture", {}, [](auto* bytes) { bytes->chop(1); }},
    {"b_third.png", "frames[1].third", "truncated picture", {}, [](auto* bytes) { bytes->truncate(60); }},
    {"b_third.png", "frames[1].third", "checksum in the block at byte 8", {}, [](auto* bytes) { (*bytes)[20] = 1; }},
    {"b_third.png", "frames[1].third", "not a PNG picture", {}, [](auto* bytes) { *bytes = "\x89PNG but not really"; }},
    {"a_platform.nv12", "frames[0].platform", "1382399 bytes, not 1382400", {}, [](auto* bytes) { bytes->chop(1); }},
};

TEST_F(ImageRefusal, BadImagesAreNamedByFileKeyAndReason) {
    for (const BadImage& bad : kBadImages) {
        SCOPED_TRACE(bad.file + ": " + bad.reason);
        const QByteArray original = readFile(path(bad.file));
        QByteArray bytes = original;
        if (bad.change) bad.change(&bytes);
        if (bad.change) writeFile(path(bad.file), bytes);
        if (!bad.change) save(path(bad.file), bad.image);
        expectRefused(bad.file, bad.key, bad.reason);
        writeFile(path(bad.file), original);
    }
    std::string why;
    EXPECT_TRUE(verify(folder, &why) && checkImageFiles(folder, session, &why)) << why;
    save(path("b_third.png"), colour(8, 7, QImage::Format_RGB32));
    EXPECT_FALSE(checkImageFiles(folder, session, &why)) << "sizes are seen without decoding";
    EXPECT_THAT(why, HasSubstr("b_third.png: frames[1].third: the picture is 8 x 7, not 8 x 6"));
}

TEST_F(ImageRefusal, OnlyRegularFilesAreOpened) {
    for (const char* file : {"session.json", "a_platform.nv12", "b_third.png", "a_infrared.png", "a_right.png"}) {
        SCOPED_TRACE(file);
        const QByteArray original = readFile(path(file));
        const QString name = QString::fromStdString(path(file));
        std::string why;
        ASSERT_TRUE(QFile::remove(name));
        EXPECT_FALSE(verify(folder, &why));
        EXPECT_THAT(why, HasSubstr(missingFile()));
        ASSERT_TRUE(QDir().mkdir(name));
        EXPECT_FALSE(verify(folder, &why));
        EXPECT_THAT(why, HasSubstr("not a regular file"));
        ASSERT_TRUE(QDir().rmdir(name));
        writeFile(path(file), original);
    }
}

TEST_F(ImageRefusal, ThePlatformImageHasTheRearCamerasSize) {
    session.frames[0].platform = "p.png";
    save(path("p.png"), colour(640, 480, QImage::Format_RGB32));
    FrameImages images;
    std::string why;
    EXPECT_FALSE(readImages(folder, session, 0, &images, &why));
    EXPECT_THAT(why, HasSubstr("p.png: frames[0].platform: the picture is 640 x 480, not 1280 x 720"));
    save(path("p.png"), colour(1280, 720, QImage::Format_RGB32, Qt::red));
    ASSERT_TRUE(readImages(folder, session, 0, &images, &why)) << why;
    EXPECT_EQ(images.platform[0], 81);                             // BT.601 luma of pure red
    EXPECT_EQ(images.platform[std::size_t{1280} * 720 + 1], 240);  // its V
    EXPECT_FALSE(readImages(folder, session, 2, &images, &why));
}

}  // namespace
}  // namespace fieldcal::session
