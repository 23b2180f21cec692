#include "engine/CalibratorInterface.h"
#include "engine/Rotation.h"
#include "render/DepthColourMap.h"
#include "render/DepthRange.h"
#include "tests/render/Stage.h"

#include <QSignalSpy>

#include <cmath>

namespace fieldcal {
namespace {

using test::plainPicture;

constexpr QRgb kGrey = qRgb(100, 100, 100);
constexpr double kPixel = 1;  ///< tolerance of a centre on the screen: points are drawn at whole pixels

/// All numbers are different, so that none can be confused. The colour image is scaled unequally in the two directions.
CameraParameters testCameras() {
    CameraParameters cameras;
    cameras.depth = {160, 120, 130, 132, 78, 61};
    cameras.infrared = cameras.depth;
    cameras.colour[ColourCamera::Third].model = {200, 150, 126, 128, 103, 71};
    cameras.colour[ColourCamera::Third].scaling = {1.03F, 0.98F};
    cameras.colour[ColourCamera::Third].fromDepth.translation = {0.1F, -0.05F, 0.02F};
    return cameras;
}

ImageFrame16 emptyDepth() {
    ImageFrame16 depth;
    depth.resize(160, 120);
    std::fill_n(depth.pixels(), 160 * 120, std::uint16_t{0});
    return depth;
}

void fill(ImageFrame16* depth, const QRect& area, int millimetres) {
    for (int y = area.top(); y <= area.bottom(); ++y)
        std::fill_n(depth->pixels() + y * 160 + area.left(), area.width(), static_cast<std::uint16_t>(millimetres));
}

ImageFrame16 squareBeforeWall(const QRect& square) {
    ImageFrame16 depth = emptyDepth();
    fill(&depth, {0, 0, 160, 120}, 8000);
    fill(&depth, square, 1000);
    return depth;
}

/// Returns the screen position of the centre of a depth area in a window of 640 x 480 that the image fills.
QPointF expectedCentre(const CameraParameters& cameras, const Eigen::Matrix3d& rotation, const QRect& area,
                       int millimetres) {
    const CameraModel& from = cameras.depth;
    const CameraModel& to = cameras.colour[ColourCamera::Third].model;
    const auto& shift = cameras.colour[ColourCamera::Third].fromDepth.translation;
    const double z = 0.001 * millimetres;
    const Eigen::Vector3d point((area.left() + (area.width() - 1) / 2.0 - from.cx) / from.fx * z,
                                (area.top() + (area.height() - 1) / 2.0 - from.cy) / from.fy * z, z);
    const Eigen::Vector3d seen = rotation * point + Eigen::Vector3d(shift[0], shift[1], shift[2]);
    const double modelX = to.fx * seen.x() / seen.z() + to.cx;
    const double modelY = to.fy * seen.y() / seen.z() + to.cy;
    const double deliveredX = (modelX + 0.5) / cameras.colour[ColourCamera::Third].scaling.x;
    const double deliveredY = (modelY + 0.5) / cameras.colour[ColourCamera::Third].scaling.y;
    return {deliveredX * 640 / to.width, deliveredY * 480 / to.height};
}

/// The range of the colours when all depth in view is the same.
DepthRange rangeOf(int millimetres) {
    std::vector<std::uint16_t> depths{static_cast<std::uint16_t>(millimetres)};
    return percentileRange(&depths);
}

/// Returns the colour of depth under the grey image.
QRgb overGrey(int millimetres, const DepthRange& range = {}) {
    const auto colour = DepthColours(range)(static_cast<std::uint16_t>(millimetres));
    const auto mixed = [](int value) { return static_cast<int>(std::lround(0.6 * value + 0.4 * 100)); };
    return qRgb(mixed(colour[0]), mixed(colour[1]), mixed(colour[2]));
}

bool alike(QRgb a, QRgb b) {
    return std::abs(qRed(a) - qRed(b)) <= 2 && std::abs(qGreen(a) - qGreen(b)) <= 2 &&
           std::abs(qBlue(a) - qBlue(b)) <= 2;
}

void expectNear(const QPointF& seen, const QPointF& expected, double tolerance = kPixel) {
    EXPECT_NEAR(seen.x(), expected.x(), tolerance);
    EXPECT_NEAR(seen.y(), expected.y(), tolerance);
}

class Overlay : public test::Stage {
protected:
    void SetUp() override {
        open(R"(Item { objectName: "area"; width: 640; height: 480
                    DepthColorOverlayRenderer { objectName: "overlay" } })");
        overlay_ = &find<DepthColorOverlayRenderer>("overlay");
        overlay_->show();
        engine_.setCameraParameters(false);
        overlay_->setCalibrator(&engine_);
    }

