#pragma once

namespace fieldcal {

/// Keeps the display and the system on from the first `true` to the next `false`, or to the end of the process. On the
/// main thread. Where the system cannot, an info line says so.
void keepAwake(bool on);

}  // namespace fieldcal
