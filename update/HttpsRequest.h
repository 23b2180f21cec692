#pragma once

#include <QNetworkRequest>

namespace fieldcal {

struct UpdateEnvironment;

/// Follows a few redirects, and only to HTTPS; certificates are verified; what comes is not unpacked on the way.
QNetworkRequest httpsRequest(const QUrl& url, const UpdateEnvironment& environment);

}  // namespace fieldcal
