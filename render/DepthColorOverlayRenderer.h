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

/// Depth in colours over a colour camera's picture, and the drag that corrects the rotation between the two.
/// Hidden at construction. See `ImageItem` for where it is drawn.
class DepthColorOverlayRenderer : public ImageItem {
    Q_OBJECT
    /// Degrees about the vertical axis that the finger has added to the rotation that was found.
    Q_PROPERTY(double correctionDeg READ correctionDeg NOTIFY correctionDegChanged)
    /// True: depth is shown as the module's stored calibration has it, without the new rotation.
    Q_PROPERTY(bool storedShown READ storedShown WRITE setStoredShown NOTIFY storedShownChanged)
    /// Hardly any of the picture has depth, so that there is nothing to align.
    Q_PROPERTY(bool depthSparse READ depthSparse NOTIFY depthSparseChanged)
public:
    explicit DepthColorOverlayRenderer(QQuickItem* parent = nullptr);

    /// The engine that drags and knows the rotation. Must outlive the item; before it is set, and with null, touches do
    /// nothing. Main thread.
    void setCalibrator(vq::ICalibrator* calibrator) { calibrator_ = calibrator; }

    /// Cameras and rotation to draw with from now on; before, the picture stays without depth. Any thread.
    void setCalibration(const OverlayCalibration& calibration);
    /// Live images; depth is in millimetres. An empty frame changes nothing, and neither does any while the stored
    /// calibration is shown. One thread, any.
    void setFrames(const ImageFrame32& colour, const ImageFrame16& depth);

    /// The tutorial shows stored pictures and the hint instead of live frames. Where the pictures are missing, which is
    /// logged, the live ones stay. The first time loads the files. Any thread.
    void setTutorialMode(bool on);
    /// Row-major. Turns the overlay in addition to its rotation until the tutorial mode is switched off. Any thread.
    void setDemonstrationRotation(const std::array<float, 9>& rotation);
    /// Before the first use of the tutorial mode.
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
    /// Of one painting.
    struct Scene {
        OverlayCalibration cameras;
        OverlayPose pose;
        double demonstrationDeg = 0;
    };

    void loadTutorial();
    void showTutorial();
    void judgeDepth(std::size_t points, std::size_t pixels);
    void setCorrectionDeg(double degrees);
    /// False: without cameras there is no depth to draw.
    bool currentScene(Scene* scene);
    void drawHint(FixedFunctionGl& gl, double demonstrationDeg) const;

    vq::ICalibrator* calibrator_ = nullptr;
    bool dragging_ = false;
    std::atomic<double> correctionDeg_{0};
    std::atomic<bool> storedShown_{false};
    std::atomic<bool> depthSparse_{false};

    std::mutex poseLock_;
    OverlayCalibration calibration_;  ///< this and the next three: under the pose lock
    bool calibrated_ = false;
    OverlayPose pose_ = OverlayPose::Identity();
    std::array<float, 9> demonstration_ = kNoRotation;

    TutorialFiles tutorialFiles_;
    TutorialPictures tutorial_;  ///< this and the next six: under the frame lock; loaded once
    OverlayCalibration tutorialCameras_;
    bool tutorialLoaded_ = false;
    bool tutorialOn_ = false;  ///< and its pictures are there
    std::vector<DepthPoint> cloud_;
    bool newCloud_ = false;
    bool cloudIsTutorial_ = false;
    std::vector<DepthPoint> freshCloud_;  ///< of the thread that hands frames over

    DepthCloudBuffer cloudBuffer_;  ///< from here on: render thread
    PictureTexture hint_;
    bool tutorialDrawn_ = false;
};

}  // namespace fieldcal
