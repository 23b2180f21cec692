#pragma once

#include "update/Version.h"

#include <QString>

#include <optional>

namespace fieldcal {

/// What a program's file states about itself.
struct ProgramIdentity {
    QString product;
    Version version;
};

/// The installer that has to be started.
struct ExpectedInstaller {
    Version offered;  ///< by the manifest
    Version running;
};

/// Returns why an installer must not be started: it is one of another product or of another version than the one
/// offered, or is not newer than the running program. An old installer has a valid signature, too. Empty if it may be
/// started. `stated`: none when the file states nothing.
QString reasonToRefuse(const std::optional<ProgramIdentity>& stated, const ExpectedInstaller& expected);

}  // namespace fieldcal
