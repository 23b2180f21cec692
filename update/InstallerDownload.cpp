#include "update/InstallerDownload.h"

#include "update/HttpsRequest.h"
#include "update/UpdateEnvironment.h"

#include <QNetworkAccessManager>

#include <algorithm>
#include <utility>

namespace fieldcal {
namespace {

constexpr qint64 kReadBufferBytes = 1024 * 1024;

int statusOf(const QNetworkReply& reply) {
    return reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

constexpr int kOk = 200, kPartialContent = 206;
constexpr int kRequestTimeout = 408, kRangeRefused = 416, kTooMany = 429, kServerError = 500;

bool isRedirect(int status) {
    return status / 100 == 3;
}

/// Returns whether another attempt may succeed after this answer.
bool isPassing(int status) {
    return status == kRequestTimeout || status == kRangeRefused || status == kTooMany || status >= kServerError;
}

bool isPassing(QNetworkReply::NetworkError error) {
    switch (error) {
        case QNetworkReply::NoError:
        case QNetworkReply::ConnectionRefusedError:
        case QNetworkReply::RemoteHostClosedError:
        case QNetworkReply::HostNotFoundError:
        case QNetworkReply::TimeoutError:
        case QNetworkReply::TemporaryNetworkFailureError:
        case QNetworkReply::NetworkSessionFailedError:
        case QNetworkReply::UnknownNetworkError:
            return true;
        default:
            return false;
    }
}

/// Returns whether it is a strong tag. A weak one does not tell whether a file is the same byte by byte.
bool isTag(const QByteArray& validator) {
    return validator.startsWith('"');
}

QByteArray validatorOf(const QNetworkReply& reply) {
    const QByteArray tag = reply.rawHeader("ETag");
    return isTag(tag) ? tag : reply.rawHeader("Last-Modified");
}

}  // namespace

InstallerDownload::InstallerDownload(QNetworkAccessManager& network, const UpdateEnvironment& environment,
                                     Manifest manifest, Listener& listener)
    : network_(network), environment_(environment), manifest_(std::move(manifest)), listener_(listener) {
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &InstallerDownload::timedOut);
}

void InstallerDownload::begin() {
    file_ = std::make_unique<InstallerFile>(environment_.temporaryFolder);
    if (file_->begin()) {
        request();
    } else {
        fail(UpdateFailure::Disk, "there is no file for the installer");
    }
}

void InstallerDownload::request() {
    QNetworkRequest request = httpsRequest(manifest_.installer, environment_);
    resumedFrom_ = validator_.isEmpty() ? 0 : file_->size();
    if (resumedFrom_ > 0) {
        request.setRawHeader("Range", "bytes=" + QByteArray::number(resumedFrom_) + '-');
        request.setRawHeader("If-Range", validator_);
    }
    accepted_ = false;
    reply_ = network_.get(request);
    reply_->setReadBufferSize(kReadBufferBytes);
    connect(reply_, &QNetworkReply::readyRead, this, &InstallerDownload::receive);
    connect(reply_, &QNetworkReply::finished, this, &InstallerDownload::replyFinished);
    timer_.start(environment_.stallTimeout);
}

void InstallerDownload::receive() {
    if (!accepted_ && !acceptAnswer()) return;
    timer_.start(environment_.stallTimeout);
    const QByteArray bytes = reply_->readAll();
    if (!bytes.isEmpty() && append(bytes)) listener_.downloadProgressed(file_->size(), total_);
}

void InstallerDownload::replyFinished() {
    // The status stays that of a redirect when the connection to its target breaks before that has answered.
    const bool wasRedirected = isRedirect(statusOf(*reply_)) && reply_->error() != QNetworkReply::NoError;
    if (statusOf(*reply_) != 0 && !wasRedirected) receive();
    if (reply_ == nullptr) return;  // the answer was refused
    if (accepted_ && file_->size() == total_) {
        complete();
    } else if (accepted_ || isPassing(reply_->error())) {
        tryAgain(reply_->errorString());
    } else {
        fail(UpdateFailure::Server, reply_->errorString());
    }
}

void InstallerDownload::timedOut() {
    if (reply_ == nullptr) {
        request();
    } else {
        tryAgain("nothing arrives any more");
    }
}

bool InstallerDownload::acceptAnswer() {
    const int status = statusOf(*reply_);
    if (status == kOk) {
        accepted_ = acceptDownload();
    } else if (status == kPartialContent && resumedFrom_ > 0) {
        accepted_ = acceptRest();
    } else if (isPassing(status)) {
        if (status == kRangeRefused) validator_.clear();
        tryAgain(QString("status %1").arg(status));
    } else {
        fail(UpdateFailure::Server, QString("status %1").arg(status));
    }
    return accepted_;
}

bool InstallerDownload::acceptDownload() {
    total_ = reply_->header(QNetworkRequest::ContentLengthHeader).toLongLong();
    validator_ = validatorOf(*reply_);
    if (total_ <= 0 || total_ > environment_.installerLimitBytes) {
        fail(UpdateFailure::Server, total_ > 0 ? "it is too large" : "its size is not told");
    } else if (!file_->begin()) {
        fail(UpdateFailure::Disk, "the file cannot be begun again");
    } else {
        return true;
    }
    return false;
}

bool InstallerDownload::acceptRest() {
    const QByteArray expected = "bytes " + QByteArray::number(resumedFrom_) + '-' + QByteArray::number(total_ - 1) +
                                '/' + QByteArray::number(total_);
    // Some servers send the part although the file has changed, but state what it is a part of.
    const QByteArray tag = reply_->rawHeader(isTag(validator_) ? "ETag" : "Last-Modified");
    if (reply_->rawHeader("Content-Range") == expected && (tag.isEmpty() || tag == validator_)) return true;
    validator_.clear();
    tryAgain("another part than was asked for");
    return false;
}

bool InstallerDownload::append(const QByteArray& bytes) {
    if (file_->size() + bytes.size() > total_) {
        fail(UpdateFailure::Server, "it is longer than was told");
    } else if (!file_->append(bytes)) {
        fail(UpdateFailure::Disk, "the file cannot be written");
    } else {
        return true;
    }
    return false;
}

void InstallerDownload::tryAgain(const QString& why) {
    dropReply();
    if (file_->size() > largestSize_) retries_ = 0;
    largestSize_ = std::max(largestSize_, file_->size());
    if (retries_ == environment_.retries) return fail(UpdateFailure::Connection, why);
    timer_.start(environment_.retryPause * (1 << retries_++));
    listener_.downloadInterrupted();
}

void InstallerDownload::complete() {
    dropReply();
    if (!file_->close()) return fail(UpdateFailure::Disk, "the file cannot be closed");
    const bool damaged = !manifest_.sha256.isEmpty() && file_->sha256() != manifest_.sha256;
    if (damaged) return fail(UpdateFailure::Damaged, "it has another digest than the manifest says");
    listener_.downloadEnded(std::nullopt);
}

void InstallerDownload::fail(UpdateFailure failure, const QString& why) {
    dropReply();
    file_.reset();
    qInfo("The installer was not fetched: %s", qUtf8Printable(why));
    listener_.downloadEnded(failure);
}

void InstallerDownload::dropReply() {
    timer_.stop();
    if (reply_ == nullptr) return;
    // Deleting the reply also ends it. Aborting a reply that is about to report an error causes a warning of Qt in the
    // log.
    reply_->disconnect(this);
    reply_->deleteLater();
    reply_ = nullptr;
}

}  // namespace fieldcal
