#include "kxapi/SharedLibrary.h"

#include <climits>
#include <dlfcn.h>
#include <unistd.h>

namespace kxapi {
namespace {

std::string programFolder() {
    char path[PATH_MAX];
    const ssize_t length = readlink("/proc/self/exe", path, sizeof(path));
    if (length <= 0) return {};
    const std::string full(path, static_cast<std::size_t>(length));
    return full.substr(0, full.rfind('/') + 1);
}

bool exists(const std::string& path) {
    return access(path.c_str(), F_OK) == 0;
}

/// Set when libraries may be loaded from this folder only.
std::string& onlyFolder() {
    static std::string folder;
    return folder;
}

}  // namespace

void* openSharedLibrary(const char* name, std::string* why) {
    const bool restricted = !onlyFolder().empty();
    const std::string folder = restricted ? onlyFolder() : programFolder();
    const std::string adapter = folder + "lib" + name + "Adapter.so";
    const std::string file = std::string("lib") + name + ".so";
    // A library that exists but is broken must be reported as broken, not as missing.
    std::string chosen = restricted || exists(folder + file) ? folder + file : file;
    if (!restricted && exists(adapter)) chosen = adapter;
    void* handle = dlopen(chosen.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (handle == nullptr) {
        const char* text = dlerror();
        *why = text != nullptr ? text : "the library could not be loaded";
    }
    return handle;
}

bool restrictToSimulated(const char* folder) {
    const std::string path = programFolder() + folder + '/';
    // On this system the libraries beside the program are the simulated ones.
    if (access(path.c_str(), X_OK) == 0) onlyFolder() = path;
    return true;
}

void closeSharedLibrary(void* handle) {
    dlclose(handle);
}

void* findSymbol(void* handle, const char* name) {
    return dlsym(handle, name);
}

}  // namespace kxapi
