#include "render/DepthColorOverlayRenderer.h"

#include "engine/ICalibrator.h"

#include <QQuickWindow>

#include <algorithm>
#include <cmath>
#include <utility>

namespace fieldcal {
namespace {

/// Opacity of the image drawn over the depth, chosen so that edges of both stay visible.
constexpr float kPictureOpacity = 0.4F;
/// Slightly more than the distance between neighbouring points, because rotation and parallax vary that distance.
constexpr double kPointOverlap = 1.05;

// Depth is sparse below the first share of the clear area, and no longer sparse above the second.
constexpr double kSparseBelow = 0.04;
constexpr double kEnoughFrom = 0.06;
// Upright edges are missing below the first share of the clear area's height, and no longer above the second.
constexpr double kEdgesMissingBelow = 0.2;
constexpr double kEdgesEnoughFrom = 0.3;
/// Of the depth pixels, every so-many-th in both directions takes part in the statistics of the view.
constexpr std::uint32_t kSampleStep = 4;
constexpr double kDesignWidth = 1280;  ///< of an area in which a line has its nominal width; it is wider in a wider one

constexpr float kHintHeight = 0.35F;  ///< share of the area
constexpr float kHintBottom = 0.9F;
constexpr float kDragRangeDeg = 4;  ///< angle of a drag across half the width

/// Applies a rotation in addition to the pose's own.
void turn(const std::array<float, 9>& rotation, OverlayPose* pose) {
    using Matrix = Eigen::Matrix<float, 3, 3, Eigen::RowMajor>;
    pose->topLeftCorner<3, 3>() = Eigen::Map<const Matrix>(rotation.data()) * pose->topLeftCorner<3, 3>().eval();
}

/// Depths in millimetres, none of them 0, of the samples that lie within `area` of the colour image.
std::vector<std::uint16_t> depthsInView(const ImageFrame16& depth, const Eigen::Matrix4d& clip_point,
                                        const QRectF& area) {
    std::vector<std::uint16_t> depths;
    for (std::uint32_t y = 0; y < depth.height(); y += kSampleStep) {
        for (std::uint32_t x = 0; x < depth.width(); x += kSampleStep) {
            const std::uint16_t millimetres = depth.pixels()[std::size_t{y} * depth.width() + x];
            if (millimetres == 0) continue;
            const double z = 0.001 * millimetres;
            const Eigen::Vector4d clip = clip_point * Eigen::Vector4d(x * z, y * z, z, 1);
            if (clip.w() <= 0) continue;
            const QPointF at((clip.x() / clip.w() + 1) / 2, (1 - clip.y() / clip.w()) / 2);
            if (area.contains(at)) depths.push_back(millimetres);
        }
    }
    return depths;
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
        rangeKnown_ = false;
        pose_ = overlayPose(calibration.estimated, calibration.stored.translation);
    }
    setCorrectionDeg(0);
}

QRectF DepthColorOverlayRenderer::clearArea() const {
    const std::lock_guard lock(poseLock_);
    return clearArea_;
}

void DepthColorOverlayRenderer::setClearArea(const QRectF& area) {
    {
        const std::lock_guard lock(poseLock_);
        if (area == clearArea_) return;
        clearArea_ = area;
    }
    emit clearAreaChanged();
}

void DepthColorOverlayRenderer::setFrames(const ImageFrame32& colour, const ImageFrame16& depth) {
    // Two calibrations are compared on one and the same frame set, not on two.
    if (storedShown_) return;
    std::vector<DepthEdge> edges;
    if (!depth.empty()) edges = examine(depth);
    depthToCloud(depth, range_, &freshCloud_);
    const std::lock_guard lock(frameLock());
    if (tutorialOn_ || storedShown_) return;
    takePicture(colour);
    if (depth.empty()) return;
    cloud_.swap(freshCloud_);
    edges_ = std::move(edges);
    cloudIsTutorial_ = false;
    newCloud_ = true;
}

/// Sets the range of the colours and both hints from what the user sees of the frame.
std::vector<DepthEdge> DepthColorOverlayRenderer::examine(const ImageFrame16& depth) {
    Scene scene;
    if (!liveScene(&scene)) return {};
    std::vector<DepthEdge> edges = findDepthEdges(depth, scene.cameras.depth);
    const Eigen::Matrix4d clip_point = overlayProjection(scene.cameras, scene.pose);
    std::vector<std::uint16_t> depths = depthsInView(depth, clip_point, scene.clearArea);
    const DepthRange wanted = percentileRange(&depths);
    range_ = scene.rangeKnown ? approach(range_, wanted) : wanted;
    const double pixels =
        depthPixelArea(scene.cameras) * kSampleStep * kSampleStep * static_cast<double>(depths.size());
    judgeDepth(pixels / (scene.clearArea.width() * scene.clearArea.height()));
    const double aspect = static_cast<double>(scene.cameras.colour.width) / scene.cameras.colour.height;
    judgeEdges(uprightShare(projectEdges(edges, clip_point), scene.clearArea, aspect));
    return edges;
}

void DepthColorOverlayRenderer::judgeDepth(double share) {
    const bool sparse = share < (depthSparse_ ? kEnoughFrom : kSparseBelow);
    // The signal is sent on the main thread, because the interface listens only there.
    if (depthSparse_.exchange(sparse) != sparse)
        QMetaObject::invokeMethod(this, "depthSparseChanged", Qt::QueuedConnection);
}

void DepthColorOverlayRenderer::judgeEdges(double share) {
    const bool missing = share < (uprightEdgesMissing_ ? kEdgesEnoughFrom : kEdgesMissingBelow);
    if (uprightEdgesMissing_.exchange(missing) != missing)
        QMetaObject::invokeMethod(this, "uprightEdgesMissingChanged", Qt::QueuedConnection);
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
    std::vector<std::uint16_t> depths =
        depthsInView(tutorial_.depth, overlayProjection(tutorialCameras_, OverlayPose::Identity()), {0, 0, 1, 1});
    depthToCloud(tutorial_.depth, percentileRange(&depths), &cloud_);
    edges_ = findDepthEdges(tutorial_.depth, tutorialCameras_.depth);
    cloudIsTutorial_ = true;
    newCloud_ = true;
    tutorialOn_ = true;
}

void DepthColorOverlayRenderer::setDemonstrationRotation(const std::array<float, 9>& rotation) {
    const std::lock_guard lock(poseLock_);
    demonstration_ = rotation;
}

void DepthColorOverlayRenderer::uploadMore(FixedFunctionGl& gl) {
    if (newCloud_) {
        cloudBuffer_.upload(gl, cloud_);
        drawnEdges_ = edges_;
    }
    newCloud_ = false;
    tutorialDrawn_ = cloudIsTutorial_;
    if (tutorialDrawn_ && !hint_.exists()) hint_.upload(gl, tutorial_.hint);
}

void DepthColorOverlayRenderer::releaseMore(FixedFunctionGl& gl) {
    cloudBuffer_.release(gl);
    hint_.release(gl);
    newCloud_ = true;
}

bool DepthColorOverlayRenderer::liveScene(Scene* scene) {
    const std::lock_guard lock(poseLock_);
    if (!calibrated_) return false;
    scene->cameras = calibration_;
    scene->pose = pose_;
    scene->clearArea = clearArea_;
    scene->rangeKnown = std::exchange(rangeKnown_, true);
    return true;
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
    const Eigen::Matrix4d clip_point = overlayProjection(scene.cameras, scene.pose);
    cloudBuffer_.draw(gl, clip_point, static_cast<float>(std::ceil(kPointOverlap * pixelSize)));
    // The image is drawn again on top. Transparent points would add up where they overlap.
    texture().draw(gl, kPictureOpacity);
    drawEdgeLines(gl, projectEdges(drawnEdges_, clip_point), area, std::max(pixelRatio(), area.width() / kDesignWidth));
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
