#pragma once

#include "sound/Cue.h"

namespace fieldcal {

/// Starts playing a cue and returns at once. Where there is no device or no player, nothing is heard. Main thread.
void playCue(Cue cue);

}  // namespace fieldcal
