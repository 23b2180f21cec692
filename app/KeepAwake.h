#pragma once

namespace fieldcal {

/// Keeps the display and the system awake from the first `true` to the next `false` or to the end of the process. Main
/// thread. Where the system does not support it, an info line is logged.
void keepAwake(bool on);

}  // namespace fieldcal
