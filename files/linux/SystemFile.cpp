#include "files/SystemFile.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace fieldcal {
namespace {

constexpr mode_t kUsualRights = 0666;
constexpr mode_t kRights = 07777;

std::string errorText() {
    return std::generic_category().message(errno);
}

bool failedWith(std::string* reason) {
    *reason = errorText();
    return false;
}

/// Some file systems do not support syncing a folder or a special file. Nothing is buffered there that could be lost.
bool syncDescriptor(int descriptor) {
    return fsync(descriptor) == 0 || errno == EINVAL || errno == ENOTSUP;
}

}  // namespace

SystemFile::~SystemFile() {
    close();
}

bool SystemFile::failed() {
    reason_ = errorText();
    return false;
}

bool SystemFile::create(const std::string& name, const std::string& like) {
    handle_ = open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kUsualRights);
    nameIsTaken_ = handle_ < 0 && errno == EEXIST;
    if (handle_ < 0) return failed();
    struct stat present {};
    // A failure is ignored: on a file system without access rights there are none to keep.
    if (stat(like.c_str(), &present) == 0) (void)!fchmod(static_cast<int>(handle_), present.st_mode & kRights);
    return true;
}

bool SystemFile::openToChange(const std::string& name) {
    handle_ = open(name.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NONBLOCK, kUsualRights);
    return handle_ >= 0 || failed();
}

bool SystemFile::openToSync(const std::string& name) {
    handle_ = open(name.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    return handle_ >= 0 || failed();
}

bool SystemFile::write(const void* bytes, std::size_t size) {
    const char* next = static_cast<const char*>(bytes);
    while (size > 0) {
        const ssize_t taken = ::write(static_cast<int>(handle_), next, size);
        if (taken < 0 && errno == EINTR) continue;
        if (taken < 0) return failed();
        next += taken;
        size -= static_cast<std::size_t>(taken);
    }
    return true;
}

bool SystemFile::readAt(std::uint64_t position, char* byte) {
    return pread(static_cast<int>(handle_), byte, 1, static_cast<off_t>(position)) == 1 || failed();
}

bool SystemFile::size(std::uint64_t* out) {
    struct stat now {};
    if (fstat(static_cast<int>(handle_), &now) != 0) return failed();
    *out = static_cast<std::uint64_t>(now.st_size);
    return true;
}

bool SystemFile::resize(std::uint64_t size) {
    return ftruncate(static_cast<int>(handle_), static_cast<off_t>(size)) == 0 || failed();
}

bool SystemFile::seekToEnd() {
    return lseek(static_cast<int>(handle_), 0, SEEK_END) >= 0 || failed();
}

bool SystemFile::sync() {
    return syncDescriptor(static_cast<int>(handle_)) || failed();
}

bool SystemFile::close() {
    if (handle_ < 0) return true;
    const int descriptor = static_cast<int>(handle_);
    handle_ = -1;
    // The descriptor is closed even when close() is interrupted.
    return ::close(descriptor) == 0 || errno == EINTR || failed();
}

std::string behindLinks(const std::string& file) {
    char* found = realpath(file.c_str(), nullptr);
    if (found == nullptr) return file;
    std::string name = found;
    std::free(found);
    return name;
}

bool mayBeReplaced(const std::string& file, std::string* reason) {
    struct stat present {};
    if (stat(file.c_str(), &present) != 0) return true;
    if (!S_ISREG(present.st_mode)) {
        *reason = S_ISDIR(present.st_mode) ? "it is a folder" : "it is no regular file";
        return false;
    }
    return access(file.c_str(), W_OK) == 0 || failedWith(reason);
}

bool renameOver(const std::string& from, const std::string& to, std::string* reason) {
    return std::rename(from.c_str(), to.c_str()) == 0 || failedWith(reason);
}

bool unlinkFile(const std::string& file, std::string* reason) {
    return unlink(file.c_str()) == 0 || errno == ENOENT || failedWith(reason);
}

bool syncFolder(const std::string& folder, std::string* reason) {
    const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    // A folder with write but no read permission cannot be synced by the user.
    if (descriptor < 0) return errno == EACCES || failedWith(reason);
    const bool synced = syncDescriptor(descriptor) || failedWith(reason);
    ::close(descriptor);
    return synced;
}

bool makeFolder(const std::string& folder, bool* made, std::string* reason) {
    *made = mkdir(folder.c_str(), 0777) == 0;
    if (*made) return true;
    const int error = errno;
    struct stat present {};
    if (stat(folder.c_str(), &present) == 0 && S_ISDIR(present.st_mode)) return true;
    errno = error;
    return failedWith(reason);
}

unsigned long processNumber() {
    return static_cast<unsigned long>(getpid());
}

}  // namespace fieldcal
