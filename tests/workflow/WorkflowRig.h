#pragma once

#include "engine/Rotation.h"
#include "session/RecordedSession.h"
#include "tests/devices/FakeServiceControl.h"
#include "tests/devices/LogCapture.h"
#include "tests/simulator/SimulatedModule.h"
#include "tests/tools/RenderedRecording.h"
#include "workflow/ProcessingThread.h"
#include "workflow/Workflow.h"

#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <vector>

namespace fieldcal::testing {

template <typename A, typename B>
double degreesBetween(const A& a, const B& b) {
    return vq::angleBetweenDeg(vq::matrixOf(a), vq::matrixOf(b));
}
inline session::SessionDescription describe(const QString& recording) {
    session::SessionDescription description;
    std::string why;
    EXPECT_TRUE(session::readDescription(recording.toStdString(), &description, &why)) << why;
    return description;
}

/// The user: receives the output of the workflow, and can wait for it.
class User : public WorkflowListener {
public:
    /// Waits until `condition` holds; returns false after a time within which everything should have happened.
    bool waitUntil(const std::function<bool()>& condition) {
        std::unique_lock lock(mutex);
        return changed.wait_for(lock, std::chrono::seconds(400), condition);
    }
    /// Waits for the next time that the workflow enters the state.
    bool waitFor(State state) {
        const auto arrived = [&] {
            while (seen < states.size())
                if (states[seen++] == state) return true;
            return false;
        };
        return waitUntil([&] { return arrived() || !errors.empty(); }) && errors.empty();
    }

    void stateChanged(State state) override { note(), states.push_back(state); }
    void framesReady(State state, ColourCamera, const FrameRecords&) override {
        note(), ++frames;
        if (LogCapture::last("Emitter is ") == "Emitter is enabled.") note(), dotted.insert(state);
    }
    void lightMeasured(const LightGate::Reading& reading) override {
        note(), lit = reading.lit, darkReadings += lit ? 0 : 1;
    }
    void returnToWellLitArea(bool needed) override {
        const char letter = needed ? 'D' : 'L';
        const std::size_t last = events.find_last_of("DL");
        if (last == std::string::npos || events[last] != letter) note(), events += letter;
    }
    void pairCaptured() override {
        note(), events += 'P';
        if (onPair) onPair();
    }
    void solutionFound(ColourCamera, const CameraParameters&, const Rotation&, const FoundTurn& turn) override {
        note(), found = turn;
    }
    void offerHowToMove() override { note(), events += 'F'; }
    void pairProcessed(const vq::CalibratorResult& result) override { note(), codes.push_back(result.code); }
    void deviceError(const QString& text) override { note(), errors.push_back(text.toStdString()); }
    void missingModule() override { note(), errors.emplace_back("missing module"); }
    void missingPlatformCamera() override { note(), errors.emplace_back("missing platform camera"); }
    void platformCameraIssue() override { note(), ++rearCameraIssues; }
    void lastSaveSettled(const LastSave& last) override { note(), lastSave = last; }

    std::mutex mutex;
    std::condition_variable changed;
    std::vector<State> states;
    std::size_t seen = 0;
    int frames = 0;
    bool lit = false;
    int darkReadings = 0;
    int rearCameraIssues = 0;
    std::string events;      ///< of the captures: P photo, D too dark, L lit (again), F failed
    std::set<State> dotted;  ///< states in which frames arrived while the emitter was on
    std::vector<std::int32_t> codes;
    std::vector<std::string> errors;
    std::optional<LastSave> lastSave;
    FoundTurn found;
    std::function<void()> onPair;

private:
    /// Holds the lock during the expression in which it is used, and wakes waiting threads.
    struct Note {
        explicit Note(User& of) : user(of), lock(of.mutex) {}
        ~Note() { user.changed.notify_all(); }
        Note(const Note&) = delete;
        Note& operator=(const Note&) = delete;
        User& user;
        std::lock_guard<std::mutex> lock;
    };
    Note note() { return Note(*this); }
};

/// A workflow on its thread, with the simulated module and a flash file.
class WorkflowTest : public ::testing::Test, protected SimulatedModule {
protected:
    explicit WorkflowTest(const QString& recording = mountainRecording()) {
        set("KXSIM_SESSION", recording);
        set("KXSIM_SPEED", "0");
        set("KXSIM_FLASH", folder.filePath("flash"));
    }
    ~WorkflowTest() override {
        thread.reset();
        workflow.reset();
    }

    /// Restarts the program, with a new `user`.
    void start(const QString& faults = {}) {
        thread.reset();
        workflow.reset();
        set("KXSIM_FAULTS", faults);
        user = std::make_unique<User>();
        services = std::make_unique<PXMServiceManager>(control);
        const auto makeSensor = [this] {
            SensorEnvironment environment = systemEnvironment();
            environment.power = nullptr;  // the tests run on any computer
            environment.services = services.get();
            environment.dataFolder = folder.filePath("data");
            return std::make_unique<Sensor>(environment);
        };
        workflow = std::make_unique<Workflow>(*user, WorkflowEnvironment{makeSensor, folder.filePath("data")});
        thread = std::make_unique<ProcessingThread>(workflow->loop());
    }
    /// From the start to an estimated rotation; the workflow stays in the state that shows it.
    void solve(State shown = State::RefiningTutorial) {
        workflow->requestState(State::StartingCalibration);
        ASSERT_TRUE(user->waitFor(shown)) << ::testing::PrintToString(user->errors);
    }
    void dragBy(float degrees) {
        vq::ICalibrator& engine = workflow->engine();
        engine.setTouchAreaSize(800, 600);
        engine.setDragAreaSize(800, 600);
        engine.beginDrag(300, 50);
        engine.drag(300 + static_cast<int>(degrees * 100), 400);
        engine.endDrag();
    }
    LeaveReport stopAndSave(Storing storing = Storing::WithRefinement) {
        thread->stop(Stop::ToSave);
        return workflow->save(storing);
    }
    QByteArray flash() const {
        QFile file(folder.filePath("flash"));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    QTemporaryDir folder;
    FakeServiceControl control;
    std::unique_ptr<PXMServiceManager> services;
    LogCapture log;
    std::unique_ptr<User> user;
    std::unique_ptr<Workflow> workflow;
    std::unique_ptr<ProcessingThread> thread;
};

}  // namespace fieldcal::testing
