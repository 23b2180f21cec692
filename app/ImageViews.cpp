#include "app/ImageViews.h"

#include "render/ColorImageRendererItem.h"
#include "render/DepthColorOverlayRenderer.h"
#include "render/InfraredImageRendererItem.h"
#include "render/TutorialSwing.h"

namespace fieldcal {
namespace {

template <typename View>
View* find(const QObject& root, const char* name) {
    auto* view = root.findChild<View*>(name);
    if (view == nullptr) qCritical("The interface has no view %s.", name);
    return view;
}

void setShown(ImageItem* view, bool shown) {
    if (shown) {
        view->show();
    } else {
        view->hide();
    }
}

}  // namespace

void ImageViews::findIn(const QObject& root) {
    intro_ = find<ColorImageRendererItem>(root, "introImageView");
    colour_ = find<ColorImageRendererItem>(root, "calibColorView");
    infrared_ = find<InfraredImageRendererItem>(root, "calibInfraredView");
    walkthrough_ = find<DepthColorOverlayRenderer>(root, "refinementWalkthroughView");
    refinement_ = find<DepthColorOverlayRenderer>(root, "refinementView");
}

bool ImageViews::complete() const {
    return intro_ != nullptr && colour_ != nullptr && infrared_ != nullptr && walkthrough_ != nullptr &&
           refinement_ != nullptr;
}

void ImageViews::setCalibrator(vq::ICalibrator* calibrator) {
    refinement_->setCalibrator(calibrator);
}

void ImageViews::showFor(State state) {
    const bool intro = state == State::ShowingIntroduction;
    const bool both =
        state == State::DetectingLighting || state == State::ResetCalibration || state == State::WaitingToCalibrate;
    const bool walkthrough = state == State::RefiningTutorial;
    const bool refinement = state == State::RefiningCalibration;
    if (!intro && !both && !walkthrough && !refinement) return;
    setShown(intro_, intro);
    setShown(colour_, both);
    setShown(infrared_, both);
    setShown(walkthrough_, walkthrough);
    setShown(refinement_, refinement);
    if (intro) {
        colour_->setDrawFlag(false);
        infrared_->setDrawFlag(false);
    }
    if (state == State::ResetCalibration) stopTutorial();
}

void ImageViews::switchIntroductionOn() {
    intro_->setDrawFlag(true);
}

void ImageViews::setFrames(State state, ColourCamera camera, const FrameRecords& frames) {
    const ImageFrame32& colour = frames.colour[camera];
    switch (state) {
        case State::ShowingIntroduction:
            intro_->setFrame(frames.colour[ColourCamera::Third]);
            break;
        case State::DetectingLighting:
        case State::WaitingToCalibrate:
        case State::ProcessingFrame:
            colour_->setFrame(colour);
            infrared_->setFrame(frames.leftInfrared);
            break;
        case State::RefiningTutorial:
            walkthrough_->setFrames(frames.colour[ColourCamera::Third], frames.depth);
            break;
        case State::RefiningCalibration:
            refinement_->setFrames(colour, frames.depth);
            break;
        default:
            break;
    }
}

void ImageViews::setCalibration(ColourCamera camera, const CameraParameters& factory, const Rotation& estimated) {
    const OverlayCalibration calibration = overlayCalibration(factory, camera, estimated);
    refinement_->setCalibration(calibration);
    if (camera == ColourCamera::Third) walkthrough_->setCalibration(calibration);
}

void ImageViews::swingTutorial() {
    walkthrough_->setTutorialMode(true);
    walkthrough_->setDemonstrationRotation(swingRotation(swingStep_++));
}

void ImageViews::stopTutorial() {
    walkthrough_->setTutorialMode(false);
}

}  // namespace fieldcal
