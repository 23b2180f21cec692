#pragma once

namespace fieldcal {

/// Keeps a tablet's screen in landscape as long as the program runs. Where the system cannot, an info line says so.
void lockOrientation();

}  // namespace fieldcal
