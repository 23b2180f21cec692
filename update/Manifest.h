#pragma once

#include "update/Version.h"

#include <QByteArray>
#include <QUrl>

#include <optional>

namespace fieldcal {

/// What the download server says of the newest version: "Version.json", an object with "version" and "url", and
/// optionally "sha256". Other keys are left alone.
struct Manifest {
    Version version;
    QUrl installer;     ///< HTTPS
    QByteArray sha256;  ///< 32 bytes; empty: not told

    /// None, with a reason, when anything is missing or not of its form.
    static std::optional<Manifest> parse(const QByteArray& json, QString* why);
};

/// Whether it may be asked at all: an absolute HTTPS address with a host, and without a user's name.
bool isHttpsAddress(const QUrl& url);

}  // namespace fieldcal
