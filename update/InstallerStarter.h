#pragma once

#include "update/UpdateFailure.h"

#include <QString>

#include <memory>
#include <optional>

namespace fieldcal {

/// Checks and starts installers. Main thread. Every failure is explained in the log in one line.
class InstallerStarter {
public:
    virtual ~InstallerStarter() = default;

    /// Returns the reason why this program cannot start any installer at all; none if it can.
    virtual std::optional<UpdateFailure> obstacle() = 0;
    /// Starts the file as a separate process, if its signer is that of the running program. From the check to the start
    /// no other program can change the file. Returns none when the installer runs.
    virtual std::optional<UpdateFailure> start(const QString& installer, const QString& arguments) = 0;
};

std::unique_ptr<InstallerStarter> systemInstallerStarter();

}  // namespace fieldcal
