#include "app/KeepAwake.h"

#include <QtGlobal>

#include <windows.h>

namespace fieldcal {

void keepAwake(bool on) {
    const EXECUTION_STATE wanted = on ? ES_DISPLAY_REQUIRED | ES_SYSTEM_REQUIRED : 0;
    if (SetThreadExecutionState(ES_CONTINUOUS | wanted) == 0) qInfo("Failed to change when the display goes off.");
}

}  // namespace fieldcal