    void calibrate(const Eigen::Vector3d& anglesDeg) {
        context_.state->setValues(static_cast<float>(anglesDeg.x()), static_cast<float>(anglesDeg.y()),
                                  static_cast<float>(anglesDeg.z()));
        std::array<float, 9> rotation{};
        engine_.getRotationMatrix(rotation.data());
        overlay_->setCalibration(overlayCalibration(cameras_, ColourCamera::Third, rotation));
    }

    static Eigen::Matrix3d rotation(const Eigen::Vector3d& anglesDeg) {
        return vq::rotationFromAngles(anglesDeg / vq::kDegreesPerRadian);
    }

    void showArea(const QRect& area, int millimetres) {
        ImageFrame16 depth = emptyDepth();
        fill(&depth, area, millimetres);
        overlay_->setFrames(plainPicture(200, 150, kGrey), depth);
    }

    QPointF centreOfDepth() {
        look();
        return centreOf([](QRgb colour) { return !alike(colour, kGrey); });
    }

    float angleDeg(int axis) const { return context_.state->item(axis).value; }

    CameraParameters cameras_ = testCameras();
    vq::RegistrationContext context_;
    vq::CalibratorInterface engine_{context_, cameras_};
    DepthColorOverlayRenderer* overlay_ = nullptr;
};

TEST_F(Overlay, DepthIsSeenWhereTheCamerasSayAndOnlyThere) {
    const QRect area(40, 30, 9, 7);
    showArea(area, 2000);
    look();
    EXPECT_EQ(seenAt(320, 240), kGrey) << "without cameras the picture alone";
    EXPECT_EQ(centreOf([](QRgb) { return true; }), QPointF(320, 240)) << "nothing was found to be different";

    const Eigen::Vector3d anglesDeg(1.5, -2, 2.5);
    calibrate(anglesDeg);
    const QPointF expected = expectedCentre(cameras_, rotation(anglesDeg), area, 2000);
    expectNear(centreOfDepth(), expected);
    EXPECT_TRUE(alike(seenAt(static_cast<int>(expected.x()), static_cast<int>(expected.y())), overGrey(2000)));

    // Nine by seven depth pixels, each somewhat more than three on the screen.
    EXPECT_TRUE(alike(seenAt(static_cast<int>(expected.x()) - 12, static_cast<int>(expected.y())), overGrey(2000)));
    EXPECT_EQ(seenAt(static_cast<int>(expected.x()) - 24, static_cast<int>(expected.y())), kGrey);
}

TEST_F(Overlay, WholeFrameOfDepthHasNoHoles) {
    calibrate({1, -1, 3});
    showArea({0, 0, 160, 120}, 5000);
    look();
    int holes = 0;
    for (int y = 60; y < 380; ++y)
        for (int x = 120; x < 540; ++x)
            if (!alike(seenAt(x, y), overGrey(5000, rangeOf(5000)))) ++holes;
    EXPECT_EQ(holes, 0);
}

TEST_F(Overlay, NearDepthHidesWhatIsBehindIt) {
    const QRect square(70, 50, 20, 20);
    calibrate({0, 0, 0});
    overlay_->setFrames(plainPicture(200, 150, kGrey), squareBeforeWall(square));
    look();
    const Eigen::Matrix3d none = Eigen::Matrix3d::Identity();
    const DepthRange range = rangeOf(8000);
    // From the colour camera, the square hides a part of the wall, and another part is visible that the depth camera
    // did not see.
    const auto isNear = [&](QRgb colour) { return alike(colour, overGrey(1000, range)); };
    expectNear(centreOf(isNear), expectedCentre(cameras_, none, square, 1000));
    const auto edge = [&](const QRect& strip, int millimetres) {
        return expectedCentre(cameras_, none, strip, millimetres);
    };
    for (const int corner : {2, 17}) {  // inside of the line around the square
        const QPointF inside = edge({square.left() + corner, square.top() + corner, 1, 1}, 1000);
        EXPECT_TRUE(isNear(seenAt(static_cast<int>(inside.x()), static_cast<int>(inside.y())))) << corner;
    }
    const QPointF bared = edge({square.left() + 4, square.top() + 10, 1, 1}, 8000);
    EXPECT_EQ(seenAt(static_cast<int>(bared.x()), static_cast<int>(bared.y())), kGrey);
    const QPointF wall = edge({square.left() - 20, square.top() + 10, 1, 1}, 8000);
    EXPECT_TRUE(alike(seenAt(static_cast<int>(wall.x()), static_cast<int>(wall.y())), overGrey(8000, range)));
}

TEST_F(Overlay, DragTurnsTheOverlayUnderTheFinger) {
    const QRect area(70, 60, 5, 5);
    const auto expectDepthAt = [&](const Eigen::Vector3d& anglesDeg) {
        expectNear(centreOfDepth(), expectedCentre(cameras_, rotation(anglesDeg), area, 6000));
    };
    calibrate({0.5, 0, -0.5});
    showArea(area, 6000);
    expectDepthAt({0.5, 0, -0.5});
    QSignalSpy changes(overlay_, &DepthColorOverlayRenderer::correctionDegChanged);
    overlay_->slot_touchDown(100, 50);
    overlay_->slot_touchMove(260, 400);
    EXPECT_FLOAT_EQ(angleDeg(1), 2.0F) << "a quarter of the width";
    EXPECT_NEAR(overlay_->correctionDeg(), 2.0, 1e-5);
    overlay_->slot_touchMove(-1000, 50);
    expectDepthAt({0.5, -4, -0.5});
    overlay_->slot_touchUp(-1000, 50);
    overlay_->slot_touchMove(100, 50);
    EXPECT_EQ(angleDeg(1), -4.0F) << "a move without touch";
    QCoreApplication::processEvents();
    EXPECT_GT(changes.count(), 0);

    // Switches to the stored calibration and back.
    overlay_->setStoredShown(true);
    expectDepthAt({0, 0, 0});
    const QPointF before = centreOfDepth();
    showArea({120, 90, 9, 7}, 2000);
    expectNear(centreOfDepth(), before, 0);  // the image is frozen
    overlay_->setStoredShown(false);
    expectDepthAt({0.5, -4, -0.5});

    // There is no engine.
    overlay_->setCalibrator(nullptr);
    overlay_->slot_touchDown(0, 0);
    overlay_->slot_touchMove(50, 0);
    overlay_->slot_touchUp(50, 0);
    EXPECT_EQ(angleDeg(1), -4.0F);
}

TEST_F(Overlay, TooLittleDepthIsSaid) {
    QSignalSpy changes(overlay_, &DepthColorOverlayRenderer::depthSparseChanged);
    const auto share = [this](int percent) {
        showArea({0, 0, 160, 120 * percent / 100}, 3000);
        QCoreApplication::processEvents();
        return overlay_->depthSparse();
    };
    calibrate({0, 0, 0});
    EXPECT_FALSE(share(50));
    EXPECT_TRUE(share(3));
    EXPECT_TRUE(share(8)) << "does not flicker about one value";
    EXPECT_FALSE(share(20));
    EXPECT_FALSE(share(8));
    EXPECT_EQ(changes.count(), 2);
    overlay_->setClearArea({0, 0.6, 1, 0.3});
    EXPECT_TRUE(share(50)) << "where panels cover it, depth does not count";
}

/// The ground as a camera sees it that is 1.4 m above it, as far as `metres`.
void fillGround(ImageFrame16* depth, const CameraModel& camera, double metres) {
    for (int y = 0; y < camera.height; ++y) {
        const double z = 1.4 * camera.fy / std::max(y - camera.cy, 0.1F);
        if (z < metres) fill(depth, {0, y, camera.width, 1}, static_cast<int>(1000 * z));
    }
}

TEST_F(Overlay, LinesLieOnTheEdgesOfDepthAndNowhereElse) {
    const QRect square(70, 50, 20, 20);
    calibrate({0, 0, 0});
    for (const QRgb ground : {qRgb(0, 0, 0), kGrey, qRgb(250, 250, 250)}) {
        overlay_->setFrames(plainPicture(200, 150, ground), squareBeforeWall(square));
        look();
        const Eigen::Matrix3d none = Eigen::Matrix3d::Identity();
        const auto onScreen = [&](double x, double y) {
            const QPointF first = expectedCentre(cameras_, none, {square.topLeft(), QSize(1, 1)}, 1000);
            const QPointF last = expectedCentre(cameras_, none, {square.bottomRight(), QSize(1, 1)}, 1000);
            const QPointF pixel = (last - first) / 19;
            return QPointF(first.x() + (x - square.left()) * pixel.x(), first.y() + (y - square.top()) * pixel.y());
        };
        const QRectF border(onScreen(69.5, 49.5), onScreen(89.5, 69.5));
        int lit = 0;
        for (int y = 0; y < 480; ++y) {
            for (int x = 0; x < 640; ++x) {
                if (seenAt(x, y) != qRgb(255, 255, 255)) continue;
                ++lit;
                const QPointF at(x + 0.5, y + 0.5);
                ASSERT_TRUE(border.adjusted(-3, -3, 3, 3).contains(at)) << x << ' ' << y;
                ASSERT_FALSE(border.adjusted(4, 4, -4, -4).contains(at)) << x << ' ' << y;
            }
        }
        EXPECT_NEAR(lit, 3 * 2 * (border.width() + border.height()), 60) << "3 pixels wide, and without gaps";
        const int left = static_cast<int>(border.left()), middle = static_cast<int>(border.center().y());
        for (const int beside : {-3, 3})
            EXPECT_LT(qGray(seenAt(left + beside, middle)), 40) << "the casing: 3:1 or more beside any colour";
    }
}

TEST_F(Overlay, TheGroundEndsWithoutALineAndAPostHasOne) {
    QSignalSpy changes(overlay_, &DepthColorOverlayRenderer::uprightEdgesMissingChanged);
    calibrate({0, 0, 0});
    ImageFrame16 depth = emptyDepth();
    const auto litPixels = [&] {
        overlay_->setFrames(plainPicture(200, 150, kGrey), depth);
        look();
        QCoreApplication::processEvents();
        int lit = 0;
        for (int y = 0; y < 480; ++y)
            for (int x = 0; x < 640; ++x)
                if (seenAt(x, y) == qRgb(255, 255, 255)) ++lit;
        return lit;
    };
    fillGround(&depth, cameras_.depth, 6);
    fill(&depth, {30, 90, 30, 20}, 0);  // too bright to be measured
    EXPECT_EQ(litPixels(), 0);
    EXPECT_TRUE(overlay_->uprightEdgesMissing());
    fill(&depth, {100, 20, 6, 72}, 6000);
    EXPECT_GT(litPixels(), 3 * 2 * 150);
    EXPECT_FALSE(overlay_->uprightEdgesMissing());
    overlay_->setClearArea({0, 0, 0.4, 1});
    litPixels();
    EXPECT_TRUE(overlay_->uprightEdgesMissing()) << "the post is not in view";
    EXPECT_EQ(changes.count(), 3);
}

}  // namespace
}  // namespace fieldcal
