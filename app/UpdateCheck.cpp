#include "app/UpdateCheck.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTimer>

namespace fieldcal {
namespace {

constexpr int kTimeoutMs = 10000;

}  // namespace

void UpdateCheck::start(QObject* owner) {
    if (manifest_.isEmpty()) return;
    network_ = new QNetworkAccessManager(owner);
    QObject::connect(network_, SIGNAL(finished(QNetworkReply*)), owner,
                     SLOT(slot_networkReplyLatestVersionJsonFinished(QNetworkReply*)));
    reply_ = network_->get(QNetworkRequest(manifest_));
    timeout_ = new QTimer(owner);
    timeout_->setSingleShot(true);
    QObject::connect(timeout_, SIGNAL(timeout()), owner, SLOT(slot_timeoutNetworkReplyJson()));
    timeout_->start(kTimeoutMs);
}

void UpdateCheck::manifestReceived(QNetworkReply* reply) {
    if (timeout_ != nullptr) timeout_->stop();
    if (reply->error() != QNetworkReply::NoError) {
        qInfo("No version manifest: %s", qUtf8Printable(reply->errorString()));
    }
    reply->deleteLater();
}

void UpdateCheck::timedOut() {
    if (reply_ != nullptr) reply_->abort();
}

void UpdateCheck::release() {
    // Deleting a manager that is still asking would tell the owner of an answer.
    if (network_ != nullptr) network_->disconnect();
    delete network_;
    delete reply_;
    delete timeout_;
}

}  // namespace fieldcal
