#include "devices/windows/MediaFoundationCamera.h"

#include "devices/windows/ComResult.h"

#include <QtGlobal>

#include <utility>

namespace fieldcal {

MediaFoundationCamera::MediaFoundationCamera(std::unique_ptr<MediaSystem> system) : system_(std::move(system)) {
    running_ = succeeded(system_->startUp(), "MFStartup");
}

MediaFoundationCamera::~MediaFoundationCamera() {
    if (events_) events_->giveUp();
    if (streams_) streams_->stop();
    streams_.reset();
    videoProcessing_.Reset();
    control_.Reset();
    engine_.Reset();
    if (device_) succeeded(device_->Shutdown(), "IMFMediaSource::Shutdown");
    device_.Reset();
    events_.Reset();
    if (running_) system_->shutDown();
}

bool MediaFoundationCamera::selectDevice(const std::wstring& friendlyName) {
    selected_ = friendlyName;
    VideoDevice ignored;
    return findSelected(&ignored);
}

bool MediaFoundationCamera::findSelected(VideoDevice* out) {
    std::vector<VideoDevice> devices;
    if (!running_ || !succeeded(system_->enumerate(&devices), "MFEnumDeviceSources")) return false;
    for (VideoDevice& device : devices) {
        if (device.friendlyName != selected_) continue;
        *out = std::move(device);
        return true;
    }
    qInfo("Rear camera: none of the %d video devices has the name looked for", static_cast<int>(devices.size()));
    return false;
}

bool MediaFoundationCamera::openCamera() {
    VideoDevice found;
    if (!findSelected(&found) ||
        !succeeded(system_->createSource(found.symbolicLink, device_.ReleaseAndGetAddressOf()),
                   "MFCreateDeviceSourceActivate") ||
        !createEngine() || !events_->awaitInitialised() || !obtainControls() || !releaseBrightness() ||
        !setAutoFocus(true)) {
        return false;
    }
    streams_ = std::make_unique<CaptureStreams>(*system_, *engine_.Get());
    return true;
}

bool MediaFoundationCamera::createEngine() {
    Microsoft::WRL::ComPtr<IMFAttributes> options;
    events_ = makeCom<CaptureEngineEvents>();
    // Images are kept in system memory, and no microphone is opened.
    return succeeded(system_->createCaptureEngine(engine_.ReleaseAndGetAddressOf()), "creating the capture engine") &&
           succeeded(system_->createAttributes(2, options.GetAddressOf()), "MFCreateAttributes") &&
           succeeded(options->SetUINT32(MF_CAPTURE_ENGINE_USE_VIDEO_DEVICE_ONLY, TRUE), "IMFAttributes::SetUINT32") &&
           succeeded(options->SetUINT32(MF_CAPTURE_ENGINE_DISABLE_DXVA, TRUE), "IMFAttributes::SetUINT32") &&
           succeeded(engine_->Initialize(events_.Get(), options.Get(), nullptr, device_.Get()),
                     "IMFCaptureEngine::Initialize");
}

bool MediaFoundationCamera::obtainControls() {
    return succeeded(device_.As(&videoProcessing_), "finding IAMVideoProcAmp") &&
           succeeded(device_.As(&control_), "finding IAMCameraControl");
}

/// Returns the brightness to automatic control, which another program may have switched off.
bool MediaFoundationCamera::releaseBrightness() {
    long value = 0;
    long flags = 0;
    return succeeded(videoProcessing_->Get(VideoProcAmp_Brightness, &value, &flags), "IAMVideoProcAmp::Get") &&
           succeeded(videoProcessing_->Set(VideoProcAmp_Brightness, value, VideoProcAmp_Flags_Auto),
                     "IAMVideoProcAmp::Set");
}

bool MediaFoundationCamera::setAutoFocus(bool on) {
    long value = 0;
    long flags = 0;
    return control_ && succeeded(control_->Get(CameraControl_Focus, &value, &flags), "IAMCameraControl::Get") &&
           writeFocus(value, on ? CameraControl_Flags_Auto : CameraControl_Flags_Manual);
}

bool MediaFoundationCamera::setFocus(std::int32_t value) {
    return control_ && writeFocus(value, CameraControl_Flags_Manual);
}

bool MediaFoundationCamera::writeFocus(long value, long flags) {
    return succeeded(control_->Set(CameraControl_Focus, value, flags), "IAMCameraControl::Set");
}

bool MediaFoundationCamera::setupStream(PlatformCameraBackend::Stream stream, const CaptureFormat& format,
                                        const std::shared_ptr<ImageOutlet>& outlet) {
    if (streams_ == nullptr) return false;
    switch (stream) {
        case PlatformCameraBackend::Stream::Preview:
            return streams_->setUpPreview(format);
        case PlatformCameraBackend::Stream::Record:
            return streams_->setUpRecord(format, outlet) && streams_->start();
        case PlatformCameraBackend::Stream::Photo:
            return streams_->setUpPhoto(format);
    }
    return false;
}

}  // namespace fieldcal
