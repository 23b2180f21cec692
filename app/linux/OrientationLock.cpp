#include "app/OrientationLock.h"

namespace fieldcal {

// Linux has no such function; the rotation lock of the window system is used instead.
void lockOrientation() {}

}  // namespace fieldcal
