#pragma once

namespace fieldcal {

/// Keeps the screen of a tablet in landscape while the program runs. Where the system does not support it, an info line
/// is logged.
void lockOrientation();

}  // namespace fieldcal
