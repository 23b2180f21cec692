#include "app/KeepAwake.h"

#include <QtGlobal>

namespace fieldcal {

// The desktops inhibit sleep over D-Bus, which nothing else in this program needs.
void keepAwake(bool on) {
    if (on) qInfo("When the display goes off is left to the system's own settings.");
}

}  // namespace fieldcal
