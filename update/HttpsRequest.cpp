#include "update/HttpsRequest.h"

#include "update/UpdateEnvironment.h"

#include <QSslConfiguration>

namespace fieldcal {
namespace {

constexpr int kRedirects = 5;

QSslConfiguration verifying(const QList<QSslCertificate>& authorities) {
    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
    tls.setProtocol(QSsl::TlsV1_2OrLater);
    tls.setPeerVerifyMode(QSslSocket::VerifyPeer);
    if (!authorities.isEmpty()) tls.setCaCertificates(authorities);
    return tls;
}

}  // namespace

QNetworkRequest httpsRequest(const QUrl& url, const UpdateEnvironment& environment) {
    QNetworkRequest request(url);
    request.setSslConfiguration(verifying(environment.authorities));
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setMaximumRedirectsAllowed(kRedirects);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    request.setRawHeader("Accept-Encoding", "identity");
    request.setRawHeader("User-Agent", "FieldCalibrator/" + environment.running.value_or(Version()).text().toLatin1());
    return request;
}

}  // namespace fieldcal
