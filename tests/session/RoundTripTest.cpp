#include "tests/session/TestSession.h"

#include <QColorSpace>
#include <QImage>
#include <gmock/gmock.h>

#include <cmath>

namespace fieldcal::session {
namespace {

using ::testing::ElementsAre;
using RoundTrip = SessionFolder;

std::vector<std::uint8_t> bytesOf(const ImageFrame& frame) {
    return {frame.bytes(), frame.bytes() + frame.byteCount()};
}

TEST_F(RoundTrip, EveryKeyLandsInItsField) {
    EXPECT_EQ(session.module.serial, 550101U);
    EXPECT_EQ(session.module.firmware, "1.27.11");
    EXPECT_EQ(session.module.software, "2.2.0");
    EXPECT_TRUE(session.module.calibrationValid);
    EXPECT_EQ(session.infrared.width, 6);
    EXPECT_EQ(session.depth.height, 3);
    EXPECT_EQ(session.third.fy, 465);
    EXPECT_THAT(session.third.rotation, ElementsAre(1, 0, 0, 0, 0, -1, 0, 1, 0));
    EXPECT_THAT(session.third.translation, ElementsAre(25, 0.5, -0.25));
    ASSERT_TRUE(session.platform);
    EXPECT_EQ(session.platform->raw.k2, -0.09);
    EXPECT_EQ(session.platform->raw.p1, -0.001);
    EXPECT_EQ(session.platform->rectified.cx, 639);
    EXPECT_THAT(session.platform->rectification, ElementsAre(0, -1, 0, 1, 0, 0, 0, 0, 1));
    EXPECT_EQ(session.frames[0].repeat, 26);
    EXPECT_EQ(session.frames[1].repeat, 1);
    EXPECT_EQ(session.frames[0].right, "a_right.png");
    EXPECT_EQ(session.frames[1].right, "");
    EXPECT_EQ(session.frames[1].depth, "");
    EXPECT_EQ(session.grabCount(), 27);
    EXPECT_TRUE(session.truthThird && !session.truthPlatform);
}

TEST_F(RoundTrip, NumbersKeepTheirLastBit) {
    session.module.serial = 4294967295U;
    session.third.cx = std::nextafter(317.9928, 318.0);
    session.platform->raw.k3 = 1.0 / 3.0;
    session.third.translation = {0.1 + 0.2, -1e-300, 5e-324};
    const double angle = 1e-5 / 3;
    session.truthPlatform = {std::cos(angle), -std::sin(angle), 0, std::sin(angle), std::cos(angle), 0, 0, 0, 1};
    session.frames[0].timeNs = 1700000000123456789;  // more digits than a double has
    session.platform->name = "Rück \"kamera\"\n";
    std::string why;
    const std::string other = folder + "/deep/er";
    ASSERT_TRUE(writeDescription(other, session, &why)) << why;
    SessionDescription read;
    ASSERT_TRUE(readDescription(other, &read, &why)) << why;
    EXPECT_EQ(read.module.serial, session.module.serial);
    EXPECT_EQ(read.third.cx, session.third.cx);
    EXPECT_EQ(read.third.translation, session.third.translation);
    EXPECT_EQ(read.platform->raw.k3, session.platform->raw.k3);
    EXPECT_EQ(read.platform->name, session.platform->name);
    EXPECT_EQ(read.truthPlatform, session.truthPlatform);
    EXPECT_EQ(read.truthThird, session.truthThird);
    EXPECT_EQ(read.frames[0].timeNs, session.frames[0].timeNs);
    EXPECT_FALSE(read.frames[1].timeNs);
    EXPECT_EQ(read.frames[0].platform, "a_platform.nv12");
    EXPECT_EQ(read.frames[0].right, "a_right.png");
    EXPECT_EQ(read.frames[0].repeat, 26);
}

TEST_F(RoundTrip, AnAlphaChannelAndAColourProfileChangeNoValue) {
    const QString file = QString::fromStdString(path("b_third.png"));
    QImage image = QImage(file).convertToFormat(QImage::Format_ARGB32);
    image.setColorSpace(QColorSpace(QColorSpace::Primaries::AdobeRgb, 1.8F));
    ASSERT_TRUE(image.save(file));
    ASSERT_TRUE(readFile(path("b_third.png")).contains("iCCP"));
    FrameImages read;
    std::string why;
    ASSERT_TRUE(readImages(folder, session, 1, &read, &why)) << why;
    EXPECT_EQ(bytesOf(read.third), bytesOf(testImages(session, false).third));
}

TEST_F(RoundTrip, WritingRefusesWhatReadingWould) {
    std::string why;
    session.third.fx = std::nan("");
    EXPECT_FALSE(writeDescription(folder, session, &why));
    EXPECT_THAT(why, ::testing::HasSubstr("session.json: third.fx: "));
    EXPECT_EQ(readFile(path("session.json")).toStdString(), kSessionText);
    FrameImages images = testImages(session, true);
    images.platform.pop_back();
    EXPECT_FALSE(writeImages(folder, session.frames[0], images, &why));
    EXPECT_FALSE(writeImages("/proc/nowhere", session.frames[0], testImages(session, true), &why));
}

}  // namespace
}  // namespace fieldcal::session
