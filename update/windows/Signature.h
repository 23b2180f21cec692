#pragma once

#include <QByteArray>

#include <windows.h>

namespace fieldcal {

/// Who signed a program file: the whole subject of the certificate, as it is encoded in it. Empty, with a reason, when
/// the signature is missing or broken, does not lead to an authority that the system trusts, or was revoked; also when
/// it cannot be found out whether it was. `file`: open for reading, or null; `path`: of the same file.
QByteArray trustedSigner(const std::wstring& path, HANDLE file, QString* why);

}  // namespace fieldcal
