#include "files/SystemFile.h"

#include <filesystem>
#include <system_error>
#include <windows.h>

namespace fieldcal {
namespace {

constexpr std::intptr_t kClosed = -1;  // the value of INVALID_HANDLE_VALUE

std::wstring wide(const std::string& name) {
    return std::filesystem::u8path(name).make_preferred().wstring();
}

std::string errorText() {
    std::string text = std::system_category().message(static_cast<int>(GetLastError()));
    while (!text.empty() && (text.back() == '\n' || text.back() == '\r' || text.back() == '.'))
        text.pop_back();
    return text;
}

bool failedWith(std::string* reason) {
    *reason = errorText();
    return false;
}

HANDLE asHandle(std::intptr_t handle) {
    return reinterpret_cast<HANDLE>(handle);
}

std::intptr_t opened(const std::string& name, DWORD access, DWORD creation) {
    const DWORD shared = FILE_SHARE_READ | FILE_SHARE_WRITE;
    const HANDLE handle =
        CreateFileW(wide(name).c_str(), access, shared, nullptr, creation, FILE_ATTRIBUTE_NORMAL, nullptr);
    return reinterpret_cast<std::intptr_t>(handle);
}

}  // namespace

SystemFile::~SystemFile() {
    close();
}

bool SystemFile::failed() {
    reason_ = errorText();
    return false;
}

/// The new file inherits its access rights from the folder.
bool SystemFile::create(const std::string& name, const std::string&) {
    handle_ = opened(name, GENERIC_WRITE, CREATE_NEW);
    nameIsTaken_ = handle_ == kClosed && GetLastError() == ERROR_FILE_EXISTS;
    return handle_ != kClosed || failed();
}

bool SystemFile::openToChange(const std::string& name) {
    handle_ = opened(name, GENERIC_READ | GENERIC_WRITE, OPEN_ALWAYS);
    return handle_ != kClosed || failed();
}

bool SystemFile::openToSync(const std::string& name) {
    handle_ = opened(name, GENERIC_READ | GENERIC_WRITE, OPEN_EXISTING);
    return handle_ != kClosed || failed();
}

bool SystemFile::write(const void* bytes, std::size_t size) {
    constexpr std::size_t kMost = 1 << 24;
    const char* next = static_cast<const char*>(bytes);
    while (size > 0) {
        DWORD taken = 0;
        const DWORD length = static_cast<DWORD>(size < kMost ? size : kMost);
        if (!WriteFile(asHandle(handle_), next, length, &taken, nullptr)) return failed();
        next += taken;
        size -= taken;
    }
    return true;
}

bool SystemFile::readAt(std::uint64_t position, char* byte) {
    LARGE_INTEGER place;
    place.QuadPart = static_cast<LONGLONG>(position);
    DWORD got = 0;
    return (SetFilePointerEx(asHandle(handle_), place, nullptr, FILE_BEGIN) &&
            ReadFile(asHandle(handle_), byte, 1, &got, nullptr) && got == 1) ||
           failed();
}

bool SystemFile::size(std::uint64_t* out) {
    LARGE_INTEGER size;
    if (!GetFileSizeEx(asHandle(handle_), &size)) return failed();
    *out = static_cast<std::uint64_t>(size.QuadPart);
    return true;
}

bool SystemFile::resize(std::uint64_t size) {
    LARGE_INTEGER end;
    end.QuadPart = static_cast<LONGLONG>(size);
    return (SetFilePointerEx(asHandle(handle_), end, nullptr, FILE_BEGIN) && SetEndOfFile(asHandle(handle_))) ||
           failed();
}

bool SystemFile::seekToEnd() {
    return SetFilePointerEx(asHandle(handle_), LARGE_INTEGER{}, nullptr, FILE_END) || failed();
}

bool SystemFile::sync() {
    return FlushFileBuffers(asHandle(handle_)) || failed();
}

bool SystemFile::close() {
    if (handle_ == kClosed) return true;
    const HANDLE handle = asHandle(handle_);
    handle_ = kClosed;
    return CloseHandle(handle) || failed();
}

std::string behindLinks(const std::string& file) {
    std::error_code error;
    const auto path = std::filesystem::u8path(file);
    if (!std::filesystem::is_symlink(path, error)) return file;
    const auto target = std::filesystem::canonical(path, error);
    return error ? file : target.u8string();
}

bool mayBeReplaced(const std::string& file, std::string* reason) {
    const DWORD attributes = GetFileAttributesW(wide(file).c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) return true;
    if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        *reason = "it is a folder";
        return false;
    }
    if ((attributes & FILE_ATTRIBUTE_READONLY) == 0) return true;
    SetLastError(ERROR_ACCESS_DENIED);
    return failedWith(reason);
}

bool renameOver(const std::string& from, const std::string& to, std::string* reason) {
    return MoveFileExW(wide(from).c_str(), wide(to).c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) ||
           failedWith(reason);
}

bool unlinkFile(const std::string& file, std::string* reason) {
    if (DeleteFileW(wide(file).c_str())) return true;
    const DWORD error = GetLastError();
    return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND || failedWith(reason);
}

/// Windows file systems write folder entries in order by themselves; an explicit sync is not needed.
bool syncFolder(const std::string&, std::string*) {
    return true;
}

bool makeFolder(const std::string& folder, bool* made, std::string* reason) {
    *made = CreateDirectoryW(wide(folder).c_str(), nullptr);
    if (*made) return true;
    const DWORD error = GetLastError();
    const DWORD attributes = GetFileAttributesW(wide(folder).c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return true;
    SetLastError(error);
    return failedWith(reason);
}

unsigned long processNumber() {
    return GetCurrentProcessId();
}

}  // namespace fieldcal
