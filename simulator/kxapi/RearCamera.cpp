#include "simulator/kxapi/RearCamera.h"

#include "session/RecordedSession.h"
#include "simulator/kxapi/Settings.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace kxsim {
namespace {

using fieldcal::session::kPlatformHeight;
using fieldcal::session::kPlatformWidth;

constexpr const char* kDefaultName = "HP Truevision 8MP Rear";
constexpr std::int32_t kRecordStream = 1;
constexpr std::int32_t kPhotoStream = 2;

std::string nameIn(const std::string& session) {
    fieldcal::session::SessionDescription description;
    std::string why;
    if (session.empty() || !readDescription(session, &description, &why) || !description.platform) return kDefaultName;
    return description.platform->name;
}

std::vector<std::uint8_t> darkNv12() {
    constexpr std::size_t pixels = std::size_t{kPlatformWidth} * kPlatformHeight;
    std::vector<std::uint8_t> image(pixels * 3 / 2, 128);
    std::fill_n(image.begin(), pixels, std::uint8_t{16});
    return image;
}

}  // namespace

RearCamera& RearCamera::instance() {
    static RearCamera camera;
    return camera;
}

bool RearCamera::plugIn() {
    Settings settings = readSettings();
    const std::lock_guard<std::mutex> lock(mutex_);
    name_ = nameIn(settings.session);
    faults_ = std::move(settings.faults);
    disconnected_ = false;
    opened_ = false;
    streaming_ = false;
    return !settings.session.empty() || settings.platform != PlatformChoice::absent;
}

const char* RearCamera::friendlyName() {
    const std::lock_guard<std::mutex> lock(mutex_);
    return name_.c_str();
}

std::optional<Fault> RearCamera::strike(const char* operation) {
    const std::lock_guard<std::mutex> lock(mutex_);
    std::optional<Fault> fault = faults_.strike(operation);
    disconnected_ = disconnected_ || (fault && fault->kind == FaultKind::gone);
    return fault;
}

/// Carries out the action under the lock. A call that hangs does so without the lock, so that the module does not hang
/// as well.
template <typename Action>
bool RearCamera::perform(const char* operation, Action action) {
    const std::optional<Fault> fault = strike(operation);
    if (fault) beginFault(*fault);
    const std::lock_guard<std::mutex> lock(mutex_);
    if (disconnected_) return false;
    if (fault && fault->kind == FaultKind::lie) return true;
    if ((fault && !isDoneUnder(fault->kind)) || !action()) return false;
    if (fault) endFault(*fault);
    disconnected_ = fault && fault->kind == FaultKind::goneAfter;
    return !disconnected_ && !(fault && fault->kind == FaultKind::done);
}

bool RearCamera::openCamera() {
    return perform("openCamera", [this] { return opened_ = true; });
}

bool RearCamera::setAutoFocus(bool) {
    return perform("setAutoFocus", [this] { return opened_; });
}

bool RearCamera::setFocus(std::int32_t value) {
    return perform("setFocus", [&] { return opened_ && value >= 0; });
}

bool RearCamera::setupStream(std::int32_t stream, std::int32_t width, std::int32_t height, std::int32_t framesPerSecond,
                             const char* subtype) {
    const bool record = stream == kRecordStream;
    const bool sizeFits = record ? width == kPlatformWidth && height == kPlatformHeight : width > 0 && height > 0;
    // The photo stream has no rate.
    const bool rateFits = framesPerSecond > 0 || stream == kPhotoStream;
    const bool valid = stream >= 0 && stream <= kPhotoStream && sizeFits && rateFits && subtype != nullptr &&
                       std::strcmp(subtype, "NV12") == 0;
    return perform("setupStream", [&] {
        if (!opened_ || !valid) return false;
        streaming_ = streaming_ || record;
        return true;
    });
}

void RearCamera::setSink(RearCameraSink* sink) {
    perform("setSink", [&] {
        sink_ = sink;
        return true;
    });
}

bool RearCamera::streams() {
    const std::lock_guard<std::mutex> lock(mutex_);
    return streaming_ && sink_ != nullptr;
}

void RearCamera::show(const std::uint8_t* nv12, double timeSeconds) {
    const std::lock_guard<std::mutex> lock(mutex_);
    if (streaming_ && sink_ != nullptr) sink_->onImage(nv12, kPlatformWidth, kPlatformHeight, timeSeconds);
}

void RearCamera::showDark() {
    static const std::vector<std::uint8_t> dark = darkNv12();
    show(dark.data(), 0);
}

}  // namespace kxsim
