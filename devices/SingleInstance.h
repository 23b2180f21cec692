#pragma once

#include <memory>

namespace fieldcal {

/// Held by the one program that uses the module, its service and the notes about both, from its start to its end; the
/// system lets go of it when the program dies. So a note that is there while this is held is a dead program's. On
/// Windows one runs on a machine, elsewhere one in a user's session.
class SingleInstance {
public:
    SingleInstance();
    ~SingleInstance();
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;

    /// False: another copy holds it.
    bool isFirst() const;

private:
    struct Handle;
    std::unique_ptr<Handle> handle_;
};

}  // namespace fieldcal
