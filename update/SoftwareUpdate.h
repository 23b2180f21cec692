#pragma once

#include "update/InstallerDownload.h"
#include "update/UpdateEnvironment.h"
#include "update/UpdateListener.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <memory>
#include <optional>

class QNetworkAccessManager;
class QNetworkReply;

namespace fieldcal {

/// Checks once, at the start, for the newest version, and downloads and starts its installer at the user's request.
/// Failures before that request are only logged; afterwards they are also reported to the user. Main thread.
class SoftwareUpdate : public QObject, public InstallerDownload::Listener {
public:
    static constexpr const char* kInstallerArguments = "/S /AUTOSTART";

    SoftwareUpdate(UpdateEnvironment environment, UpdateListener& listener);
    ~SoftwareUpdate() override { release(); }

    /// `owner` receives the answer in its slots slot_networkReplyLatestVersionJsonFinished(QNetworkReply*) and
    /// slot_timeoutNetworkReplyJson(), and forwards it.
    void start(QObject* owner);
    void manifestReceived(QNetworkReply* reply);
    void timedOut();

    /// Downloads the offered installer, checks it and starts it. Has no effect while that is in progress.
    void download();
    /// Cancels a download and removes its file.
    void abort();
    /// Releases all resources and removes the files from the disk.
    void release();

private:
    QString reasonNotToAsk() const;
    void watchSize();
    void endAsking(const QString& why);
    void offer();
    void startInstaller();

    void downloadProgressed(qint64 receivedBytes, qint64 totalBytes) override;
    void downloadInterrupted() override;
    void downloadEnded(std::optional<UpdateFailure> failure) override;

    const UpdateEnvironment environment_;
    UpdateListener& listener_;
    QPointer<QNetworkAccessManager> network_;
    QPointer<QNetworkReply> reply_;
    QPointer<QTimer> timeout_;
    std::optional<Manifest> offered_;
    std::unique_ptr<InstallerDownload> download_;
    QTimer startDelay_;  ///< runs from the end of the download to the start of the installer
};

}  // namespace fieldcal
