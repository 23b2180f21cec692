#include "tests/update/DownloadServer.h"

#include <QFile>
#include <QRegularExpression>
#include <QSslKey>
#include <QSslSocket>

#include <algorithm>
#include <memory>

namespace fieldcal::testing {
namespace {

constexpr int kPieceBytes = 16 * 1024;

QByteArray contents(const char* name) {
    QFile file(QString(FIELDCAL_CERTIFICATES "/") + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray headOf(const HttpAnswer& answer) {
    QByteArray head = "HTTP/1.1 " + answer.status + "\r\nConnection: close\r\n" + answer.headers;
    const qint64 length = answer.announced >= 0 ? answer.announced : answer.body.size();
    if (answer.endless && answer.announced < 0) {
        head += "Transfer-Encoding: chunked\r\n";
    } else {
        head += "Content-Length: " + QByteArray::number(length) + "\r\n";
    }
    return head + "\r\n";
}

/// Sends the body in pieces, each one after the previous one has been sent.
struct Sending {
    HttpAnswer answer;
    qint64 sent = 0;

    void next(QSslSocket* socket) {
        if (answer.endless) return sendZeros(socket);
        const qint64 end = answer.breakAfter >= 0 ? answer.breakAfter : answer.body.size();
        const QByteArray piece = answer.body.mid(int(sent), int(std::min<qint64>(kPieceBytes, end - sent)));
        sent += piece.size();
        if (!piece.isEmpty()) {
            socket->write(piece);
        } else if (!answer.silent) {
            socket->disconnectFromHost();
        }
    }
    void sendZeros(QSslSocket* socket) const {
        const QByteArray zeros(kPieceBytes, '\0');
        const bool chunked = answer.announced < 0;
        socket->write(chunked ? QByteArray::number(kPieceBytes, 16) + "\r\n" + zeros + "\r\n" : zeros);
    }
};

}  // namespace

qint64 HttpRequest::rangeStart() const {
    const auto match = QRegularExpression("\r\nRange: bytes=([0-9]+)-\r\n").match(head);
    return match.hasMatch() ? match.captured(1).toLongLong() : -1;
}

DownloadServer::DownloadServer() {
    listen(QHostAddress::LocalHost);
}

QSslCertificate DownloadServer::authority() {
    return QSslCertificate(contents("authority.pem"));
}

QUrl DownloadServer::url(const QString& path, const QString& scheme) const {
    return QUrl(QString("%1://localhost:%2%3").arg(scheme).arg(serverPort()).arg(path));
}

void DownloadServer::incomingConnection(qintptr handle) {
    auto* socket = new QSslSocket(this);
    socket->setSocketDescriptor(handle);
    socket->setLocalCertificateChain({QSslCertificate(contents("server.pem")), authority()});
    socket->setPrivateKey(QSslKey(contents("server-key.pem"), QSsl::Rsa));
    ++openConnections;
    connect(socket, &QSslSocket::disconnected, this, [this] { --openConnections; });
    connect(socket, &QSslSocket::disconnected, socket, &QObject::deleteLater);
    connect(socket, &QSslSocket::readyRead, this, [this, socket] { read(socket); });
    socket->startServerEncryption();
}

void DownloadServer::read(QSslSocket* socket) {
    const QByteArray head = socket->property("head").toByteArray() + socket->readAll();
    socket->setProperty("head", head);
    if (!head.endsWith("\r\n\r\n")) return;
    socket->setProperty("head", QByteArray());
    requests.push_back({head.split(' ').value(1), head});
    const auto sending = std::make_shared<Sending>(Sending{answer(requests.back())});
    if (sending->answer.none) return;
    connect(socket, &QSslSocket::encryptedBytesWritten, socket, [socket, sending] {
        if (socket->encryptedBytesToWrite() == 0) sending->next(socket);
    });
    socket->write(headOf(sending->answer));
}

}  // namespace fieldcal::testing
