#include "tests/render/Stage.h"

#include <QMetaMethod>

namespace fieldcal {
namespace {

using test::paint;
using test::plainPicture;

constexpr QRgb kRed = qRgb(255, 0, 0);
constexpr QRgb kGreen = qRgb(0, 255, 0);
constexpr QRgb kBlue = qRgb(0, 0, 255);
constexpr QRgb kWhite = qRgb(255, 255, 255);
constexpr QRgb kBlack = qRgb(0, 0, 0);

/// The window in one colour, against which drawing is visible, and an item inside an area at (40, 100).
const char* const kPage = R"(
    Item { anchors.fill: parent
        ColorImageRendererItem { objectName: "ground" } }
    Item { objectName: "area"; x: 40; y: 100; width: 320; height: 240
        ColorImageRendererItem { objectName: "picture" } }
    Rectangle { x: 300; y: 0; width: 20; height: 480; color: "#00ffff" }
)";

class ImageItems : public test::Stage {
protected:
    void SetUp() override {
        open(kPage);
        find<ColorImageRendererItem>("ground").setFrame(plainPicture(4, 4, kWhite));
    }
};

/// Four quarters: red, green / blue, black.
ImageFrame32 quarters(int width, int height) {
    ImageFrame32 picture = plainPicture(width, height, kRed);
    const QSize half(width / 2, height / 2);
    paint(&picture, {QPoint(width / 2, 0), half}, kGreen);
    paint(&picture, {QPoint(0, height / 2), half}, kBlue);
    paint(&picture, {QPoint(width / 2, height / 2), half}, kBlack);
    return picture;
}

TEST_F(ImageItems, PictureFillsItsParentWhoseYCountsFromBelow) {
    find<ColorImageRendererItem>("picture").setFrame(quarters(32, 24));
    look();
    // Height 480, the area's y 100, its height 240: rows 140 to 379 from above.
    EXPECT_EQ(seenAt(40, 140), kRed);
    EXPECT_EQ(seenAt(359, 140), kGreen);
    EXPECT_EQ(seenAt(40, 379), kBlue);
    EXPECT_EQ(seenAt(359, 379), kBlack);
    EXPECT_EQ(seenAt(39, 200), kWhite);
    EXPECT_EQ(seenAt(360, 200), kWhite);
    EXPECT_EQ(seenAt(200, 139), kWhite);
    EXPECT_EQ(seenAt(200, 380), kWhite);
    EXPECT_EQ(seenAt(310, 200), qRgb(0, 255, 255)) << "the interface stands before the picture";
    // In the centre, where the quarters meet.
    EXPECT_EQ(seenAt(190, 250), kRed);
    EXPECT_EQ(seenAt(210, 270), kBlack);
}

TEST_F(ImageItems, NothingIsClearedBeforeTheFirstPictureNorWhileHidden) {
    look();
    EXPECT_EQ(seenAt(200, 200), kWhite);
    auto& picture = find<ColorImageRendererItem>("picture");
    picture.setFrame({});
    look();
    EXPECT_EQ(seenAt(200, 200), kWhite);
    picture.setFrame(plainPicture(8, 8, kRed));
    picture.hide();
    look();
    EXPECT_EQ(seenAt(200, 200), kWhite);
    picture.show();
    look();
    EXPECT_EQ(seenAt(200, 200), kRed);
    picture.setDrawFlag(false);
    look();
    EXPECT_EQ(seenAt(200, 200), kBlack);
    EXPECT_EQ(seenAt(200, 130), kWhite);
}

TEST_F(ImageItems, FollowsNewPicturesAndGeometry) {
    auto& picture = find<ColorImageRendererItem>("picture");
    picture.setFrame(plainPicture(8, 8, kRed));
    look();
    picture.setFrame(quarters(628, 468));
    find<QQuickItem>("area").setPosition({0, 0});
    look();
    EXPECT_EQ(seenAt(0, 240), kRed);
    EXPECT_EQ(seenAt(0, 479), kBlue);
    EXPECT_EQ(seenAt(330, 140), kWhite);
}

TEST_F(ImageItems, PictureOutlivesTheGraphicsContext) {
    find<ColorImageRendererItem>("picture").setFrame(plainPicture(8, 8, kRed));
    look();
    window().setPersistentOpenGLContext(false);
    window().setPersistentSceneGraph(false);
    window().hide();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !window().isExposed(); }));
    window().show();
    waitUntilExposed();
    look();
    EXPECT_EQ(seenAt(200, 200), kRed);
}

TEST_F(ImageItems, WindowMayCloseAtAnyTime) {
    for (int i = 0; i < 8; ++i) {
        open(kPage, false);
        find<ColorImageRendererItem>("picture").setFrame(quarters(32, 24));
        for (int event = 0; event < i; ++event)
            QCoreApplication::processEvents();
        closeWindow();
    }
}

TEST_F(ImageItems, SlotsKeepTheirOrder) {
    const auto slotsOf = [](const QMetaObject& type) {
        QByteArrayList names;
        for (int i = type.methodOffset(); i < type.methodCount(); ++i)
            if (type.method(i).methodType() == QMetaMethod::Slot) names << type.method(i).methodSignature();
        return names;
    };
    const QByteArrayList ofPictures{"slot_initializeGL()", "slot_paintGL()", "slot_resizeGL()", "slot_update()",
                                    "slot_handleWindowChanged(QQuickWindow*)"};
    EXPECT_EQ(slotsOf(ColorImageRendererItem::staticMetaObject), ofPictures);
    EXPECT_EQ(slotsOf(InfraredImageRendererItem::staticMetaObject), ofPictures);
    const QByteArrayList ofOverlay{"slot_initializeGL()",     "slot_paintGL()",
                                   "slot_update()",           "slot_handleWindowChanged(QQuickWindow*)",
                                   "slot_touchDown(int,int)", "slot_touchMove(int,int)",
                                   "slot_touchUp(int,int)"};
    EXPECT_EQ(slotsOf(DepthColorOverlayRenderer::staticMetaObject), ofOverlay);
}

}  // namespace
}  // namespace fieldcal
