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

std::wstring widened(const char* ascii) {
    return {ascii, ascii + std::char_traits<char>::length(ascii)};
}

}  // namespace

void* openSharedLibrary(const char* name, std::string* why) {
    const std::wstring file = widened(name) + L".dll";
    const std::wstring own = programFolder() + file;
    const bool ownExists = GetFileAttributesW(own.c_str()) != INVALID_FILE_ATTRIBUTES;
    HMODULE module =
        ownExists ? LoadLibraryExW(own.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH) : LoadLibraryW(file.c_str());
    if (module == nullptr) {
        *why = std::string(name) + ".dll could not be loaded (error " + std::to_string(GetLastError()) + ")";
    }
    return reinterpret_cast<void*>(module);
}

void closeSharedLibrary(void* handle) {
    FreeLibrary(reinterpret_cast<HMODULE>(handle));
}

void* findSymbol(void* handle, const char* name) {
    return reinterpret_cast<void*>(GetProcAddress(reinterpret_cast<HMODULE>(handle), name));
}

}  // namespace kxapi
