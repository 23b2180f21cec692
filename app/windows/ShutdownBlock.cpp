#include "app/ShutdownBlock.h"

#include <QWindow>

#include <windows.h>

namespace fieldcal {

// The main thread is busy during a save. The system therefore waits for the answer of this window, and shows the reason
// meanwhile.
ShutdownBlock::ShutdownBlock(const QWindow* window, const QString& reason) {
    if (window == nullptr || window->handle() == nullptr) return;
    const auto handle = reinterpret_cast<HWND>(window->winId());
    if (ShutdownBlockReasonCreate(handle, reason.toStdWString().c_str())) {
        window_ = handle;
    } else {
        qInfo("A shutdown during the save cannot be blocked: %lu", GetLastError());
    }
}

ShutdownBlock::~ShutdownBlock() {
    if (window_ != nullptr) ShutdownBlockReasonDestroy(static_cast<HWND>(window_));
}

}  // namespace fieldcal
