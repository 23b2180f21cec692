#pragma once

#include "kxapi/LibrarySearch.h"

#include <string>

namespace kxapi {

/// The operating system's loader, with one implementation per system.
/// Opens the library `name` ("KXAPI"). The search begins with a library called `nameAdapter` in the program's own
/// folder, so that an adapter can lie beside a vendor's library whose file has the name `name` itself. Then follow
/// `name` in the program's own folder and the system's search; `SimulatedOnly` has neither. Returns null and `why` on
/// failure.
void* openSharedLibrary(const char* name, LibrarySearch search, std::string* why);
void closeSharedLibrary(void* handle);
void* findSymbol(void* handle, const char* name);

}  // namespace kxapi
