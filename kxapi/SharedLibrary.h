#pragma once

#include <string>

namespace kxapi {

/// The operating system's loader, with one implementation per system.
/// Opens the library `name` ("KXAPI"). The search begins with a library called `nameAdapter` in the program's own
/// folder, so that an adapter can lie beside a vendor's library whose file has the name `name` itself. Then follow
/// `name` in the program's own folder and the system's search. Returns null and `why` on failure.
void* openSharedLibrary(const char* name, std::string* why);
/// See `useSimulatedLibraries` in `Library.h`. `folder`: name of a folder beside the program.
bool restrictToSimulated(const char* folder);
void closeSharedLibrary(void* handle);
void* findSymbol(void* handle, const char* name);

}  // namespace kxapi
