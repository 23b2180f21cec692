#include "tests/update/RandomServer.h"

#include <QCryptographicHash>
#include <QSslSocket>
#include <QTimer>

#include <algorithm>
#include <iterator>

namespace fieldcal::testing {
namespace {

constexpr int kLargestInstaller = 150 * 1000;
constexpr int kWithoutEnd = 1000000;
constexpr const char* kTagForms[] = {"ETag: \"%1\"\r\n", "ETag: \"%1\"\r\n", "Last-Modified: %1\r\n",
                                     "ETag: W/\"%1\"\r\n", ""};
constexpr const char* kPassing[] = {"408 Slow", "416 No such part", "429 Too many", "500 Broken", "503 Busy"};
constexpr const char* kStatuses[] = {"200 OK",      "204 Nothing", "206 Part",    "304 Same",    "400 Bad",
                                     "404 Nowhere", "410 Gone",    "511 Sign in", "999 Strange", "\r\nno status"};
constexpr const char* kRanges[] = {"bytes */%3",      "bytes 0-%2/%3",  "bytes %1-%2/*",
                                   "bytes %1-%2",     "%1-%2/%3",       "bytes %1-%3/%3",
                                   "bytes -%1-%2/%3", "bytes %2-%1/%3", ""};

template <std::size_t count>
const char* oneOf(const char* const (&texts)[count], int number) {
    return texts[static_cast<std::size_t>(number) % count];
}

QByteArray rangeHeader(const char* form, int from, int size) {
    return "Content-Range: " + QString(form).arg(from).arg(size - 1).arg(size).toLatin1() + "\r\n";
}

}  // namespace

RandomServer::RandomServer(std::uint32_t seed)
    : random_(seed),
      truthful_(oneIn(2)),
      statesDigest_(oneIn(2)),
      installer_(bytes(1 + below(kLargestInstaller))),
      // Of an equal size, only the tag tells the older one from the present one.
      older_(bytes(oneIn(2) ? installer_.size() : 1 + below(kLargestInstaller))),
      tagForm_(oneOf(kTagForms, below(5))),
      faultsLeft_(truthful_ ? below(5) : kWithoutEnd),
      isOld_(faultsLeft_ > 0 && oneIn(3)) {
    server_.answer = [this](const HttpRequest& request) {
        return request.path == "/Version.json" ? answerManifest() : answer(request);
    };
}

QByteArray RandomServer::bytes(int size) {
    QByteArray made(size, '\0');
    std::generate(made.begin(), made.end(), [this] { return static_cast<char>(random_()); });
    return made;
}

HttpAnswer RandomServer::answerManifest() const {
    const QByteArray digest = QCryptographicHash::hash(installer_, QCryptographicHash::Sha256).toHex();
    return {"200 OK", "",
            R"({"version":"1.10","url":")" + server_.url("/Setup.exe").toEncoded() +
                (statesDigest_ ? R"(","sha256":")" + digest : QByteArray()) + "\"}"};
}

QByteArray RandomServer::tagOf(const QByteArray& file) const {
    return QString(tagForm_).arg(&file == &older_ ? "Monday" : "Tuesday").toLatin1();
}

HttpAnswer RandomServer::whole(const QByteArray& file) const {
    return {"200 OK", tagOf(file), file};
}

HttpAnswer RandomServer::part(const QByteArray& file, int from) const {
    return {"206 Partial Content", tagOf(file) + rangeHeader("bytes %1-%2/%3", from, file.size()), file.mid(from)};
}

HttpAnswer RandomServer::redirect(const QUrl& target) const {
    return {"302 Found", "Location: " + target.toEncoded() + "\r\n", "elsewhere"};
}

