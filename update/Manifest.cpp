#include "update/Manifest.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace fieldcal {
namespace {

/// Fills the manifest and returns a description of the first fault; empty without one.
QString readInto(Manifest* manifest, const QJsonObject& object) {
    const std::optional<Version> version = Version::parse(object["version"].toString());
    if (!version) return "\"version\" is no version";
    manifest->version = *version;
    manifest->installer = QUrl(object["url"].toString(), QUrl::StrictMode);
    if (!isHttpsAddress(manifest->installer)) return "\"url\" is no HTTPS address";
    if (!object.contains("sha256")) return {};
    static const QRegularExpression kForm(QStringLiteral("\\A[0-9a-fA-F]{64}\\z"));
    const QString digest = object["sha256"].toString();
    if (!kForm.match(digest).hasMatch()) return "\"sha256\" is no digest";
    manifest->sha256 = QByteArray::fromHex(digest.toLatin1());
    return {};
}

}  // namespace

std::optional<Manifest> Manifest::parse(const QByteArray& json, QString* why) {
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    Manifest manifest;
    *why = document.isObject() ? readInto(&manifest, document.object())
           : document.isNull() ? "the answer is no JSON: " + error.errorString()
                               : QStringLiteral("the answer is no JSON object");
    if (!why->isEmpty()) return std::nullopt;
    return manifest;
}

bool isHttpsAddress(const QUrl& url) {
    return url.isValid() && url.scheme() == QLatin1String("https") && !url.host().isEmpty() && url.userInfo().isEmpty();
}

}  // namespace fieldcal
