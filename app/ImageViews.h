#pragma once

#include "camera/CameraParameters.h"
#include "devices/FrameAcquisition.h"
#include "workflow/CalibrationRecords.h"
#include "workflow/State.h"

class QObject;

namespace vq {
class ICalibrator;
}

namespace fieldcal {

class ColorImageRendererItem;
class DepthColorOverlayRenderer;
class InfraredImageRendererItem;

/// The five image views of the interface, which the interface owns. This class decides which one is shown in which
/// state, and what it shows. Main thread, unless stated otherwise.
class ImageViews {
public:
    /// Finds the views by object name. A missing view is logged as critical and stays null.
    void findIn(const QObject& root);
    bool complete() const;
    /// `calibrator` must outlive the views.
    void setCalibrator(vq::ICalibrator* calibrator);
    DepthColorOverlayRenderer* refinementView() const { return refinement_; }

    /// Shows the views of a state. States without views of their own leave them unchanged.
    void showFor(State state);
    /// Makes the introduction show images once they are available.
    void switchIntroductionOn();

    /// Sets a frame set for the views of the state. From one thread, which may be any.
    void setFrames(State state, ColourCamera camera, const FrameRecords& frames);
    /// Sets the result for a camera. Any thread.
    void setCalibration(ColourCamera camera, const CameraParameters& factory, const Rotation& estimated);
    /// Shows the next step of the tutorial's demonstration. From one thread, which may be any.
    void swingTutorial();
    /// Any thread.
    void stopTutorial();

private:
    ColorImageRendererItem* intro_ = nullptr;
    ColorImageRendererItem* colour_ = nullptr;
    InfraredImageRendererItem* infrared_ = nullptr;
    DepthColorOverlayRenderer* walkthrough_ = nullptr;
    DepthColorOverlayRenderer* refinement_ = nullptr;
    int swingStep_ = 0;
};

}  // namespace fieldcal
