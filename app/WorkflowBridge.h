#pragma once

#include "app/CapturedPhotos.h"
#include "app/RenderPacer.h"
#include "workflow/WorkflowListener.h"

#include <atomic>

namespace fieldcal {

class GlobalManager;
class ImageViews;
class QmlFunctions;

/// Forwards the output of the workflow from the processing thread to the main thread: as the manager's queued signals,
/// as queued calls, and as images for the views. It waits for the main thread only in `refining`.
class WorkflowBridge : public WorkflowListener {
public:
    WorkflowBridge(GlobalManager& manager, QmlFunctions& functions, ImageViews& views)
        : manager_(manager), functions_(functions), views_(views) {}

    // Called on the main thread.
    void renderRequestArrived() { pacer_.arrived(); }
    /// To be called before waiting for the processing thread to end.
    void stopWaiting() { pacer_.close(); }
    void animateTutorial(bool on) { tutorialAnimation_ = on; }
    /// True until the module reports that it has none.
    bool platformCameraPresent() const { return platformCamera_; }
    /// Creates the provider for the interface's engine, which takes ownership. To be called once.
    QQuickImageProvider* makePhotoProvider() { return new PhotoProvider(photos_); }

    // Called on the processing thread.
    void stateChanged(State state) override;
    void framesReady(State state, ColourCamera camera, const FrameRecords& frames) override;
    void lightMeasured(const LightGate::Reading& reading) override;
    void refining(State state) override;
    void solutionFound(ColourCamera camera, const CameraParameters& factory, const Rotation& estimated,
                       const FoundTurn& turn) override;
    void singleCameraOnly() override;
    void lastSaveSettled(const LastSave& last) override;
    void lastCalibration(const QDateTime& stored) override;
    void deviceError(const QString& text) override;
    void missingModule() override;
    void missingPlatformCamera() override;
    void platformCameraIssue() override;
    void movementText(const std::string& text, bool holdStill) override;
    void startText(const std::string& text) override;
    void calibrationProgress(double progress) override;
    void returnToWellLitArea(bool needed) override;
    void pairCaptured() override;
    void pairImages(const ImageFrame16& infrared, const ImageFrame32& colour) override;
    void detailGathered(const std::vector<double>& areas) override;
    void photoJudged(PhotoWorth worth) override;
    void offerHowToMove() override;

private:
    void requestRender();

    GlobalManager& manager_;
    QmlFunctions& functions_;
    ImageViews& views_;
    RenderPacer pacer_;
    CapturedPhotos photos_;
    std::atomic<bool> tutorialAnimation_{false};
    std::atomic<bool> platformCamera_{true};
};

}  // namespace fieldcal
