#include "devices/RearCameraBackend.h"

#include <utility>

namespace fieldcal {
namespace {

KXSimRearCameraFunction functionOf(const KXLibrary& library) {
    return reinterpret_cast<KXSimRearCameraFunction>(library.symbol("KXSimRearCamera"));
}

RearCameraSource* sourceOf(const KXLibrary& library) {
    const auto rearCamera = functionOf(library);
    return rearCamera != nullptr ? rearCamera() : nullptr;
}

}  // namespace

bool RearCameraBackend::isIn(const KXLibrary& library) {
    return functionOf(library) != nullptr;
}

RearCameraBackend::RearCameraBackend(std::shared_ptr<const KXLibrary> library) : library_(std::move(library)) {}

bool RearCameraBackend::selectDevice(const std::string& friendlyName) {
    RearCameraSource* source = sourceOf(*library_);
    const char* name = source != nullptr ? source->friendlyName() : nullptr;
    if (name == nullptr || friendlyName != name) return false;
    source_ = source;
    return true;
}

bool RearCameraBackend::openCamera() {
    return source_ != nullptr && source_->openCamera();
}

bool RearCameraBackend::setAutoFocus(bool on) {
    return source_ != nullptr && source_->setAutoFocus(on);
}

bool RearCameraBackend::setFocus(std::int32_t value) {
    return source_ != nullptr && source_->setFocus(value);
}

bool RearCameraBackend::setupStream(Stream stream, std::int32_t width, std::int32_t height,
                                    std::int32_t framesPerSecond, const std::string& subtype) {
    return source_ != nullptr &&
           source_->setupStream(static_cast<std::int32_t>(stream), width, height, framesPerSecond, subtype.c_str());
}

void RearCameraBackend::setSink(RearCameraSink* sink) {
    if (source_ != nullptr) source_->setSink(sink);
}

}  // namespace fieldcal
