#pragma once

#include "render/DepthCloud.h"
#include "render/EdgeLines.h"
#include "render/ImageItem.h"
#include "render/OverlayCalibration.h"
#include "render/OverlayProjection.h"
#include "render/TutorialPictures.h"

#include <array>
#include <atomic>
#include <mutex>
#include <vector>

namespace vq {
class ICalibrator;
}

namespace fieldcal {

/// Draws coloured depth and its edges over a colour camera's image, and handles the drag that corrects the rotation
/// between the two. Hidden at construction. `ImageItem` describes where it is drawn.
class DepthColorOverlayRenderer : public ImageItem {
    Q_OBJECT
    /// The rotation about the vertical axis that the drag has added to the estimated rotation, in degrees.
    Q_PROPERTY(double correctionDeg READ correctionDeg NOTIFY correctionDegChanged)
    /// When true, depth is drawn with the module's stored calibration instead of the new rotation.
    Q_PROPERTY(bool storedShown READ storedShown WRITE setStoredShown NOTIFY storedShownChanged)
    /// The part of the image that the user sees, which panels do not cover: (0, 0, 1, 1) is the whole image.
    Q_PROPERTY(QRectF clearArea READ clearArea WRITE setClearArea NOTIFY clearAreaChanged)
    /// True when hardly any of the clear area has depth, so that there is nothing to align.
    Q_PROPERTY(bool depthSparse READ depthSparse NOTIFY depthSparseChanged)
    /// True when the clear area has hardly any upright depth edge, so that an error to the left or right is invisible.
    Q_PROPERTY(bool uprightEdgesMissing READ uprightEdgesMissing NOTIFY uprightEdgesMissingChanged)
public:
    explicit DepthColorOverlayRenderer(QQuickItem* parent = nullptr);

    /// Sets the engine that handles the drag and provides the rotation. It must outlive the item. Until it is set, and
    /// with null, touches have no effect. Main thread.
    void setCalibrator(vq::ICalibrator* calibrator) { calibrator_ = calibrator; }

    /// Sets the cameras and the rotation to draw with. Until it is called, no depth is drawn. Any thread.
    void setCalibration(const OverlayCalibration& calibration);
    /// Sets the live images; depth is in millimetres. An empty frame is ignored, and so is every frame while the stored
    /// calibration is shown. From one thread, which may be any.
    void setFrames(const ImageFrame32& colour, const ImageFrame16& depth);

    /// Shows the tutorial's stored images and the hint instead of live frames. If the images are missing, which is
    /// logged, the live ones stay. The first call loads the files. Any thread.
    void setTutorialMode(bool on);
    /// Sets a row-major rotation that is added to the overlay's own rotation until the tutorial mode is switched off.
    /// Any thread.
    void setDemonstrationRotation(const std::array<float, 9>& rotation);
    /// To be called before the tutorial mode is first used.
    void setTutorialFiles(const TutorialFiles& files) { tutorialFiles_ = files; }

    double correctionDeg() const { return correctionDeg_; }
    bool storedShown() const { return storedShown_; }
    void setStoredShown(bool shown);
    QRectF clearArea() const;
    void setClearArea(const QRectF& area);
    bool depthSparse() const { return depthSparse_; }
    bool uprightEdgesMissing() const { return uprightEdgesMissing_; }

signals:
    void correctionDegChanged();
    void storedShownChanged();
    void clearAreaChanged();
    void depthSparseChanged();
    void uprightEdgesMissingChanged();

public slots:
    void slot_initializeGL();
    void slot_paintGL();
    void slot_update();
    void slot_handleWindowChanged(QQuickWindow* window);
    void slot_touchDown(int x, int y);
    void slot_touchMove(int x, int y);
    void slot_touchUp(int x, int y);

protected:
    void uploadMore(FixedFunctionGl& gl) override;
    void drawContents(FixedFunctionGl& gl) override;
    void releaseMore(FixedFunctionGl& gl) override;

private:
    /// The cameras and pose of one paint operation or of one new frame, which alone uses the last two.
    struct Scene {
        OverlayCalibration cameras;
        OverlayPose pose;
        double demonstrationDeg = 0;
        QRectF clearArea;
        bool rangeKnown = false;
    };

    void loadTutorial();
    void showTutorial();
    std::vector<DepthEdge> examine(const ImageFrame16& depth);
    void judgeDepth(double share);
    void judgeEdges(double share);
    void setCorrectionDeg(double degrees);
    /// For live images, whatever is drawn at present. Returns false when there are no cameras yet.
    bool liveScene(Scene* scene);
    /// Returns false when there are no cameras yet, so that no depth can be drawn.
    bool currentScene(Scene* scene);
    void drawHint(FixedFunctionGl& gl, double demonstrationDeg) const;

    vq::ICalibrator* calibrator_ = nullptr;
    bool dragging_ = false;
    std::atomic<double> correctionDeg_{0};
    std::atomic<bool> storedShown_{false};
    std::atomic<bool> depthSparse_{false};
    std::atomic<bool> uprightEdgesMissing_{false};

    mutable std::mutex poseLock_;
    OverlayCalibration calibration_;  ///< this and the next five: guarded by the pose lock
    bool calibrated_ = false;
    bool rangeKnown_ = false;  ///< since the calibration was set
    QRectF clearArea_{0, 0, 1, 1};
    OverlayPose pose_ = OverlayPose::Identity();
    std::array<float, 9> demonstration_ = kNoRotation;

    TutorialFiles tutorialFiles_;
    TutorialPictures tutorial_;  ///< this and the next seven: guarded by the frame lock; loaded once
    OverlayCalibration tutorialCameras_;
    bool tutorialLoaded_ = false;
    bool tutorialOn_ = false;  ///< the mode is on and its images are loaded
    std::vector<DepthPoint> cloud_;
    std::vector<DepthEdge> edges_;
    bool newCloud_ = false;
    bool cloudIsTutorial_ = false;
    std::vector<DepthPoint> freshCloud_;  ///< this and the next one: used on the thread that sets the frames
    DepthRange range_;

    DepthCloudBuffer cloudBuffer_;  ///< from here on: used on the render thread
    std::vector<DepthEdge> drawnEdges_;
    PictureTexture hint_;
    bool tutorialDrawn_ = false;
};

}  // namespace fieldcal
