#include "update/windows/Signature.h"

#include <QString>

#include <softpub.h>
#include <string>
#include <wintrust.h>

namespace fieldcal {
namespace {

/// One verification. Its state holds the certificate chain during its lifetime.
class Verification {
public:
    Verification(const std::wstring& path, HANDLE file) {
        file_.cbStruct = sizeof file_;
        file_.pcwszFilePath = path.c_str();
        file_.hFile = file;
        data_.cbStruct = sizeof data_;
        data_.dwUIChoice = WTD_UI_NONE;
        data_.fdwRevocationChecks = WTD_REVOKE_WHOLECHAIN;
        data_.dwProvFlags = WTD_REVOCATION_CHECK_CHAIN_EXCLUDE_ROOT;
        data_.dwUnionChoice = WTD_CHOICE_FILE;
        data_.pFile = &file_;
        data_.dwStateAction = WTD_STATEACTION_VERIFY;
        status_ = verify();
    }
    ~Verification() {
        data_.dwStateAction = WTD_STATEACTION_CLOSE;
        verify();
    }
    Verification(const Verification&) = delete;
    Verification& operator=(const Verification&) = delete;

    LONG status() const { return status_; }
    /// Returns the subject of the first signer's certificate.
    QByteArray signer() const {
        CRYPT_PROVIDER_DATA* provider = WTHelperProvDataFromStateData(data_.hWVTStateData);
        CRYPT_PROVIDER_SGNR* signer =
            provider == nullptr ? nullptr : WTHelperGetProvSignerFromChain(provider, 0, FALSE, 0);
        if (signer == nullptr || signer->csCertChain == 0) return {};
        const CERT_NAME_BLOB& subject = signer->pasCertChain[0].pCert->pCertInfo->Subject;
        return {reinterpret_cast<const char*>(subject.pbData), static_cast<int>(subject.cbData)};
    }

private:
    LONG verify() {
        GUID action = WINTRUST_ACTION_GENERIC_VERIFY_V2;
        return WinVerifyTrust(static_cast<HWND>(INVALID_HANDLE_VALUE), &action, &data_);
    }

    WINTRUST_FILE_INFO file_{};
    WINTRUST_DATA data_{};
    LONG status_ = 0;
};

}  // namespace

QByteArray trustedSigner(const std::wstring& path, HANDLE file, QString* why) {
    const Verification verification(path, file);
    if (verification.status() != ERROR_SUCCESS) {
        *why = QStringLiteral("no valid signature (0x%1)")
                   .arg(static_cast<quint32>(verification.status()), 8, 16, QLatin1Char('0'));
        return {};
    }
    const QByteArray signer = verification.signer();
    if (signer.isEmpty()) *why = QStringLiteral("a signature that names nobody");
    return signer;
}

}  // namespace fieldcal
