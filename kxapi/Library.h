#pragma once

#include "kxapi/KXAPI.h"
#include "kxapi/LibrarySearch.h"

#include <memory>
#include <string>

/// The shared library `KXAPI`, loaded at run time by name: from the program's own folder if it is there, otherwise by
/// the system's search. The program does not depend on whether the library is a vendor's adapter or the simulated
/// module.
class KXLibrary {
public:
    /// Returns null when the library is missing, lacks a function or has another interface version, and states the
    /// reason in `why`.
    static std::shared_ptr<const KXLibrary> load(std::string* why,
                                                 kxapi::LibrarySearch search = kxapi::LibrarySearch::Installed);

    ~KXLibrary();
    KXLibrary(const KXLibrary&) = delete;
    KXLibrary& operator=(const KXLibrary&) = delete;

    KXCreateFunction create = nullptr;
    KXDestroyFunction destroy = nullptr;
    KXStatusStringFunction statusString = nullptr;
    KXRectificationTableFunction rectificationTable = nullptr;
    KXRectifyBGRA8ToBGRA8Function rectifyBGRA8ToBGRA8 = nullptr;

    /// Returns another exported function by name, for optional extensions; null when the library has none.
    void* symbol(const char* name) const;

    /// For tests: a library whose functions are set by the caller.
    KXLibrary() = default;

private:
    bool resolve(std::string* why);

    void* handle_ = nullptr;
};
