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
    /// Of "Range: bytes=N-"; -1: none.
    qint64 rangeStart() const;
};

struct HttpAnswer {
    QByteArray status = "200 OK";
    QByteArray headers;  ///< each with its line end
    QByteArray body;
    qint64 announced = -1;   ///< other Content-Length than the body's
    qint64 breakAfter = -1;  ///< bytes of the body, and the connection is closed
    bool endless = false;    ///< the body goes on with zeros for ever; in chunks, unless a length is announced
    bool silent = false;     ///< after the body nothing more comes, the rest of what was announced
    bool none = false;       ///< not even a status
};

/// A server for HTTPS on this machine, under the name "localhost". Its certificate is trusted by `authority()` alone.
/// Lives on the event loop of the thread that made it.
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
