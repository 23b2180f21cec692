// Tests the service manager on the system's own service control, with a service of the vendor's name that is installed
// for the test. The test needs the right to install a service, and does not touch an existing one.
#include "devices/PXMServiceManager.h"
#include "kxapi/Library.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <windows.h>

namespace fieldcal::testing {
namespace {

constexpr const char* kName = "DeepvanePXMQ550";

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
std::string during(const QString& ending, const QString& data) {
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("ProgramData", data);
    program.setProcessEnvironment(environment);
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
            QTemporaryDir data;
            const InstalledService service(c.startType, c.running);
            ASSERT_TRUE(service.installed()) << GetLastError();
            const std::string before = serviceNow();
            const std::string meanwhile = during(ending, data.path());
            const std::string after = serviceNow();
            during("end", data.path());
            const std::string next = serviceNow();
            std::printf("%-18s %-8s %-8s %-7s %s\n", before.c_str(), ending, meanwhile.c_str(), after.c_str(),
                        next.c_str());
            const std::string restored = std::to_string(c.startType) + "/1";
            EXPECT_EQ(meanwhile, "4/1");
            EXPECT_EQ(after, std::string(ending) == "die" ? "4/1" : restored);
            EXPECT_EQ(next, restored);
        }
    }
    QTemporaryDir data;
    for (const char* ending : {"end", "error", "die"})
        EXPECT_EQ(during(ending, data.path()), "missing");
    EXPECT_EQ(serviceNow(), "missing");
}

TEST(ServiceLifeTest, AProgramOnTheSimulatedLibrariesLeavesItAlone) {
    for (const bool running : {true, false}) {
        const QTemporaryDir data;
        const InstalledService service(2, running);
        ASSERT_TRUE(service.installed()) << GetLastError();
        const std::string before = serviceNow();
        EXPECT_EQ(during("play", data.path()), before);
        EXPECT_EQ(serviceNow(), before);
        EXPECT_TRUE(QDir(data.path()).isEmpty()) << "nor is there a note";
    }
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
    if (ending == "play" && !useSimulatedLibraries()) return 4;
    PXMServiceManager& manager = PXMServiceManager::instance();
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
