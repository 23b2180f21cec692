#pragma once

#include "update/UpdateFailure.h"

#include <QString>

#include <memory>
#include <optional>

namespace fieldcal {

/// Checks and starts installers; main thread. Every failure is explained in the log by a line of its own.
class InstallerStarter {
public:
    virtual ~InstallerStarter() = default;

    /// Why this program would not start any installer, whichever it is.
    virtual std::optional<UpdateFailure> obstacle() = 0;
    /// Starts the file as a process of its own, if it is signed by whoever signed the running program. From the check
    /// to the start nobody else can change it. None: it runs.
    virtual std::optional<UpdateFailure> start(const QString& installer, const QString& arguments) = 0;
};

std::unique_ptr<InstallerStarter> systemInstallerStarter();

}  // namespace fieldcal
