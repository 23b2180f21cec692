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

/// The five picture views of the interface: which is shown when, and what it shows. Main thread unless told otherwise.
/// The views themselves belong to the interface.
class ImageViews {
public:
    /// By object name. A view that is not there is logged as critical, and null.
    void findIn(const QObject& root);
    bool complete() const;
    /// `calibrator` outlives the views.
    void setCalibrator(vq::ICalibrator* calibrator);
    DepthColorOverlayRenderer* refinementView() const { return refinement_; }

    /// What a state shows; states that say nothing about it leave the views as they are.
    void showFor(State state);
    /// The introduction shows pictures as soon as there are any.
    void switchIntroductionOn();

    /// A frame set for the views of the state. One thread, any.
    void setFrames(State state, ColourCamera camera, const FrameRecords& frames);
    /// What was found for a camera. Any thread.
    void setCalibration(ColourCamera camera, const CameraParameters& factory, const Rotation& estimated);
    /// The next step of the demonstration that the tutorial gives. One thread, any.
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
