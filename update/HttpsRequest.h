#pragma once

#include <QNetworkRequest>

namespace fieldcal {

struct UpdateEnvironment;

/// Creates a request that follows a limited number of redirects, to HTTPS only, verifies certificates, and does not
/// decompress the content.
QNetworkRequest httpsRequest(const QUrl& url, const UpdateEnvironment& environment);

}  // namespace fieldcal
