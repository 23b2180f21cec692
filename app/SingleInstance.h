#pragma once

#include <memory>

namespace fieldcal {

/// Held by the only running copy of the program, from its start to its end; the system releases it if the program
/// crashes. On Windows there is one copy per machine, elsewhere one per user session.
class SingleInstance {
public:
    SingleInstance();
    ~SingleInstance();
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;

    /// Returns false when another copy holds it.
    bool isFirst() const;

private:
    struct Handle;
    std::unique_ptr<Handle> handle_;
};

}  // namespace fieldcal
