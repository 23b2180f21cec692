#include "devices/windows/ComResult.h"

#include <QtGlobal>

namespace fieldcal {

bool succeeded(HRESULT result, const char* call) {
    if (SUCCEEDED(result)) return true;
    qInfo("Rear camera: %s failed (0x%08x)", call, static_cast<unsigned>(result));
    return false;
}

}  // namespace fieldcal
