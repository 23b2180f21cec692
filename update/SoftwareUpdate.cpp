#include "update/SoftwareUpdate.h"

#include "update/HttpsRequest.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QSslSocket>
#include <QTimer>

#include <utility>

namespace fieldcal {
namespace {

constexpr const char* kTooLong = "the answer is too long";
constexpr int kStartDelayMs = 100;  // gives the interface time to show that the installer starts, before it blocks the
                                    // main thread

}  // namespace

SoftwareUpdate::SoftwareUpdate(UpdateEnvironment environment, UpdateListener& listener)
    : environment_(std::move(environment)), listener_(listener) {
    startDelay_.setSingleShot(true);
    connect(&startDelay_, &QTimer::timeout, this, &SoftwareUpdate::startInstaller);
}

void SoftwareUpdate::start(QObject* owner) {
    if (environment_.manifest.isEmpty()) return;
    InstallerFile::removeLeftovers(environment_.temporaryFolder);
    const QString reason = reasonNotToAsk();
    if (!reason.isEmpty()) {
        qInfo("No update is looked for: %s.", qUtf8Printable(reason));
        return;
    }
    network_ = new QNetworkAccessManager(owner);
    QObject::connect(network_, SIGNAL(finished(QNetworkReply*)), owner,
                     SLOT(slot_networkReplyLatestVersionJsonFinished(QNetworkReply*)));
    reply_ = network_->get(httpsRequest(environment_.manifest, environment_));
    reply_->setReadBufferSize(environment_.manifestLimitBytes + 1);
    QObject::connect(reply_, &QNetworkReply::readyRead, this, &SoftwareUpdate::watchSize);
    timeout_ = new QTimer(owner);
    timeout_->setSingleShot(true);
    QObject::connect(timeout_, SIGNAL(timeout()), owner, SLOT(slot_timeoutNetworkReplyJson()));
    timeout_->start(environment_.manifestTimeout);
}

QString SoftwareUpdate::reasonNotToAsk() const {
    if (!QSslSocket::supportsSsl()) return "there is no TLS here";
    if (!isHttpsAddress(environment_.manifest)) return "the manifest's address is not HTTPS";
    if (!environment_.running) return "this program does not know its own version";
    return {};
}

void SoftwareUpdate::watchSize() {
    if (reply_ != nullptr && reply_->bytesAvailable() > environment_.manifestLimitBytes) endAsking(kTooLong);
}

void SoftwareUpdate::timedOut() {
    if (reply_ != nullptr) endAsking("no answer in time");
}

void SoftwareUpdate::manifestReceived(QNetworkReply* reply) {
    if (reply != reply_) return;  // an abandoned reply, or one for an installer
    if (reply->error() != QNetworkReply::NoError) {
        endAsking(reply->errorString());
    } else if (reply->bytesAvailable() > environment_.manifestLimitBytes) {
        endAsking(kTooLong);
    } else {
        QString why;
        offered_ = Manifest::parse(reply->readAll(), &why);
        endAsking(why);
        if (offered_) offer();
    }
}

void SoftwareUpdate::endAsking(const QString& why) {
    timeout_->stop();
    reply_->deleteLater();
    reply_ = nullptr;
    if (!why.isEmpty()) qInfo("No version manifest: %s", qUtf8Printable(why));
}

void SoftwareUpdate::offer() {
    const QString theirs = offered_->version.text(), ours = environment_.running->text();
    if (!(*environment_.running < offered_->version)) {
        offered_.reset();
        qInfo("Version %s is no newer than this one, %s.", qUtf8Printable(theirs), qUtf8Printable(ours));
        return;
    }
    qInfo("Version %s is offered; this is %s.", qUtf8Printable(theirs), qUtf8Printable(ours));
    listener_.updateOffered(theirs);
}

void SoftwareUpdate::download() {
    if (!offered_ || network_ == nullptr) {
        qInfo("No update was offered.");
        return;
    }
    if (download_ != nullptr) return;
    if (const std::optional<UpdateFailure> obstacle = environment_.starter->obstacle()) {
        listener_.updateFailed(*obstacle);
        return;
    }
    download_ = std::make_unique<InstallerDownload>(*network_, environment_, *offered_, *this);
    download_->begin();
}

void SoftwareUpdate::abort() {
    if (download_ != nullptr) qInfo("The update was given up by the user.");
    startDelay_.stop();
    download_.reset();
}

void SoftwareUpdate::downloadProgressed(qint64 receivedBytes, qint64 totalBytes) {
    listener_.updateProgressed(receivedBytes, totalBytes);
}

void SoftwareUpdate::downloadInterrupted() {
    listener_.updateInterrupted();
}

void SoftwareUpdate::downloadEnded(std::optional<UpdateFailure> failure) {
    if (failure) {
        download_->setParent(this);  // deleted with this object if no event loop runs any more
        download_.release()->deleteLater();
        listener_.updateFailed(*failure);
        return;
    }
    listener_.updateReceived();
    startDelay_.start(kStartDelayMs);
}

void SoftwareUpdate::startInstaller() {
    InstallerFile& file = download_->file();
    const std::optional<UpdateFailure> failure =
        environment_.starter->start(file.path(), kInstallerArguments, {offered_->version, *environment_.running});
    if (!failure) file.leaveToInstaller();
    download_.reset();
    if (failure) {
        listener_.updateFailed(*failure);
    } else {
        listener_.installerStarted();
    }
}

void SoftwareUpdate::release() {
    // Deleting a manager with a pending request would send a signal to the owner.
    if (network_ != nullptr) network_->disconnect();
    delete network_;
    delete reply_;
    startDelay_.stop();
    download_.reset();
    delete timeout_;
}

}  // namespace fieldcal
