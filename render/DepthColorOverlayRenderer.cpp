#include "render/DepthColorOverlayRenderer.h"

#include "engine/ICalibrator.h"

#include <QQuickWindow>

#include <cmath>

namespace fieldcal {
namespace {

/// Opacity of the image drawn over the depth, chosen so that edges of both stay visible.
constexpr float kPictureOpacity = 0.4F;
/// Slightly more than the distance between neighbouring points, because rotation and parallax vary that distance.
constexpr double kPointOverlap = 1.05;

// Depth is sparse below the first share of the image, and no longer sparse above the second.
constexpr double kSparseBelow = 0.04;
constexpr double kEnoughFrom = 0.06;

constexpr float kHintHeight = 0.35F;  ///< share of the area
constexpr float kHintBottom = 0.9F;
constexpr float kDragRangeDeg = 4;  ///< angle of a drag across half the width

/// Applies a rotation in addition to the pose's own.
void turn(const std::array<float, 9>& rotation, OverlayPose* pose) {
    using Matrix = Eigen::Matrix<float, 3, 3, Eigen::RowMajor>;
    pose->topLeftCorner<3, 3>() = Eigen::Map<const Matrix>(rotation.data()) * pose->topLeftCorner<3, 3>().eval();
}

}  // namespace

DepthColorOverlayRenderer::DepthColorOverlayRenderer(QQuickItem* parent) : ImageItem(parent) {
    hide();
    connect(this, &QQuickItem::windowChanged, this, &DepthColorOverlayRenderer::slot_handleWindowChanged);
    slot_handleWindowChanged(window());
}

void DepthColorOverlayRenderer::setCalibration(const OverlayCalibration& calibration) {
    {
        const std::lock_guard lock(poseLock_);
        calibration_ = calibration;
        calibrated_ = true;
        pose_ = overlayPose(calibration.estimated, calibration.stored.translation);
    }
    setCorrectionDeg(0);
}

void DepthColorOverlayRenderer::setFrames(const ImageFrame32& colour, const ImageFrame16& depth) {
    depthToCloud(depth, &freshCloud_);
    if (!depth.empty()) judgeDepth(freshCloud_.size(), std::size_t{depth.width()} * depth.height());
    const std::lock_guard lock(frameLock());
    // Two calibrations are compared on one and the same frame set, not on two.
    if (tutorialOn_ || storedShown_) return;
    takePicture(colour);
    if (depth.empty()) return;
    cloud_.swap(freshCloud_);
    cloudIsTutorial_ = false;
    newCloud_ = true;
}

void DepthColorOverlayRenderer::judgeDepth(std::size_t points, std::size_t pixels) {
    const double share = static_cast<double>(points) / static_cast<double>(pixels);
    const bool sparse = share < (depthSparse_ ? kEnoughFrom : kSparseBelow);
    // The signal is sent on the main thread, because the interface listens only there.
    if (depthSparse_.exchange(sparse) != sparse)
        QMetaObject::invokeMethod(this, "depthSparseChanged", Qt::QueuedConnection);
}

void DepthColorOverlayRenderer::setCorrectionDeg(double degrees) {
    if (correctionDeg_.exchange(degrees) != degrees)
        QMetaObject::invokeMethod(this, "correctionDegChanged", Qt::QueuedConnection);
}

void DepthColorOverlayRenderer::setStoredShown(bool shown) {
    if (storedShown_.exchange(shown) != shown) emit storedShownChanged();
}

void DepthColorOverlayRenderer::setTutorialMode(bool on) {
    if (!on) setDemonstrationRotation(kNoRotation);
    const std::lock_guard lock(frameLock());
    if (on && !tutorialLoaded_) loadTutorial();
    if (on && !tutorialOn_ && tutorial_.complete()) showTutorial();
    if (!on) tutorialOn_ = false;
}

void DepthColorOverlayRenderer::loadTutorial() {
    tutorial_ = loadTutorialPictures(tutorialFiles_);
    tutorialCameras_ = tutorialCalibration(tutorial_);
    tutorialLoaded_ = true;
}

void DepthColorOverlayRenderer::showTutorial() {
    takePicture(tutorial_.colour);
    depthToCloud(tutorial_.depth, &cloud_);
    cloudIsTutorial_ = true;
    newCloud_ = true;
    tutorialOn_ = true;
}

void DepthColorOverlayRenderer::setDemonstrationRotation(const std::array<float, 9>& rotation) {
    const std::lock_guard lock(poseLock_);
    demonstration_ = rotation;
}

void DepthColorOverlayRenderer::uploadMore(FixedFunctionGl& gl) {
    if (newCloud_) cloudBuffer_.upload(gl, cloud_);
    newCloud_ = false;
    tutorialDrawn_ = cloudIsTutorial_;
    if (tutorialDrawn_ && !hint_.exists()) hint_.upload(gl, tutorial_.hint);
}

void DepthColorOverlayRenderer::releaseMore(FixedFunctionGl& gl) {
    cloudBuffer_.release(gl);
    hint_.release(gl);
    newCloud_ = true;
}

bool DepthColorOverlayRenderer::currentScene(Scene* scene) {
    const std::lock_guard lock(poseLock_);
    if (!tutorialDrawn_ && !calibrated_) return false;
    scene->cameras = tutorialDrawn_ ? tutorialCameras_ : calibration_;
    scene->pose = pose_;
    if (tutorialDrawn_ || storedShown_)
        scene->pose = overlayPose(scene->cameras.stored.rotation, scene->cameras.stored.translation);
    scene->demonstrationDeg = verticalAngleDeg(demonstration_);
    turn(demonstration_, &scene->pose);
    return true;
}

void DepthColorOverlayRenderer::drawContents(FixedFunctionGl& gl) {
    texture().draw(gl);
    Scene scene;
    if (!currentScene(&scene)) return;
    const QSize area = viewport().size();
    const double pixelSize = depthPixelSize(scene.cameras, area.width(), area.height());
    cloudBuffer_.draw(gl, overlayProjection(scene.cameras, scene.pose),
                      static_cast<float>(std::ceil(kPointOverlap * pixelSize)));
    // The image is drawn again on top. Transparent points would add up where they overlap.
    texture().draw(gl, kPictureOpacity);
    if (tutorialDrawn_ && hint_.exists()) drawHint(gl, scene.demonstrationDeg);
}

/// The hint moves by the travel of a drag that would rotate the overlay by the demonstrated angle.
void DepthColorOverlayRenderer::drawHint(FixedFunctionGl& gl, double demonstrationDeg) const {
    const float middle = static_cast<float>(demonstrationDeg) / kDragRangeDeg;
    const float aspect = static_cast<float>(tutorial_.hint.width()) / static_cast<float>(tutorial_.hint.height());
    const float areaAspect = static_cast<float>(viewport().width()) / static_cast<float>(viewport().height());
    const float halfWidth = kHintHeight * aspect / areaAspect;
    hint_.draw(gl, 1, true, {middle - halfWidth, kHintBottom - 2 * kHintHeight, middle + halfWidth, kHintBottom});
}

void DepthColorOverlayRenderer::slot_initializeGL() {
    requestRepaint();
}

void DepthColorOverlayRenderer::slot_paintGL() {
    paint();
}

void DepthColorOverlayRenderer::slot_update() {
    requestRepaint();
}

void DepthColorOverlayRenderer::slot_handleWindowChanged(QQuickWindow* window) {
    followWindow(window);
    if (window == nullptr) return;
    connect(window, &QQuickWindow::beforeRendering, this, &DepthColorOverlayRenderer::slot_paintGL,
            Qt::DirectConnection);
}

void DepthColorOverlayRenderer::slot_touchDown(int x, int y) {
    const QQuickItem* area = parentItem();
    if (calibrator_ == nullptr || area == nullptr || area->width() <= 0 || area->height() <= 0) return;
    const auto width = static_cast<float>(area->width());
    const auto height = static_cast<float>(area->height());
    calibrator_->setTouchAreaSize(width, height);
    calibrator_->setDragAreaSize(width, height);
    dragging_ = true;
    calibrator_->beginDrag(x, y);
}

void DepthColorOverlayRenderer::slot_touchMove(int x, int y) {
    if (!dragging_) return;
    double correctionDeg = 0;
    {
        const std::lock_guard lock(poseLock_);
        calibrator_->drag(x, y);
        std::array<float, 3> translation{};
        std::array<float, 9> rotation{};
        calibrator_->getTranslation(translation.data());
        calibrator_->getRotationMatrix(rotation.data());
        pose_ = overlayPose(rotation, translation);
        correctionDeg = verticalAngleDeg(rotation) - verticalAngleDeg(calibration_.estimated);
    }
    setCorrectionDeg(correctionDeg);
}

void DepthColorOverlayRenderer::slot_touchUp(int /*x*/, int /*y*/) {
    dragging_ = false;
    if (calibrator_ != nullptr) calibrator_->endDrag();
}

}  // namespace fieldcal
