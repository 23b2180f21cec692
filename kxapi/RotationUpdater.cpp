#include "kxapi/RotationUpdater.h"

#include "kxapi/SharedLibrary.h"

namespace {

constexpr const char* kName = "CalibRectParamUpdater";

KXUpdateRotationFunction find(void* handle, const char* function, std::string* why) {
    const auto found = reinterpret_cast<KXUpdateRotationFunction>(kxapi::findSymbol(handle, function));
    if (found == nullptr) *why = std::string("the library ") + kName + " does not export " + function;
    return found;
}

}  // namespace

std::shared_ptr<const KXRotationUpdater> KXRotationUpdater::load(std::string* why, kxapi::LibrarySearch search) {
    auto library = std::make_shared<KXRotationUpdater>();
    library->handle_ = kxapi::openSharedLibrary(kName, search, why);
    if (library->handle_ == nullptr) return nullptr;
    library->updateThirdCamera = find(library->handle_, "KXUpdateThirdCameraRotation", why);
    library->updatePlatformCamera = find(library->handle_, "KXUpdatePlatformCameraRotation", why);
    if (library->updateThirdCamera == nullptr || library->updatePlatformCamera == nullptr) return nullptr;
    return library;
}

KXRotationUpdater::~KXRotationUpdater() {
    if (handle_ != nullptr) kxapi::closeSharedLibrary(handle_);
}
