#pragma once

#include <QObject>
#include <QPointer>
#include <QUrl>

class QNetworkAccessManager;
class QNetworkReply;
class QTimer;

namespace fieldcal {

/// Asks, once at the start, which version there is to be had. What cannot be fetched is a line in the log and nothing
/// else. Main thread.
class UpdateCheck {
public:
    /// The address of the version manifest; empty: nobody is asked.
    explicit UpdateCheck(QUrl manifest) : manifest_(std::move(manifest)) {}
    ~UpdateCheck() { release(); }
    UpdateCheck(const UpdateCheck&) = delete;
    UpdateCheck& operator=(const UpdateCheck&) = delete;

    /// `owner` gets the answer in its slots slot_networkReplyLatestVersionJsonFinished(QNetworkReply*) and
    /// slot_timeoutNetworkReplyJson().
    void start(QObject* owner);
    void manifestReceived(QNetworkReply* reply);
    void timedOut();
    /// Gives everything back.
    void release();

private:
    const QUrl manifest_;
    QPointer<QNetworkAccessManager> network_;
    QPointer<QNetworkReply> reply_;
    QPointer<QTimer> timeout_;
};

}  // namespace fieldcal
