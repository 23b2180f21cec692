#include "app/ShutdownBlock.h"

namespace fieldcal {

// Linux desktops delay a shutdown over D-Bus, which this program does not use otherwise.
ShutdownBlock::ShutdownBlock(const QWindow* /*window*/, const QString& /*reason*/) {}

ShutdownBlock::~ShutdownBlock() {
    window_ = nullptr;
}

}  // namespace fieldcal
