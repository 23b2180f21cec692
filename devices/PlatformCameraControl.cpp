#include "devices/PlatformCameraControl.h"

#include <chrono>
#include <thread>
#include <utility>

namespace fieldcal {
namespace {

constexpr std::size_t kLongestName = 260;
constexpr std::int32_t kWaitStepMs = 10;

}  // namespace

CPlatformCameraControl::CPlatformCameraControl(std::unique_ptr<PlatformCameraBackend> backend)
    : backend_(std::move(backend)) {}

CPlatformCameraControl::~CPlatformCameraControl() {
    backend_->setSink(nullptr);
}

bool CPlatformCameraControl::findDevice(const std::string& name) {
    if (name.empty() || !backend_->selectDevice(name.substr(0, kLongestName))) return false;
    state_ = State::Selected;
    return true;
}

bool CPlatformCameraControl::openCamera() {
    if (state_ != State::Selected || !backend_->openCamera()) return false;
    state_ = State::Open;
    return true;
}

bool CPlatformCameraControl::setAutoFocus(bool on) {
    return state_ == State::Open && backend_->setAutoFocus(on);
}

bool CPlatformCameraControl::setFocus(std::int32_t value) {
    return state_ == State::Open && backend_->setFocus(value);
}

bool CPlatformCameraControl::setupPreviewStream(std::int32_t width, std::int32_t height, std::int32_t framesPerSecond,
                                                const std::string& subtype) {
    return state_ == State::Open &&
           backend_->setupStream(PlatformCameraBackend::Stream::Preview, width, height, framesPerSecond, subtype);
}

bool CPlatformCameraControl::setupRecordStream(std::int32_t width, std::int32_t height, std::int32_t framesPerSecond,
                                               const std::string& subtype) {
    if (state_ != State::Open) return false;
    if (!backend_->setupStream(PlatformCameraBackend::Stream::Record, width, height, framesPerSecond, subtype)) {
        return false;
    }
    backend_->setSink(this);
    return true;
}

bool CPlatformCameraControl::setupPhotoStream(std::int32_t width, std::int32_t height, const std::string& subtype) {
    return state_ == State::Open &&
           backend_->setupStream(PlatformCameraBackend::Stream::Photo, width, height, 0, subtype);
}

bool CPlatformCameraControl::latestFrame(QueuedImage* out, std::int32_t waitMilliseconds) {
    if (!queue_.latest(handedOut_ ? 0 : waitMilliseconds, out)) return false;
    handedOut_ = true;
    return true;
}

bool CPlatformCameraControl::awaitFirstFrame(const std::atomic<bool>* stop) const {
    const std::int32_t limitMs = backend_->firstImageMs();
    for (std::int32_t waitedMs = 0; waitedMs < limitMs && !frameReady_; waitedMs += kWaitStepMs) {
        if (stop != nullptr && *stop) return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(kWaitStepMs));
    }
    return frameReady_;
}

void CPlatformCameraControl::onImage(const std::uint8_t* nv12, std::int32_t width, std::int32_t height,
                                     double timeSeconds) {
    const std::uint32_t sequence = frameCounter_++;
    if (queue_.push({nv12, width, height, sequence, timeSeconds, std::chrono::steady_clock::now()})) frameReady_ = true;
}

}  // namespace fieldcal
