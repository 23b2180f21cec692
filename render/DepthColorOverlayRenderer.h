#pragma once

#include "render/DepthCloud.h"
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

/// Draws coloured depth over a colour camera's image, and handles the drag that corrects the rotation between the two.
/// Hidden at construction. `ImageItem` describes where it is drawn.
class DepthColorOverlayRenderer : public ImageItem {
    Q_OBJECT
    /// The rotation about the vertical axis that the drag has added to the estimated rotation, in degrees.
    Q_PROPERTY(double correctionDeg READ correctionDeg NOTIFY correctionDegChanged)
    /// When true, depth is drawn with the module's stored calibration instead of the new rotation.
    Q_PROPERTY(bool storedShown READ storedShown WRITE setStoredShown NOTIFY storedShownChanged)
    /// True when hardly any of the image has depth, so that there is nothing to align.
    Q_PROPERTY(bool depthSparse READ depthSparse NOTIFY depthSparseChanged)
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
    bool depthSparse() const { return depthSparse_; }

signals:
    void correctionDegChanged();
    void storedShownChanged();
    void depthSparseChanged();

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
    /// The cameras and pose of one paint operation.
    struct Scene {
        OverlayCalibration cameras;
        OverlayPose pose;
        double demonstrationDeg = 0;
    };

    void loadTutorial();
    void showTutorial();
    void judgeDepth(std::size_t points, std::size_t pixels);
    void setCorrectionDeg(double degrees);
    /// Returns false when there are no cameras yet, so that no depth can be drawn.
    bool currentScene(Scene* scene);
    void drawHint(FixedFunctionGl& gl, double demonstrationDeg) const;

    vq::ICalibrator* calibrator_ = nullptr;
    bool dragging_ = false;
    std::atomic<double> correctionDeg_{0};
    std::atomic<bool> storedShown_{false};
    std::atomic<bool> depthSparse_{false};

    std::mutex poseLock_;
    OverlayCalibration calibration_;  ///< this and the next three: guarded by the pose lock
    bool calibrated_ = false;
    OverlayPose pose_ = OverlayPose::Identity();
    std::array<float, 9> demonstration_ = kNoRotation;

    TutorialFiles tutorialFiles_;
    TutorialPictures tutorial_;  ///< this and the next six: guarded by the frame lock; loaded once
    OverlayCalibration tutorialCameras_;
    bool tutorialLoaded_ = false;
    bool tutorialOn_ = false;  ///< the mode is on and its images are loaded
    std::vector<DepthPoint> cloud_;
    bool newCloud_ = false;
    bool cloudIsTutorial_ = false;
    std::vector<DepthPoint> freshCloud_;  ///< used on the thread that sets the frames

    DepthCloudBuffer cloudBuffer_;  ///< from here on: used on the render thread
    PictureTexture hint_;
    bool tutorialDrawn_ = false;
};

}  // namespace fieldcal
