#include "tests/fuzz/Target.h"
#include "update/InstallerDownload.h"
#include "update/UpdateEnvironment.h"

#include <QCoreApplication>
#include <QDir>
#include <QNetworkAccessManager>

#include <cstring>

namespace fieldcal::fuzz {
namespace {

constexpr char kInstaller[] = "This is an installer.\n";
constexpr qint64 kLimitBytes = 64;
constexpr int kMostRequests = 10000;

void manifest(const QByteArray& bytes) {
    QString why;
    const std::optional<Manifest> read = Manifest::parse(bytes, &why);
    require(read.has_value() == why.isEmpty(), "a refusal has a reason");
    if (!read) return;
    require(isHttpsAddress(QUrl::fromEncoded(read->installer.toEncoded(), QUrl::StrictMode)),
            "installers come by HTTPS");
    require(read->sha256.isEmpty() || read->sha256.size() == 32, "a digest is whole");
    require(Version::parse(read->version.text()) == read->version, "a version is written and read exactly");
}

/// One answer: a line with the status, lines "Header: value", an empty line, and the body. An empty answer is a
/// connection that could not be made.
class Answer : public QNetworkReply {
public:
    Answer(const QNetworkRequest& request, const QByteArray& text) {
        setRequest(request);
        const int head = text.indexOf("\n\n");
        body_ = head < 0 ? QByteArray() : text.mid(head + 2);
        const QList<QByteArray> lines = text.left(head).split('\n');
        setAttribute(QNetworkRequest::HttpStatusCodeAttribute, lines[0].toInt());
        if (text.isEmpty()) setError(ConnectionRefusedError, "refused");
        for (const QByteArray& line : lines) {
            const int colon = line.indexOf(": ");
            if (colon > 0) setRawHeader(line.left(colon), line.mid(colon + 2));
        }
        open(ReadOnly | Unbuffered);
    }
    void abort() override {}
    qint64 bytesAvailable() const override { return body_.size() + QNetworkReply::bytesAvailable(); }

protected:
    qint64 readData(char* out, qint64 most) override {
        const int size = static_cast<int>(std::min<qint64>(most, body_.size()));
        std::memcpy(out, body_.constData(), static_cast<std::size_t>(size));
        body_.remove(0, size);
        return size;
    }

private:
    QByteArray body_;
};

/// Answers one request after the other from the input, in which "\n--\n" separates the answers.
class Server : public QNetworkAccessManager {
public:
    void begin(const QByteArray& answers) {
        answers_ = answers;
        requests = 0;
        received = 0;
    }
    /// Delivers the body and the end of the answer to the last request.
    void deliver() {
        const QPointer<QNetworkReply> answer = std::exchange(pending_, nullptr);
        if (answer && answer->bytesAvailable() > 0) emit answer->readyRead();
        if (answer) emit answer->finished();
    }
    int requests = 0;
    qint64 received = 0;
    bool isExpectedPart = false;  ///< the last answer is not partial, or begins where the file ends

protected:
    QNetworkReply* createRequest(Operation, const QNetworkRequest& request, QIODevice*) override {
        const QByteArray range = request.rawHeader("Range");
        require(range.isEmpty() || range == "bytes=" + QByteArray::number(received) + '-',
                "what is missing is asked for");
        require(range.isEmpty() == request.rawHeader("If-Range").isEmpty(),
                "a part is asked for only of the same file");
        require(++requests < kMostRequests, "there is an end of requests");
        const int end = answers_.indexOf("\n--\n");
        pending_ = new Answer(request, answers_.left(end));
        answers_ = end < 0 ? QByteArray() : answers_.mid(end + 4);
        pending_->setParent(this);
        isExpectedPart = pending_->attribute(QNetworkRequest::HttpStatusCodeAttribute) != 206 ||
                         pending_->rawHeader("Content-Range").startsWith("bytes " + QByteArray::number(received) + '-');
        return pending_;
    }

private:
    QByteArray answers_;
    QPointer<QNetworkReply> pending_;
};

struct Watcher : InstallerDownload::Listener {
    explicit Watcher(Server* server) : server_(server) {}
    void downloadProgressed(qint64 received, qint64 total) override {
        require(received <= total && total <= kLimitBytes, "never more is taken than was announced");
        require(server_->isExpectedPart, "only the part that is missing is taken");
        server_->received = received;
    }
    void downloadInterrupted() override {}
    void downloadEnded(std::optional<UpdateFailure> failure) override {
        ++ends;
        whole = !failure;
    }
    int ends = 0;
    bool whole = false;

private:
    Server* server_;
};

void download(const QByteArray& bytes) {
    static int count = 0;
    static QCoreApplication application(count, nullptr);
    UpdateEnvironment environment;
    environment.temporaryFolder = QDir::currentPath();
    environment.retryPause = std::chrono::milliseconds(0);
    environment.installerLimitBytes = kLimitBytes;
    const QByteArray digest = QCryptographicHash::hash(kInstaller, QCryptographicHash::Sha256);
    static Server server;  // making one takes longer than a download
    server.begin(bytes);
    Watcher watcher(&server);
    {
        InstallerDownload subject(server, environment, {Version(), QUrl("https://example.org/a"), digest}, watcher);
        for (subject.begin(); watcher.ends == 0; QCoreApplication::processEvents())
            server.deliver();
        if (watcher.whole) {
            require(contentOf(qUtf8Printable(subject.file().path())) == kInstaller, "only the real file is accepted");
        }
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    require(watcher.ends == 1, "a download ends once");
    require(QDir().entryList(QDir::AllEntries | QDir::NoDotAndDotDot).empty(), "no file is left behind");
}

}  // namespace

std::vector<Target> updateTargets() {
    return {{"manifest", manifest}, {"download", download}};
}

}  // namespace fieldcal::fuzz
