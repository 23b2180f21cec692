#pragma once

namespace kxapi {

/// Where the loaders look for the camera libraries.
enum class LibrarySearch {
    Installed,     ///< in the program's own folder, then wherever the system searches
    SimulatedOnly  ///< in the folder `simulated` beside the program, so that a real camera is never reached
};

/// Returns false when the folder with the simulated libraries is missing on a system that requires it. Linux does not
/// require it, because there the simulated libraries lie beside the program itself.
bool hasSimulatedLibraries();

}  // namespace kxapi
