#pragma once

#include "app/GlobalManager.h"
#include "tests/devices/FakeServiceControl.h"
#include "tests/devices/LogCapture.h"
#include "tests/simulator/SimulatedModule.h"
#include "tests/tools/RenderedRecording.h"

#include <QElapsedTimer>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTimer>
#include <gmock/gmock.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace fieldcal::testing {

constexpr qint64 kPatienceMs = 120000;

/// The application with the simulated module and an interface that records the calls that it receives.
class ApplicationTest : public ::testing::Test, protected SimulatedModule {
protected:
    ApplicationTest() {
        if (QSysInfo::productType() != "windows") set("QT_QPA_PLATFORM", "offscreen");
        set("QT_QUICK_BACKEND", "software");
        set("KXSIM_SESSION", mountainRecording());
        set("KXSIM_SPEED", "0");
        set("KXSIM_FLASH", folder.filePath("flash"));
    }
    ~ApplicationTest() override { end(); }

    /// Restarts the program. `change` may modify its environment.
    void start(const QString& faults = {}, const std::function<void(ApplicationEnvironment&)>& change = nullptr) {
        end();
        set("KXSIM_FAULTS", faults);
        boxes.clear();
        services = std::make_unique<PXMServiceManager>(control);
        ApplicationEnvironment environment = systemApplicationEnvironment();
        environment.workflow = {[this] { return std::make_unique<Sensor>(sensorEnvironment()); }, dataFolder()};
        environment.rootDocument = QUrl::fromLocalFile(FIELDCAL_APP_TESTS "/RecordingInterface.qml");
        environment.update.manifest = QUrl();
        environment.language = {QString("English"), QString("United States")};
        environment.showCritical = [this](const QString& title, const QString& text) {
            boxes.push_back((title + ": " + text).toStdString());
        };
        awake.clear();
        environment.keepAwake = [this](bool on) { awake.push_back(on); };
        environment.power = [this] { return power; };
        environment.savedShownFor = std::chrono::milliseconds(300);
        cues.clear();
        environment.playCue = [this](Cue cue) { cues.push_back(cue); };
        if (change) change(environment);
        manager = std::make_unique<GlobalManager>(argc, argv, environment);
    }
    void end() {
        manager.reset();
        services.reset();
    }

    /// The calls that the interface has received so far.
    std::vector<std::string> calls() const {
        std::vector<std::string> texts;
        for (const QVariant& call : manager->window()->property("calls").toList())
            texts.push_back(call.toString().toStdString());
        return texts;
    }
    void forget() { manager->window()->setProperty("calls", QVariantList()); }
    bool wasCalled(const std::string& call) const {
        const std::vector<std::string> all = calls();
        return std::find(all.begin(), all.end(), call) != all.end();
    }
    template <typename Condition>
    static bool waitUntil(Condition condition) {
        QElapsedTimer timer;
        timer.start();
        while (!condition()) {
            if (timer.elapsed() > kPatienceMs) return false;
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        }
        return true;
    }
    /// Waits for a call, and discards all calls up to it.
    bool waitFor(const std::string& call) {
        if (!waitUntil([&] { return wasCalled(call); })) return false;
        forget();
        return true;
    }

    // The actions of the user in the interface.
    void press(const char* signal) { QMetaObject::invokeMethod(manager->window(), signal); }
    void goTo(State state) {
        QMetaObject::invokeMethod(manager->window(), "stateChanged", Q_ARG(int, static_cast<int>(state)));
    }
    void touch(const char* signal, int x, int y) {
        QMetaObject::invokeMethod(manager->window(), signal, Q_ARG(int, x), Q_ARG(int, y));
    }
    /// Goes from the start page or a later one to the display of an estimated rotation.
    bool solve(const std::string& shown) {
        goTo(State::StartingCalibration);
        return waitFor(shown);
    }
    /// Runs the event loop until the program ends by itself after `action`. Returns the elapsed milliseconds.
    qint64 runUntilEnd(const std::function<void()>& action) {
        QElapsedTimer timer;
        QTimer once, watchdog;
        once.setSingleShot(true);
        QObject::connect(&once, &QTimer::timeout, [&] {
            timer.start();
            action();
        });
        once.start();
        QObject::connect(&watchdog, &QTimer::timeout, [] { FAIL() << "the program does not end"; });
        QObject::connect(&watchdog, &QTimer::timeout, &QCoreApplication::quit);
        watchdog.start(kPatienceMs);
        GlobalManager::exec();
        return timer.elapsed();
    }

    QString dataFolder() const { return folder.filePath("data"); }
    SensorEnvironment sensorEnvironment() const {
        SensorEnvironment environment = systemEnvironment();
        environment.power = nullptr;  // the tests run on any computer
        environment.services = services.get();
        environment.dataFolder = dataFolder();
        return environment;
    }

    int argc = 1;
    char program[16] = "application";
    char* argv[2] = {program, nullptr};
    QTemporaryDir folder;
    FakeServiceControl control;
    std::unique_ptr<PXMServiceManager> services;
    std::vector<std::string> boxes;
    std::optional<PowerState> power;
    std::vector<Cue> cues;    ///< that would have been heard
    std::vector<bool> awake;  ///< the requests to the system to stay awake, in order
    std::unique_ptr<GlobalManager> manager;
};

}  // namespace fieldcal::testing
