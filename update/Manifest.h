#pragma once

#include "update/Version.h"

#include <QByteArray>
#include <QUrl>

#include <optional>

namespace fieldcal {

/// The download server's description of the newest version: "Version.json", an object with "version" and "url", and
/// optionally "sha256". Other keys are ignored.
struct Manifest {
    Version version;
    QUrl installer;     ///< HTTPS
    QByteArray sha256;  ///< 32 bytes; empty when the server gave none

    /// Returns none, with a reason, when anything is missing or malformed.
    static std::optional<Manifest> parse(const QByteArray& json, QString* why);
};

/// Returns whether the address may be contacted: an absolute HTTPS address with a host and without a user name.
bool isHttpsAddress(const QUrl& url);

}  // namespace fieldcal
