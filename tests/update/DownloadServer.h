#pragma once

#include <QByteArray>
#include <QList>
#include <QSslCertificate>
#include <QTcpServer>
#include <QUrl>

#include <functional>
#include <vector>

class QSslSocket;

namespace fieldcal::testing {

struct HttpRequest {
    QByteArray path;
    QByteArray head;
    /// The N of "Range: bytes=N-"; -1 without such a header.
    qint64 rangeStart() const;
};

struct HttpAnswer {
    QByteArray status = "200 OK";
    QByteArray headers;  ///< each with its line end
    QByteArray body;
    qint64 announced = -1;   ///< a Content-Length that differs from the body's
    qint64 breakAfter = -1;  ///< number of bytes of the body after which the connection is closed
    bool endless = false;    ///< the body continues with zeros without end; in chunks, unless a length is announced
    bool silent = false;     ///< nothing is sent after the body, although more was announced
    bool none = false;       ///< no answer at all
};

/// An HTTPS server on this machine with the name "localhost". Its certificate is trusted by `authority()` only. It uses
/// the event loop of the thread that created it.
class DownloadServer : public QTcpServer {
public:
    DownloadServer();
    static QSslCertificate authority();
    QUrl url(const QString& path, const QString& scheme = QStringLiteral("https")) const;

    std::function<HttpAnswer(const HttpRequest&)> answer;
    std::vector<HttpRequest> requests;
    int openConnections = 0;

protected:
    void incomingConnection(qintptr handle) override;

private:
    void read(QSslSocket* socket);
};

}  // namespace fieldcal::testing
