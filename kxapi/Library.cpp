#include "kxapi/Library.h"

#include "kxapi/SharedLibrary.h"

namespace {

template <typename Function>
bool take(void* handle, const char* name, Function* out, std::string* why) {
    *out = reinterpret_cast<Function>(kxapi::findSymbol(handle, name));
    if (*out == nullptr) *why = std::string("the library KXAPI does not export ") + name;
    return *out != nullptr;
}

}  // namespace

std::shared_ptr<const KXLibrary> KXLibrary::load(std::string* why, kxapi::LibrarySearch search) {
    auto library = std::make_shared<KXLibrary>();
    library->handle_ = kxapi::openSharedLibrary("KXAPI", search, why);
    if (library->handle_ == nullptr || !library->resolve(why)) return nullptr;
    return library;
}

bool KXLibrary::resolve(std::string* why) {
    KXInterfaceVersionFunction version = nullptr;
    if (!take(handle_, "KXInterfaceVersion", &version, why)) return false;
    if (version() != KX_INTERFACE_VERSION) {
        *why = "the library KXAPI has interface version " + std::to_string(version()) + ", this program needs " +
               std::to_string(KX_INTERFACE_VERSION);
        return false;
    }
    return take(handle_, "KXCreate", &create, why) && take(handle_, "KXDestroy", &destroy, why) &&
           take(handle_, "KXStatusString", &statusString, why) &&
           take(handle_, "KXRectificationTable", &rectificationTable, why) &&
           take(handle_, "KXRectifyBGRA8ToBGRA8", &rectifyBGRA8ToBGRA8, why);
}

void* KXLibrary::symbol(const char* name) const {
    return handle_ != nullptr ? kxapi::findSymbol(handle_, name) : nullptr;
}

KXLibrary::~KXLibrary() {
    if (handle_ != nullptr) kxapi::closeSharedLibrary(handle_);
}
