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

/// Returns the folder to which a search is restricted; empty when it is not. Without a folder of their own, the
/// libraries beside the program are the simulated ones.
std::string onlyFolder(LibrarySearch search) {
    const std::string folder = programFolder() + "simulated/";
    return search == LibrarySearch::SimulatedOnly && access(folder.c_str(), X_OK) == 0 ? folder : std::string();
}

}  // namespace

void* openSharedLibrary(const char* name, LibrarySearch search, std::string* why) {
    const std::string only = onlyFolder(search);
    const bool restricted = !only.empty();
    const std::string folder = restricted ? only : programFolder();
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

bool hasSimulatedLibraries() {
    return true;
}

void closeSharedLibrary(void* handle) {
    dlclose(handle);
}

void* findSymbol(void* handle, const char* name) {
    return dlsym(handle, name);
}

}  // namespace kxapi
