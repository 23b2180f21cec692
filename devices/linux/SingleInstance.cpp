#include "devices/SingleInstance.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <sys/file.h>
#include <unistd.h>

namespace fieldcal {
namespace {

/// In the session's folder, or in one that everybody may write to, under a name of the user's own.
std::string lockFile() {
    const char* session = std::getenv("XDG_RUNTIME_DIR");
    if (session != nullptr && *session == '/') return std::string(session) + "/field-calibrator.lock";
    return "/tmp/field-calibrator-" + std::to_string(getuid()) + ".lock";
}

}  // namespace

struct SingleInstance::Handle {
    int file = -1;
    bool first = false;
};

SingleInstance::SingleInstance() : handle_(std::make_unique<Handle>()) {
    handle_->file = open(lockFile().c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    // A folder that cannot be written to must not keep the program from starting.
    handle_->first = handle_->file < 0 || flock(handle_->file, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

SingleInstance::~SingleInstance() {
    if (handle_->file >= 0) close(handle_->file);
}

bool SingleInstance::isFirst() const {
    return handle_->first;
}

}  // namespace fieldcal