HttpAnswer RandomServer::answer(const HttpRequest& request) {
    const QByteArray& file = isOld_ ? older_ : installer_;
    const int from = static_cast<int>(request.rangeStart());
    const bool sameFile = !request.head.contains("\r\nIf-Range: ") ||
                          request.head.contains("\r\nIf-Range: " + tagOf(file).mid(tagOf(file).indexOf(' ') + 1));
    HttpAnswer answer = from >= 0 && from < file.size() && sameFile ? part(file, from) : whole(file);
    // An older file never arrives whole.
    if (faultsLeft_ == 0 || !(isOld_ || !oneIn(truthful_ ? 3 : 4))) return answer;
    --faultsLeft_;
    if (isOld_ || truthful_ || oneIn(3)) {
        breakDown(&answer, request);
    } else {
        lie(&answer, request);
    }
    return answer;
}

/// Faults in which everything that is stated is correct.
void RandomServer::breakDown(HttpAnswer* answer, const HttpRequest& request) {
    const bool wasOld = std::exchange(isOld_, false);
    const int kind = wasOld ? 0 : request.rangeStart() >= 0 ? below(8) : below(6);
    if (kind < 3) {
        answer->breakAfter = below(std::max(1, answer->body.size()));
        answer->silent = oneIn(16);
        answer->none = !wasOld && oneIn(20);
    } else if (kind == 3) {
        *answer = {oneOf(kPassing, below(5)), "", "<html>"};
    } else if (kind == 4) {
        *answer = redirect(server_.url("/moved" + QString::number(below(9))));
    } else if (kind == 5) {
        *answer = restart();
    } else {
        // Another part, or the same one of the file that is there now, although the older one was asked for.
        const auto asked = static_cast<int>(std::min<qint64>(request.rangeStart(), installer_.size()));
        *answer = part(installer_, kind == 6 ? below(installer_.size()) : asked);
    }
}

void RandomServer::lie(HttpAnswer* answer, const HttpRequest& request) {
    const int kind = below(10), size = answer->body.size();
    if (kind == 0) {
        answer->status = oneOf(kStatuses, below(10));
    } else if (kind == 1) {
        answer->announced = below(2 * size + 2);
    } else if (kind == 2 && size > 0) {
        answer->body[below(size)] = static_cast<char>(answer->body.at(below(size)) + 1);
    } else if (kind == 3) {
        answer->body = oneIn(2) ? answer->body.left(below(size + 1)) : answer->body + bytes(1 + below(1000));
    } else if (kind == 4) {
        const int from = static_cast<int>(std::max<qint64>(0, request.rangeStart())) + below(3) - 1;
        answer->status = "206 Partial Content";
        answer->headers =
            tagOf(installer_) + rangeHeader(oneOf(kRanges, below(9)), from, installer_.size() + below(3) - 1);
    } else if (kind == 5) {
        *answer = redirect(oneIn(2) ? server_.url("/Setup.exe") : server_.url("/a", oneIn(2) ? "http" : "ftp"));
    } else if (kind == 6) {
        *answer = {"200 OK", tagOf(installer_), "", oneIn(2) ? below(kLargestInstaller) : -1, -1, true};
    } else if (kind == 7) {
        *answer = whole(older_);
        answer->headers = tagOf(installer_);
    } else if (kind == 8) {
        *answer = part(older_, below(older_.size()));
        answer->headers.replace("Monday", "Tuesday");
    } else {
        answer->announced = size;
        answer->breakAfter = below(size + 1);
        answer->headers = tagOf(oneIn(2) ? older_ : installer_);
    }
}

/// Ends all connections, and listens again after a moment, during which others are refused.
HttpAnswer RandomServer::restart() {
    const quint16 port = server_.serverPort();
    server_.close();
    for (QSslSocket* socket : server_.findChildren<QSslSocket*>())
        socket->abort();
    QTimer::singleShot(below(5), &server_, [this, port] { server_.listen(QHostAddress::LocalHost, port); });
    HttpAnswer none;
    none.none = true;
    return none;
}

}  // namespace fieldcal::testing
