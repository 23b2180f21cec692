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

/// Asks once, at the start, which version there is to be had, and fetches and starts its installer when the user wants
/// it. Until then, whatever goes wrong is a line in the log and nothing else; the user hears only of what he asked
/// for. Main thread.
class SoftwareUpdate : public QObject, public InstallerDownload::Listener {
public:
    static constexpr const char* kInstallerArguments = "/S /AUTOSTART";

    SoftwareUpdate(UpdateEnvironment environment, UpdateListener& listener);
    ~SoftwareUpdate() override { release(); }

    /// `owner` gets the answer in its slots slot_networkReplyLatestVersionJsonFinished(QNetworkReply*) and
    /// slot_timeoutNetworkReplyJson(), and passes it on.
    void start(QObject* owner);
    void manifestReceived(QNetworkReply* reply);
    void timedOut();

    /// Fetches what was offered, checks it and starts it; nothing while that is under way already.
    void download();
    /// Gives up a download, and removes what there is of it.
    void abort();
    /// Gives everything back, and removes what is on the disk.
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
    QTimer seen_;  ///< from the end of the download to the installer's start
};

}  // namespace fieldcal
