#include "app/OrientationLock.h"

#include <QtGlobal>

#include <windows.h>

namespace fieldcal {
namespace {

constexpr int kLandscape = 1;

/// The function is resolved at run time, because some versions of Windows do not have it.
bool setRotationPreference(int orientation) {
    using Function = BOOL(WINAPI*)(int);
    const HMODULE user = GetModuleHandleA("user32.dll");
    const auto function =
        reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(user, "SetDisplayAutoRotationPreferences")));
    return function != nullptr && function(orientation) != 0;
}

}  // namespace

void lockOrientation() {
    if (!setRotationPreference(kLandscape)) qInfo("Failed to lock auto rotation state. This may not matter.");
}

}  // namespace fieldcal
