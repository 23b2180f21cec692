#include "update/InstallerStarter.h"

#include "update/windows/ProgramFile.h"
#include "update/windows/Signature.h"
#include "update/windows/VersionResource.h"

#include <QDir>

#include <vector>
#include <windows.h>

namespace fieldcal {
namespace {

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

/// Gives the process a handle of its own, which stays open as long as the process runs. Returns the system's error
/// code.
DWORD giveTo(HANDLE process, HANDLE file) {
    HANDLE given = nullptr;
    const bool done = DuplicateHandle(GetCurrentProcess(), file, process, &given, 0, FALSE, DUPLICATE_SAME_ACCESS);
    return done ? ERROR_SUCCESS : GetLastError();
}

/// Starts the installer, which then holds its own file. Returns the system's error code, 0 on success. The working
/// directory is not that of the file, because an installer would load libraries from there.
DWORD createProcess(const std::wstring& installer, const std::wstring& arguments, HANDLE file) {
    std::wstring line = L'"' + installer + L"\" " + arguments;
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(installer.c_str(), line.data(), nullptr, nullptr, FALSE, CREATE_SUSPENDED, nullptr,
                        systemFolder().c_str(), &startup, &process)) {
        return GetLastError();
    }
    DWORD error = giveTo(process.hProcess, file);
    if (error == ERROR_SUCCESS && ResumeThread(process.hThread) == static_cast<DWORD>(-1)) error = GetLastError();
    if (error != ERROR_SUCCESS) TerminateProcess(process.hProcess, 1);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return error;
}

class WindowsInstallerStarter : public InstallerStarter {
public:
    std::optional<UpdateFailure> obstacle() override {
        if (!programsSigner().isEmpty()) return std::nullopt;
        return UpdateFailure::Unsigned;
    }

    std::optional<UpdateFailure> start(const QString& installer, const QString& arguments,
                                       const ExpectedInstaller& expected) override {
        const std::wstring path = QDir::toNativeSeparators(installer).toStdWString();
        const HeldFile file(path);
        if (!file.isHeld()) {
            qInfo("The installer cannot be opened: %lu", GetLastError());
            return UpdateFailure::Disk;
        }
        const QByteArray programs = programsSigner();
        if (programs.isEmpty()) return UpdateFailure::Unsigned;
        if (!isSignedBy(programs, path, file.handle())) return UpdateFailure::NotTrusted;
        if (!isExpected(path, expected)) return UpdateFailure::Server;
        return run(path, arguments.toStdWString(), file.handle());
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
    static bool isExpected(const std::wstring& path, const ExpectedInstaller& expected) {
        const QString reason = reasonToRefuse(identityOf(path), expected);
        if (!reason.isEmpty()) qInfo("The installer is not started: %s.", qUtf8Printable(reason));
        return reason.isEmpty();
    }
    static std::optional<UpdateFailure> run(const std::wstring& path, const std::wstring& arguments, HANDLE file) {
        const DWORD error = createProcess(path, arguments, file);
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
