#include "devices/SingleInstance.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fieldcal {
namespace {

/// Returns a path in the session's runtime folder, or in a world-writable folder under a name specific to the user.
std::string lockFile() {
    const char* session = std::getenv("XDG_RUNTIME_DIR");
    if (session != nullptr && *session == '/') return std::string(session) + "/field-calibrator.lock";
    return "/tmp/field-calibrator-" + std::to_string(getuid()) + ".lock";
}

/// A copy of this user's session has created the file itself; for root, that of the user who called sudo.
bool createdByOwnCopy(uid_t owner) {
    const char* caller = getuid() == 0 ? std::getenv("SUDO_UID") : nullptr;
    return owner == getuid() || (caller != nullptr && std::to_string(owner) == caller);
}

}  // namespace

struct SingleInstance::Handle {
    int file = -1;
    bool first = false;
    bool takenByOthers = false;
};

SingleInstance::SingleInstance() : handle_(std::make_unique<Handle>()) {
    handle_->file = open(lockFile().c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    // A folder without write access must not prevent the program from starting.
    handle_->first = handle_->file < 0 || flock(handle_->file, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
    struct stat present {};
    handle_->takenByOthers =
        !handle_->first && fstat(handle_->file, &present) == 0 && !createdByOwnCopy(present.st_uid);
}

SingleInstance::~SingleInstance() {
    if (handle_->file >= 0) close(handle_->file);
}

bool SingleInstance::isFirst() const {
    return handle_->first;
}

bool SingleInstance::isTakenByOthers() const {
    return handle_->takenByOthers;
}

}  // namespace fieldcal
