#include "kxapi/SharedLibrary.h"

#include <windows.h>

namespace kxapi {
namespace {

std::wstring programFolder() {
    std::wstring path(32768, L'\0');
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    path.resize(length);
    return path.substr(0, path.find_last_of(L"\\/") + 1);
}

std::wstring simulatedFolder() {
    return programFolder() + L"simulated\\";
}

bool exists(const std::wstring& path) {
    return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::wstring widened(const char* ascii) {
    return {ascii, ascii + std::char_traits<char>::length(ascii)};
}

}  // namespace

void* openSharedLibrary(const char* name, LibrarySearch search, std::string* why) {
    const std::wstring file = widened(name) + L".dll";
    const bool restricted = search == LibrarySearch::SimulatedOnly;
    const std::wstring folder = restricted ? simulatedFolder() : programFolder();
    const std::wstring adapter = folder + widened(name) + L"Adapter.dll";
    const std::wstring own = !restricted && exists(adapter) ? adapter : folder + file;
    // The current folder and the folders of PATH are not searched, because others may be able to write to them while
    // this program runs with administrator rights.
    const HMODULE module =
        restricted || exists(own)
            ? LoadLibraryExW(own.c_str(), nullptr, LOAD_LIBRARY_SEARCH_DLL_LOAD_DIR | LOAD_LIBRARY_SEARCH_DEFAULT_DIRS)
            : LoadLibraryExW(file.c_str(), nullptr, LOAD_LIBRARY_SEARCH_DEFAULT_DIRS);
    if (module == nullptr) {
        *why = std::string(name) + ".dll could not be loaded (error " + std::to_string(GetLastError()) + ")";
    }
    return reinterpret_cast<void*>(module);
}

bool hasSimulatedLibraries() {
    return exists(simulatedFolder());
}

void closeSharedLibrary(void* handle) {
    FreeLibrary(reinterpret_cast<HMODULE>(handle));
}

void* findSymbol(void* handle, const char* name) {
    return reinterpret_cast<void*>(GetProcAddress(reinterpret_cast<HMODULE>(handle), name));
}

}  // namespace kxapi
