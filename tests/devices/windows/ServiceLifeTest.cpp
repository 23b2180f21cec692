// Tests the service manager on the system's own service control, with a service of the vendor's name that is installed
// for the test. The test needs the right to install a service, and does not touch an existing one.
#include "devices/SensorEnvironment.h"

#include <QCoreApplication>
#include <QProcess>
#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

// The second header requires the first one.
// clang-format off
#include <windows.h>
#include <sddl.h>
// clang-format on

namespace fieldcal::testing {
namespace {

constexpr const char* kName = "DeepvanePXMQ550";
constexpr const char* kNoteKey = "SOFTWARE\\Field Calibrator";

/// Handles that close themselves.
class Opened {
public:
    explicit Opened(SC_HANDLE handle) : handle_(handle) {}
    ~Opened() {
        if (handle_ != nullptr) CloseServiceHandle(handle_);
    }
    Opened(const Opened&) = delete;
    Opened& operator=(const Opened&) = delete;
    operator SC_HANDLE() const { return handle_; }

private:
    SC_HANDLE handle_;
};

DWORD stateOf(SC_HANDLE service) {
    SERVICE_STATUS status{};
    return QueryServiceStatus(service, &status) ? status.dwCurrentState : 0;
}

bool waitFor(SC_HANDLE service, DWORD state) {
    for (int i = 0; i < 200 && stateOf(service) != state; ++i)
        Sleep(50);
    return stateOf(service) == state;
}

/// "start type/state", such as "2/4"; "missing".
std::string serviceNow() {
    const Opened manager(OpenSCManagerA(nullptr, nullptr, SC_MANAGER_CONNECT));
    const Opened service(OpenServiceA(manager, kName, SERVICE_QUERY_CONFIG | SERVICE_QUERY_STATUS));
    if (service == nullptr) return "missing";
    alignas(QUERY_SERVICE_CONFIGA) BYTE bytes[8192];
    auto* config = reinterpret_cast<QUERY_SERVICE_CONFIGA*>(bytes);
    DWORD needed = 0;
    if (!QueryServiceConfigA(service, config, sizeof bytes, &needed)) return "unreadable";
    return std::to_string(config->dwStartType) + "/" + std::to_string(stateOf(service));
}

class InstalledService {
public:
    InstalledService(DWORD startType, bool running) {
        const QByteArray program =
            ('"' + QCoreApplication::applicationDirPath() + "/stand-in-service.exe\"").toLocal8Bit();
        const Opened manager(OpenSCManagerA(nullptr, nullptr, SC_MANAGER_ALL_ACCESS));
        const Opened service(CreateServiceA(manager, kName, kName, SERVICE_ALL_ACCESS, SERVICE_WIN32_OWN_PROCESS,
                                            SERVICE_DEMAND_START, SERVICE_ERROR_NORMAL, program.constData(), nullptr,
                                            nullptr, nullptr, nullptr, nullptr));
        installed_ = service != nullptr && (!running || StartServiceA(service, 0, nullptr)) &&
                     waitFor(service, running ? SERVICE_RUNNING : SERVICE_STOPPED) &&
                     ChangeServiceConfigA(service, SERVICE_NO_CHANGE, startType, SERVICE_NO_CHANGE, nullptr, nullptr,
                                          nullptr, nullptr, nullptr, nullptr, nullptr);
    }
    ~InstalledService() {
        const Opened manager(OpenSCManagerA(nullptr, nullptr, SC_MANAGER_CONNECT));
        const Opened service(OpenServiceA(manager, kName, SERVICE_ALL_ACCESS));
        SERVICE_STATUS status{};
        if (ControlService(service, SERVICE_CONTROL_STOP, &status)) waitFor(service, SERVICE_STOPPED);
        DeleteService(service);
    }
    InstalledService(const InstalledService&) = delete;
    InstalledService& operator=(const InstalledService&) = delete;

