#pragma once

#include <QString>

class QWindow;

namespace fieldcal {

/// While an instance exists, the system asks the user before it shuts down or logs off, and shows the reason. Elsewhere
/// than on Windows it has no effect. Main thread.
class ShutdownBlock {
public:
    ShutdownBlock(const QWindow* window, const QString& reason);
    ~ShutdownBlock();
    ShutdownBlock(const ShutdownBlock&) = delete;
    ShutdownBlock& operator=(const ShutdownBlock&) = delete;

private:
    void* window_ = nullptr;  ///< the system's handle; null when nothing is blocked
};

}  // namespace fieldcal
