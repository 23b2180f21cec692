#include "render/TutorialPictures.h"
#include "render/TutorialSwing.h"
#include "tests/devices/LogCapture.h"
#include "tests/render/Stage.h"

#include <QTemporaryDir>

namespace fieldcal {
namespace {

using test::plainPicture;
using testing::LogCapture;

constexpr QRgb kGrey = qRgb(100, 100, 100);
constexpr QRgb kMagenta = qRgb(255, 0, 255);

ImageFrame16 depthOf(std::uint32_t width, std::uint32_t height, std::uint16_t first) {
    ImageFrame16 depth;
    depth.resize(width, height);
    for (std::size_t i = 0; i < std::size_t{width} * height; ++i)
        depth.pixels()[i] = static_cast<std::uint16_t>(first + i);
    return depth;
}

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class Tutorial : public test::Stage {
protected:
    QString path(const char* name) const { return folder_.filePath(name); }
    TutorialFiles files() const { return {path("d.bin"), path("c.bin"), path("hint.png")}; }

    QTemporaryDir folder_;
};

TEST_F(Tutorial, FilesHaveWidthHeightAndPixelsInLittleEndian) {
    ASSERT_TRUE(writeTutorialDepth(path("d.bin"), depthOf(3, 2, 0x0102)));
    EXPECT_EQ(contentOf(path("d.bin")).toHex(), "0300000002000000020103010401050106010701");
    ImageFrame32 colour = plainPicture(2, 1, qRgb(1, 2, 3));
    test::paint(&colour, {1, 0, 1, 1}, qRgb(250, 251, 252));
    ASSERT_TRUE(writeTutorialColour(path("c.bin"), colour));
    EXPECT_EQ(contentOf(path("c.bin")).toHex(), "0200000001000000010203fafbfc");

    const TutorialPictures read = loadTutorialPictures(files());
    EXPECT_EQ(read.depth.width(), 3U);
    EXPECT_EQ(read.depth.pixels()[5], 0x0107);
    EXPECT_EQ(read.colour.height(), 1U);
    EXPECT_TRUE(std::equal(colour.bytes(), colour.bytes() + 8, read.colour.bytes()));
    EXPECT_FALSE(writeTutorialDepth(path("missing/d.bin"), depthOf(1, 1, 0)));
}

TEST_F(Tutorial, MissingAndBrokenFilesStayEmptyAndAreLogged) {
    const LogCapture log;
    EXPECT_FALSE(loadTutorialPictures(files()).complete());
    EXPECT_TRUE(LogCapture::has("CRITICAL Could not open Depth Image to use inside of the refinement tutorial."));
    EXPECT_TRUE(LogCapture::has("CRITICAL Could not open Color Image to use inside of the refinement tutorial."));
    for (const char* hex : {"", "0300", "0000000002000000", "ffffffff02000000", "ffffff7fffffff7f0000",
                            "03000000020000000201030104010501060107"}) {
        QFile file(path("d.bin"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray::fromHex(hex));
        file.close();
        LogCapture::lines().clear();
        EXPECT_TRUE(loadTutorialPictures(files()).depth.empty()) << hex;
        EXPECT_TRUE(LogCapture::has("CRITICAL " + path("d.bin").toStdString() +
                                    " is not a picture of the refinement tutorial."));
    }
}

TEST_F(Tutorial, ShowsStoredPicturesThatSwingWithTheHint) {
    ImageFrame16 depth = depthOf(160, 120, 0);
    std::fill_n(depth.pixels(), 160 * 120, std::uint16_t{0});
    depth.pixels()[60 * 160 + 80] = 2500;
    ASSERT_TRUE(writeTutorialDepth(path("d.bin"), depth));
    ASSERT_TRUE(writeTutorialColour(path("c.bin"), plainPicture(160, 120, kGrey)));
    QImage hint(30, 40, QImage::Format_ARGB32);
    hint.fill(kMagenta);
    ASSERT_TRUE(hint.save(path("hint.png")));
    open(R"(Item { width: 640; height: 480; DepthColorOverlayRenderer { objectName: "overlay" } })");
    auto& overlay = find<DepthColorOverlayRenderer>("overlay");
    overlay.setTutorialFiles(files());
    overlay.show();
    overlay.setTutorialMode(true);
    overlay.setFrames(plainPicture(8, 8, qRgb(0, 255, 0)), depthOf(8, 8, 1));

    const auto isHint = [](QRgb colour) { return colour == kMagenta; };
    const auto isDepth = [](QRgb colour) { return colour != kGrey && colour != kMagenta; };
    look();
    const QPointF hintAtRest = centreOf(isHint);
    const QPointF depthAtRest = centreOf(isDepth);
    // Half a pixel off the depth camera's axis; the colour camera is 25 mm beside it.
    const double colourFocal = 0.73 * 640;
    EXPECT_NEAR(depthAtRest.x(), 320 + colourFocal * (0.5 / (0.94 * 160) + 0.025 / 2.5), 1);
    EXPECT_NEAR(depthAtRest.y(), 240 + colourFocal * 0.5 / (0.94 * 160), 1);
    EXPECT_NEAR(hintAtRest.x(), 320, 1);

    const int quarter = 22;  // nearly a quarter of the swing
    EXPECT_NEAR(swingAngleDeg(quarter), kSwingAmplitudeDeg, 0.001);
    overlay.setDemonstrationRotation(swingRotation(quarter));
    look();
    EXPECT_NEAR((centreOf(isHint) - hintAtRest).x(), 320 * kSwingAmplitudeDeg / 4, 1);
    EXPECT_NEAR((centreOf(isDepth) - depthAtRest).x(), colourFocal * std::tan(kSwingAmplitudeDeg / 57.29578), 1);

    overlay.setTutorialMode(false);
    overlay.setFrames(plainPicture(8, 8, qRgb(0, 255, 0)), depthOf(8, 8, 1));
    look();
    EXPECT_EQ(seenAt(320, 240), qRgb(0, 255, 0));
    EXPECT_EQ(centreOf(isDepth), QPointF(320, 240)) << "live, and without cameras nothing but the picture";
}

}  // namespace
}  // namespace fieldcal
