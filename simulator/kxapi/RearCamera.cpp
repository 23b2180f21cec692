#include "simulator/kxapi/RearCamera.h"

#include "session/RecordedSession.h"
#include "simulator/kxapi/Settings.h"

#include <cstring>

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
    opened_ = false;
    streaming_ = false;
    return !settings.session.empty() || !settings.platformAbsent;
}

const char* RearCamera::friendlyName() {
    const std::lock_guard<std::mutex> lock(mutex_);
    return name_.c_str();
}

bool RearCamera::succeeds(const char* operation, bool valid) {
    return !faults_.strike(operation) && valid;
}

bool RearCamera::openCamera() {
    const std::lock_guard<std::mutex> lock(mutex_);
    opened_ = succeeds("openCamera", true);
    return opened_;
}

bool RearCamera::setAutoFocus(bool) {
    const std::lock_guard<std::mutex> lock(mutex_);
    return succeeds("setAutoFocus", opened_);
}

bool RearCamera::setFocus(std::int32_t value) {
    const std::lock_guard<std::mutex> lock(mutex_);
    return succeeds("setFocus", opened_ && value >= 0);
}

bool RearCamera::setupStream(std::int32_t stream, std::int32_t width, std::int32_t height, std::int32_t framesPerSecond,
                             const char* subtype) {
    const std::lock_guard<std::mutex> lock(mutex_);
    const bool record = stream == kRecordStream;
    const bool sizeFits = record ? width == kPlatformWidth && height == kPlatformHeight : width > 0 && height > 0;
    // A photo stream has no rate.
    const bool rateFits = framesPerSecond > 0 || stream == kPhotoStream;
    const bool valid = opened_ && stream >= 0 && stream <= kPhotoStream && sizeFits && rateFits && subtype != nullptr &&
                       std::strcmp(subtype, "NV12") == 0;
    if (!succeeds("setupStream", valid)) return false;
    streaming_ = streaming_ || record;
    return true;
}

void RearCamera::setSink(RearCameraSink* sink) {
    const std::lock_guard<std::mutex> lock(mutex_);
    sink_ = sink;
}

void RearCamera::show(const std::uint8_t* nv12, double timeSeconds) {
    const std::lock_guard<std::mutex> lock(mutex_);
    if (streaming_ && sink_ != nullptr) sink_->onPicture(nv12, kPlatformWidth, kPlatformHeight, timeSeconds);
}

}  // namespace kxsim
