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

/// The environment and the limits of the software update.
struct UpdateEnvironment {
    QUrl manifest;  ///< empty: no check for updates
    std::optional<Version> running;
    QList<QSslCertificate> authorities;  ///< the trusted certificate authorities; empty: the system's
    QString temporaryFolder;             ///< in which the installer gets a private folder
    std::shared_ptr<InstallerStarter> starter;

    std::chrono::milliseconds manifestTimeout{10000};
    std::chrono::milliseconds stallTimeout{20000};  ///< longest time without data of the installer
    std::chrono::milliseconds retryPause{1000};     ///< before the first retry; doubled for each further one
    int retries = 4;                                ///< consecutive retries without progress
    qint64 manifestLimitBytes = 64 * 1024;
    qint64 installerLimitBytes = 512LL * 1024 * 1024;
};

/// Returns an environment with the configured `manifest`; everything else is the system's.
UpdateEnvironment systemUpdateEnvironment(const QUrl& manifest);

}  // namespace fieldcal