    bool installed() const { return installed_; }

private:
    bool installed_ = false;
};

/// Runs a program that uses the manager, and returns the state of the service meanwhile. `ending`: "end", "error" or
/// "die"; "play" ends like "end", with the simulated libraries.
std::string during(const QString& ending) {
    QProcess program;
    program.start(QCoreApplication::applicationFilePath(), {"--run", ending});
    EXPECT_TRUE(program.waitForFinished(30000));
    return program.readAllStandardOutput().trimmed().toStdString();
}

TEST(ServiceLifeTest, TheStartTypeComesBackHoweverARunEnds) {
    ASSERT_EQ(serviceNow(), "missing");
    std::printf("start type/state   ending   during   after   after the next run\n");
    struct Case {
        DWORD startType;
        bool running;
    };
    for (const Case& c : {Case{2, true}, {2, false}, {3, true}, {3, false}, {4, true}, {4, false}}) {
        for (const char* ending : {"end", "error", "die"}) {
            const InstalledService service(c.startType, c.running);
            ASSERT_TRUE(service.installed()) << GetLastError();
            const std::string before = serviceNow();
            const std::string meanwhile = during(ending);
            const std::string after = serviceNow();
            during("end");
            const std::string next = serviceNow();
            std::printf("%-18s %-8s %-8s %-7s %s\n", before.c_str(), ending, meanwhile.c_str(), after.c_str(),
                        next.c_str());
            const std::string restored = std::to_string(c.startType) + "/1";
            EXPECT_EQ(meanwhile, "4/1");
            EXPECT_EQ(after, std::string(ending) == "die" ? "4/1" : restored);
            EXPECT_EQ(next, restored);
            EXPECT_EQ(systemServiceNote()->kept(), std::nullopt);
        }
    }
    for (const char* ending : {"end", "error", "die"})
        EXPECT_EQ(during(ending), "missing");
    EXPECT_EQ(serviceNow(), "missing");
}

TEST(ServiceLifeTest, AProgramOnTheSimulatedLibrariesLeavesItAlone) {
    for (const bool running : {true, false}) {
        const InstalledService service(2, running);
        ASSERT_TRUE(service.installed()) << GetLastError();
        const std::string before = serviceNow();
        EXPECT_EQ(during("play"), before);
        EXPECT_EQ(serviceNow(), before);
        EXPECT_EQ(systemServiceNote()->kept(), std::nullopt) << "nor is there a note";
    }
}

/// The rights on the key of the note, as text.
std::string rightsOfNote() {
    BYTE rights[1024];
    DWORD size = sizeof rights;
    HKEY key = nullptr;
    char* text = nullptr;
    if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, kNoteKey, 0, READ_CONTROL, &key) != 0) return "missing";
    const bool read = RegGetKeySecurity(key, DACL_SECURITY_INFORMATION, rights, &size) == 0 &&
                      ConvertSecurityDescriptorToStringSecurityDescriptorA(rights, SDDL_REVISION_1,
                                                                           DACL_SECURITY_INFORMATION, &text, nullptr);
    RegCloseKey(key);
    const std::string result = read ? text : "unreadable";
    LocalFree(text);
    return result;
}

TEST(ServiceLifeTest, OnlyAnExactNoteOfAnAdministratorCounts) {
    const auto write = [](DWORD type, const void* bytes, DWORD size) {
        HKEY key = nullptr;
        ASSERT_EQ(RegCreateKeyA(HKEY_LOCAL_MACHINE, kNoteKey, &key), 0);
        RegSetValueExA(key, "ServiceStartType", 0, type, static_cast<const BYTE*>(bytes), size);
        RegCloseKey(key);
    };
    RegDeleteKeyA(HKEY_LOCAL_MACHINE, kNoteKey);
    const auto note = systemServiceNote();
    QString why;
    ASSERT_TRUE(note->keep(3, &why)) << why.toStdString();
    EXPECT_EQ(note->kept(), 3U);
    EXPECT_EQ(rightsOfNote(), "D:P(A;CI;KA;;;SY)(A;CI;KA;;;BA)(A;CI;KR;;;BU)");

    const std::uint64_t wide = 2;
    const DWORD numbers[] = {0, 1, 4, 0x10002};
    for (const DWORD& number : numbers) {
        write(REG_DWORD, &number, sizeof number);
        EXPECT_EQ(note->kept(), std::nullopt) << number;
    }
    write(REG_SZ, "2", 2);
    EXPECT_EQ(note->kept(), std::nullopt);
    write(REG_QWORD, &wide, sizeof wide);
    EXPECT_EQ(note->kept(), std::nullopt);
    write(REG_DWORD, &wide, 1);
    EXPECT_EQ(note->kept(), std::nullopt);
    write(REG_BINARY, &wide, 4);
    EXPECT_EQ(note->kept(), std::nullopt);
    note->drop();
    EXPECT_EQ(note->kept(), std::nullopt);
    RegDeleteKeyA(HKEY_LOCAL_MACHINE, kNoteKey);
}

TEST(ServiceLifeTest, ARightThatIsMissingIsNamed) {
    const InstalledService service(3, false);
    ASSERT_TRUE(service.installed()) << GetLastError();
    const auto control = systemServiceControl();
    const ServiceControl::Handle manager = control->openManager(SC_MANAGER_CONNECT);
    const ServiceControl::Handle readOnly = control->openService(manager, kName, SERVICE_QUERY_CONFIG);
    EXPECT_FALSE(control->changeConfig(readOnly, SERVICE_NO_CHANGE, 4, SERVICE_NO_CHANGE));
    EXPECT_EQ(control->lastError(), 5U);
    EXPECT_FALSE(control->errorText(5).empty());
    control->close(readOnly);
    control->close(manager);
    EXPECT_EQ(serviceNow(), "3/1");
}

int run(const std::string& ending) {
    const auto search = ending == "play" ? kxapi::LibrarySearch::SimulatedOnly : kxapi::LibrarySearch::Installed;
    PXMServiceManager& manager = *systemEnvironment(search).services;
    if (!manager.shutdownPXMService()) return 2;
    std::printf("%s\n", serviceNow().c_str());
    std::fflush(stdout);
    if (ending == "die") TerminateProcess(GetCurrentProcess(), 9);
    if (ending == "error") std::exit(1);
    return manager.restorePXMService() ? 0 : 3;
}

}  // namespace
}  // namespace fieldcal::testing

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    if (argc == 3 && std::string(argv[1]) == "--run") return fieldcal::testing::run(argv[2]);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
