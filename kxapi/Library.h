#pragma once

#include "kxapi/KXAPI.h"

#include <memory>
#include <string>

/// The shared library `KXAPI`, loaded at run time by name: from the program's own folder if it is there, otherwise by
/// the system's search. The program does not depend on whether the library is a vendor's adapter or the simulated
/// module.
class KXLibrary {
public:
    /// Returns null when the library is missing, lacks a function or has another interface version, and states the
    /// reason in `why`.
    static std::shared_ptr<const KXLibrary> load(std::string* why);

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

/// Restricts the search for both libraries to the folder `simulated` beside the program, so that a demonstration never
/// reaches a real camera. Returns false and changes nothing when that folder is missing on a system that requires it.
/// On Linux it is not required, because the simulated libraries lie beside the program itself. To be called before the
/// first library is loaded.
bool useSimulatedLibraries();
/// Returns whether `useSimulatedLibraries` was called successfully.
bool usesSimulatedLibraries();
