#pragma once

#include <memory>

namespace fieldcal {

/// Held by the only program that uses the module, its service and the notes about both, from its start to its end; the
/// system releases it if the program crashes. A note found while it is held was therefore left by a program that
/// crashed. On Windows there is one holder per machine, elsewhere one per user session.
class SingleInstance {
public:
    SingleInstance();
    ~SingleInstance();
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;

    /// Returns false when another copy holds it.
    bool isFirst() const;
    /// Returns whether it is held, but not by a copy of this program: anybody may create something of its name.
    bool isTakenByOthers() const;

private:
    struct Handle;
    std::unique_ptr<Handle> handle_;
};

}  // namespace fieldcal
