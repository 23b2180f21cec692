#include "devices/ServiceNote.h"

// The second header requires the first one.
// clang-format off
#include <windows.h>
#include <sddl.h>
// clang-format on

namespace fieldcal {
namespace {

constexpr const wchar_t* kKey = L"SOFTWARE\\Field Calibrator";
constexpr const wchar_t* kValue = L"ServiceStartType";
constexpr const char* kName = "HKLM\\SOFTWARE\\Field Calibrator, ServiceStartType";
// The system and administrators have all rights, users may read.
constexpr const wchar_t* kRights = L"O:BAG:BAD:P(A;CI;KA;;;SY)(A;CI;KA;;;BA)(A;CI;KR;;;BU)";

bool failed(const char* what, LSTATUS error, QString* why) {
    *why = QStringLiteral("%1: it cannot be %2 (error %3)").arg(kName, what).arg(error);
    qCritical("%s", qUtf8Printable(*why));
    return false;
}

class Key {
public:
    Key() = default;
    ~Key() {
        if (key_ != nullptr) RegCloseKey(key_);
    }
    Key(const Key&) = delete;
    Key& operator=(const Key&) = delete;

    LSTATUS open(REGSAM access) { return RegOpenKeyExW(HKEY_LOCAL_MACHINE, kKey, 0, access | KEY_WOW64_64KEY, &key_); }
    LSTATUS create() {
        SECURITY_ATTRIBUTES rights{sizeof rights, nullptr, FALSE};
        if (!ConvertStringSecurityDescriptorToSecurityDescriptorW(kRights, SDDL_REVISION_1,
                                                                  &rights.lpSecurityDescriptor, nullptr)) {
            return static_cast<LSTATUS>(GetLastError());
        }
        LSTATUS error =
            RegCreateKeyExW(HKEY_LOCAL_MACHINE, kKey, 0, nullptr, REG_OPTION_NON_VOLATILE,
                            KEY_QUERY_VALUE | KEY_SET_VALUE | WRITE_DAC | KEY_WOW64_64KEY, &rights, &key_, nullptr);
        // The key of an earlier run gets the same rights.
        if (error == ERROR_SUCCESS) {
            error = RegSetKeySecurity(key_, DACL_SECURITY_INFORMATION | PROTECTED_DACL_SECURITY_INFORMATION,
                                      rights.lpSecurityDescriptor);
        }
        LocalFree(rights.lpSecurityDescriptor);
        return error;
    }
    operator HKEY() const { return key_; }

private:
    HKEY key_ = nullptr;
};

class ServiceNoteKey : public ServiceNote {
public:
    bool keep(std::uint32_t startType, QString* why) override {
        Key key;
        if (const LSTATUS error = key.create(); error != ERROR_SUCCESS) return failed("created", error, why);
        const DWORD number = startType;
        LSTATUS error =
            RegSetValueExW(key, kValue, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&number), sizeof number);
        // The registry is otherwise written to the disk some seconds later.
        if (error == ERROR_SUCCESS) error = RegFlushKey(key);
        return error == ERROR_SUCCESS || failed("written", error, why);
    }

    std::optional<std::uint32_t> kept() override {
        Key key;
        LSTATUS error = key.open(KEY_QUERY_VALUE);
        DWORD type = 0, number = 0, size = sizeof number;
        if (error == ERROR_SUCCESS)
            error = RegQueryValueExW(key, kValue, nullptr, &type, reinterpret_cast<BYTE*>(&number), &size);
        if (error == ERROR_FILE_NOT_FOUND) return std::nullopt;
        const bool whole = error == ERROR_SUCCESS && type == REG_DWORD && size == sizeof number;
        if (whole && isRunnableStartType(number)) return number;
        qCritical("%s: it does not name a start type", kName);
        return std::nullopt;
    }

    void drop() override {
        Key key;
        LSTATUS error = key.open(KEY_QUERY_VALUE | KEY_SET_VALUE);
        if (error == ERROR_SUCCESS) error = RegDeleteValueW(key, kValue);
        if (error == ERROR_SUCCESS) error = RegFlushKey(key);
        QString ignored;
        if (error != ERROR_SUCCESS && error != ERROR_FILE_NOT_FOUND) failed("removed", error, &ignored);
    }
};

}  // namespace

std::unique_ptr<ServiceNote> systemServiceNote() {
    return std::make_unique<ServiceNoteKey>();
}

}  // namespace fieldcal
