#include "app/KeepAwake.h"

#include <QtGlobal>

namespace fieldcal {

// Linux desktops inhibit sleep over D-Bus, which this program does not use otherwise.
void keepAwake(bool on) {
    if (on) qInfo("When the display goes off is left to the system's own settings.");
}

}  // namespace fieldcal
