#include "app/OrientationLock.h"

namespace fieldcal {

// No such thing here; the window system's own rotation lock does it.
void lockOrientation() {}

}  // namespace fieldcal
