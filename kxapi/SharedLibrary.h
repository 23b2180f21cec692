#pragma once

#include <string>

namespace kxapi {

/// The operating system's loader. One implementation per system.
/// Opens the library `name` ("KXAPI"). One that is called `nameAdapter` and lies in the program's own folder comes
/// first: there an adapter can stand beside a vendor's library whose file has our name. Then `name` in the program's
/// own folder, else by the system's search. Null and `why` on failure.
void* openSharedLibrary(const char* name, std::string* why);
/// See `useSimulatedLibraries` in `Library.h`; `folder` is beside the program.
bool restrictToSimulated(const char* folder);
void closeSharedLibrary(void* handle);
void* findSymbol(void* handle, const char* name);

}  // namespace kxapi
