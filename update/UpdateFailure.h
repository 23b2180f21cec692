#pragma once

namespace fieldcal {

/// Why there is no update, once the user has asked for it.
enum class UpdateFailure {
    Connection,    ///< broken, and not to be had again
    Server,        ///< an answer that is refused
    Disk,          ///< the file cannot be written
    Damaged,       ///< not what the manifest promised
    Unsigned,      ///< the running program has no signature that an installer's could be compared with
    NotTrusted,    ///< the installer's signature is missing, broken or somebody else's
    NoInstallers,  ///< this system has none
    NotStarted,
};

}  // namespace fieldcal
