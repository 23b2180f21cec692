#pragma once

namespace fieldcal {

/// Why an update failed that the user had requested.
enum class UpdateFailure {
    Connection,    ///< the connection broke and could not be restored
    Server,        ///< the server's answer was refused
    Disk,          ///< the file cannot be written
    Damaged,       ///< the file is not what the manifest describes
    Unsigned,      ///< the running program has no signature with which an installer's could be compared
    NotTrusted,    ///< the installer's signature is missing, broken or from another signer
    NoInstallers,  ///< this system has no installers
    NotStarted,
};

}  // namespace fieldcal
