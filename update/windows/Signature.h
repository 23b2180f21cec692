#pragma once

#include <QByteArray>

#include <windows.h>

namespace fieldcal {

/// Returns the signer of a program file: the whole subject of the certificate in its encoded form. Empty, with a
/// reason, when the signature is missing or broken, does not lead to an authority trusted by the system, or was
/// revoked, and also when its revocation cannot be checked. `file`: open for reading, or null; `path`: of the same
/// file.
QByteArray trustedSigner(const std::wstring& path, HANDLE file, QString* why);

}  // namespace fieldcal
