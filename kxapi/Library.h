#pragma once

#include "kxapi/KXAPI.h"

#include <memory>
#include <string>

/// The shared library `KXAPI`, loaded at run time by name: the program's own folder first, then the system's way.
/// The program never knows whether a vendor's adapter or the simulated module answers.
class KXLibrary {
public:
    /// Null when the library is missing, lacks a function or has another interface version; `why` then says which.
    static std::shared_ptr<const KXLibrary> load(std::string* why);

    ~KXLibrary();
    KXLibrary(const KXLibrary&) = delete;
    KXLibrary& operator=(const KXLibrary&) = delete;

    KXCreateFunction create = nullptr;
    KXDestroyFunction destroy = nullptr;
    KXStatusStringFunction statusString = nullptr;
    KXRectificationTableFunction rectificationTable = nullptr;
    KXRectifyBGRA8ToBGRA8Function rectifyBGRA8ToBGRA8 = nullptr;

    /// A further exported function by name; null when the library has none. For optional extensions.
    void* symbol(const char* name) const;

    /// For tests: a library whose functions the caller fills in.
    KXLibrary() = default;

private:
    bool resolve(std::string* why);

    void* handle_ = nullptr;
};

/// From now on both libraries are looked for in the folder `simulated` beside the program and nowhere else, so that a
/// demonstration never reaches a real camera. False, and nothing changes: there is no such folder, and on this system
/// there must be one. Natively the simulated libraries lie beside the program itself, too. Before the first library is
/// loaded.
bool useSimulatedLibraries();
/// Whether that was asked for, with success.
bool usesSimulatedLibraries();
