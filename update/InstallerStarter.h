#pragma once

#include "update/ProgramIdentity.h"
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
    /// Starts the file as a separate process, if its signer is that of the running program and it is the expected
    /// installer. From before the check until the process ends, no other program can change, rename or remove the file.
    /// Returns none when the installer runs.
    virtual std::optional<UpdateFailure> start(const QString& installer, const QString& arguments,
                                               const ExpectedInstaller& expected) = 0;
};

std::unique_ptr<InstallerStarter> systemInstallerStarter();

}  // namespace fieldcal
