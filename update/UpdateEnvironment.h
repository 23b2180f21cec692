#pragma once

#include "update/InstallerStarter.h"
#include "update/Version.h"

#include <QList>
#include <QSslCertificate>
#include <QString>
#include <QUrl>

#include <chrono>
#include <memory>
#include <optional>

namespace fieldcal {

/// What the software update finds outside itself, and how far it goes.
struct UpdateEnvironment {
    QUrl manifest;  ///< empty: nobody is asked
    std::optional<Version> running;
    QList<QSslCertificate> authorities;  ///< whose certificates are trusted; empty: the system's
    QString temporaryFolder;
    std::shared_ptr<InstallerStarter> starter;

    std::chrono::milliseconds manifestTimeout{10000};
    std::chrono::milliseconds stallTimeout{20000};  ///< without a byte of the installer
    std::chrono::milliseconds retryPause{1000};  ///< before the first new attempt; each further one waits twice as long
    int retries = 4;                             ///< in a row that bring nothing new
    qint64 manifestLimitBytes = 64 * 1024;
    qint64 installerLimitBytes = 512LL * 1024 * 1024;
};

/// `manifest` as it was configured; all else is the system's.
UpdateEnvironment systemUpdateEnvironment(const QUrl& manifest);

}  // namespace fieldcal
