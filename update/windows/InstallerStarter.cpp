#include "update/InstallerStarter.h"

#include "update/windows/ProgramFile.h"
#include "update/windows/Signature.h"

#include <QDir>

#include <shellapi.h>
#include <vector>
#include <windows.h>

namespace fieldcal {
namespace {

constexpr DWORD kElevationRequired = 740;  // MinGW's headers do not define this error

/// Keeps a file open such that no other program can write, rename or remove it.
class HeldFile {
public:
    explicit HeldFile(const std::wstring& path)
        : handle_(CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr)) {}
    ~HeldFile() {
        if (isHeld()) CloseHandle(handle_);
    }
    HeldFile(const HeldFile&) = delete;
    HeldFile& operator=(const HeldFile&) = delete;

    bool isHeld() const { return handle_ != INVALID_HANDLE_VALUE; }
    HANDLE handle() const { return handle_; }

private:
    const HANDLE handle_;
};

std::wstring systemFolder() {
    std::vector<wchar_t> path(MAX_PATH + 1);
    const UINT length = GetSystemDirectoryW(path.data(), MAX_PATH);
    return {path.data(), length};
}

/// Returns the system's error code, 0 on success. The working directory is not that of the file, because an installer
/// would load libraries from there.
DWORD createProcess(const std::wstring& installer, const std::wstring& arguments) {
    std::wstring line = L'"' + installer + L"\" " + arguments;
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(installer.c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr, systemFolder().c_str(),
                        &startup, &process)) {
        return GetLastError();
    }
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return ERROR_SUCCESS;
}

/// The same for an installer that needs administrator rights, for which the system asks the user.
DWORD createElevatedProcess(const std::wstring& installer, const std::wstring& arguments) {
    const std::wstring folder = systemFolder();
    SHELLEXECUTEINFOW info{};
    info.cbSize = sizeof info;
    info.fMask = SEE_MASK_NOASYNC | SEE_MASK_FLAG_NO_UI;
    info.lpVerb = L"runas";
    info.lpFile = installer.c_str();
    info.lpParameters = arguments.c_str();
    info.lpDirectory = folder.c_str();
    info.nShow = SW_SHOWNORMAL;
    return ShellExecuteExW(&info) ? ERROR_SUCCESS : GetLastError();
}

class WindowsInstallerStarter : public InstallerStarter {
public:
    std::optional<UpdateFailure> obstacle() override {
        if (!programsSigner().isEmpty()) return std::nullopt;
        return UpdateFailure::Unsigned;
    }

    std::optional<UpdateFailure> start(const QString& installer, const QString& arguments) override {
        const std::wstring path = QDir::toNativeSeparators(installer).toStdWString();
        const HeldFile file(path);
        if (!file.isHeld()) {
            qInfo("The installer cannot be opened: %lu", GetLastError());
            return UpdateFailure::Disk;
        }
        const QByteArray programs = programsSigner();
        if (programs.isEmpty()) return UpdateFailure::Unsigned;
        if (!isSignedBy(programs, path, file.handle())) return UpdateFailure::NotTrusted;
        return run(path, arguments.toStdWString());
    }

private:
    static QByteArray programsSigner() {
        QString why;
        const QByteArray signer = trustedSigner(programFile(), nullptr, &why);
        if (signer.isEmpty()) qInfo("This program starts no installer, for it has %s itself.", qUtf8Printable(why));
        return signer;
    }
    static bool isSignedBy(const QByteArray& expected, const std::wstring& path, HANDLE file) {
        QString why;
        const QByteArray signer = trustedSigner(path, file, &why);
        if (signer == expected) return true;
        qInfo("The installer is not started: %s.", signer.isEmpty() ? qUtf8Printable(why) : "signed by somebody else");
        return false;
    }
    static std::optional<UpdateFailure> run(const std::wstring& path, const std::wstring& arguments) {
        DWORD error = createProcess(path, arguments);
        if (error == kElevationRequired) error = createElevatedProcess(path, arguments);
        if (error == ERROR_SUCCESS) return std::nullopt;
        qInfo("The installer could not be started: %lu", error);
        return UpdateFailure::NotStarted;
    }
};

}  // namespace

std::unique_ptr<InstallerStarter> systemInstallerStarter() {
    return std::make_unique<WindowsInstallerStarter>();
}

}  // namespace fieldcal
