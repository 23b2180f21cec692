#include "devices/windows/MediaFoundationBackend.h"

#include "devices/SystemRearCamera.h"

namespace fieldcal {
namespace {

/// Counted from the start of the stream; such a camera needs about one second.
constexpr std::int32_t kFirstImageMs = 3000;

std::wstring wideOf(const std::string& utf8) {
    const int bytes = static_cast<int>(utf8.size());
    const int size = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, nullptr, 0);
    std::wstring result(static_cast<std::size_t>(size), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, result.data(), size);
    return result;
}

}  // namespace

MediaFoundationBackend::MediaFoundationBackend(const std::function<std::unique_ptr<MediaSystem>()>& createSystem) {
    thread_.run([&] {
        camera_ = std::make_unique<MediaFoundationCamera>(createSystem());
        return true;
    });
}

MediaFoundationBackend::~MediaFoundationBackend() {
    outlet_->set(nullptr);
    run([this] {
        camera_.reset();
        return true;
    });
}

bool MediaFoundationBackend::run(const std::function<bool()>& call) {
    return thread_.run([&] { return camera_ != nullptr && call(); });
}

bool MediaFoundationBackend::selectDevice(const std::string& friendlyName) {
    return run([&] { return camera_->selectDevice(wideOf(friendlyName)); });
}

bool MediaFoundationBackend::openCamera() {
    return run([&] { return camera_->openCamera(); });
}

bool MediaFoundationBackend::setAutoFocus(bool on) {
    return run([&] { return camera_->setAutoFocus(on); });
}

bool MediaFoundationBackend::setFocus(std::int32_t value) {
    return run([&] { return camera_->setFocus(value); });
}

bool MediaFoundationBackend::setupStream(Stream stream, std::int32_t width, std::int32_t height,
                                         std::int32_t framesPerSecond, const std::string& subtype) {
    const CaptureFormat format{width, height, framesPerSecond, subtype};
    return run([&] { return camera_->setupStream(stream, format, outlet_); });
}

void MediaFoundationBackend::setSink(RearCameraSink* sink) {
    outlet_->set(sink);
}

std::int32_t MediaFoundationBackend::firstImageMs() const {
    return kFirstImageMs;
}

std::unique_ptr<PlatformCameraBackend> systemRearCamera() {
    return std::make_unique<MediaFoundationBackend>(windowsMediaSystem);
}

}  // namespace fieldcal
