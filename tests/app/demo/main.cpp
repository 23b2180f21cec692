// Plays the whole workflow of the running program, two cameras from start to saved, by events from outside, and says
// what the simulated module's flash holds afterwards.
//   walk-through RECORDING FOLDER        (on an X display; the program is the one beside it)
#include "session/RecordedSession.h"
#include "tests/app/demo/WalkThrough.h"
#include "tools/CalibrationReport.h"
#include "tools/ConnectedModule.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcessEnvironment>
#include <QScreen>
#include <QThread>

#include <cstdio>

namespace fieldcal::testing {
namespace {

constexpr int kSettleMs = 700;
constexpr int kFlashMs = 400;  // and the confirmation that comes with it stands longer
constexpr int kCaptureMs = 240000;

void settle() {
    QThread::msleep(kSettleMs);
}

void drag(WalkThrough* user) {
    const QSize screen = QGuiApplication::primaryScreen()->size();
    const int middle = screen.width() / 2;
    const auto moveSlowly = [&](int from, int to) {
        for (int step = 0; step <= 20; ++step) {
            user->hand().moveTo(from + (to - from) * step / 20, screen.height() / 2);
            QThread::msleep(15);
        }
    };
    user->hand().moveTo(middle, screen.height() / 2);
    user->hand().buttonDown();
    moveSlowly(middle, middle + screen.width() / 8);
    settle();
    user->look("refinement-dragged");
    moveSlowly(middle + screen.width() / 8, middle);  // the finger's own correction is taken back
    user->hand().buttonUp();
    settle();
}

/// Its page comes before the next state's, which the log does not tell.
void readWhatWasFound(WalkThrough* user, const char* name) {
    settle();
    user->look(name);
    user->hand().pressReturn();
}

bool walk(WalkThrough* user) {
    const auto pressReturn = [user] { user->hand().pressReturn(); };
    const auto lookThenPress = [&](const char* name, const char* untilLine) {
        settle();
        user->look(name);
        return user->actUntil(untilLine, pressReturn);
    };
    if (!user->waitFor("changing qml to state 1", 60000) || !lookThenPress("introduction", "changing to state 2") ||
        !lookThenPress("sunlight", "changing to state 6") || !user->waitFor("Adding new infrared", 60000)) {
        return false;
    }
    QThread::msleep(kFlashMs);
    user->look("capture");
    if (!user->waitFor("changing qml to state 9", kCaptureMs)) return false;
    readWhatWasFound(user, "found");
    if (!lookThenPress("tutorial", "changing to state 10")) return false;
    settle();
    user->look("refinement");
    drag(user);
    if (!user->actUntil("changing to state 6", pressReturn) || !user->waitFor("Adding new infrared", 60000)) {
        return false;
    }
    QThread::msleep(kFlashMs);
    user->look("capture-second");
    if (!user->waitFor("changing qml to state 10", kCaptureMs)) return false;
    readWhatWasFound(user, "found-second");
    if (!lookThenPress("refinement-second", "slot_saveAndQuit - cleaning up")) return false;
    QThread::msleep(300);
    user->look("saved");
    return true;
}

QJsonObject judge(const Matrix3& before, const Matrix3& after, const Matrix3& truth) {
    return {{"errorBeforeDeg", rotationDifferenceDeg(before, truth)},
            {"errorAfterDeg", rotationDifferenceDeg(after, truth)}};
}

/// What the module's flash holds now, against the recording's truth.
bool judgeFlash(const QString& recording, QJsonObject* result, QString* why) {
    session::SessionDescription played;
    session::SessionDescription stored;
    std::string whyNot;
    ConnectedModule module;
    if (!session::readDescription(recording.toStdString(), &played, &whyNot)) {
        *why = QString::fromStdString(whyNot);
        return false;
    }
    if (!module.open(true, why) || !module.describe(&stored, why) || !module.close(why)) return false;
    if (!played.truthThird || !played.truthPlatform || !stored.platform) {
        *why = "the recording has no truth for two cameras";
        return false;
    }
    result->insert("third", judge(played.third.rotation, stored.third.rotation, *played.truthThird));
    result->insert("platform", judge(played.platform->rotation, stored.platform->rotation, *played.truthPlatform));
    return true;
}

int run(const QString& recording, const QString& folder) {
    qputenv("KXSIM_SESSION", recording.toLocal8Bit());
    qputenv("KXSIM_FLASH", (folder + "/flash").toLocal8Bit());
    qputenv("XDG_DATA_HOME", (folder + "/data").toLocal8Bit());
    // A session of its own: a copy that runs elsewhere is not in the way.
    QDir().mkpath(folder + "/session");
    QFile::setPermissions(folder + "/session", QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    qputenv("XDG_RUNTIME_DIR", (folder + "/session").toLocal8Bit());
    QFile::remove(folder + "/flash");
    WalkThrough user(folder);
    QString problem;
    QJsonObject result;
    const bool walked = user.start(QCoreApplication::applicationDirPath() + "/field-calibrator",
                                   QProcessEnvironment::systemEnvironment()) &&
                        walk(&user);
    if (!walked) {
        user.look("stuck");
        problem = user.problem();
    }
    const int exitCode = walked ? user.waitForEnd() : -1;
    const bool judged = exitCode == 0 && judgeFlash(recording, &result, &problem);
    result.insert("finished", judged);
    result.insert("exitCode", exitCode);
    result.insert("problem", judged ? QString() : problem);
    result.insert("screenshots", QJsonArray::fromStringList(user.pictures()));
    QFile file(folder + "/application.json");
    if (file.open(QIODevice::WriteOnly)) file.write(QJsonDocument(result).toJson());
    if (!judged) std::fprintf(stderr, "walk-through: %s\n", qPrintable(problem));
    return judged ? 0 : 1;
}

}  // namespace
}  // namespace fieldcal::testing

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        std::fprintf(stderr, "usage: walk-through RECORDING FOLDER\n");
        return 2;
    }
    QDir().mkpath(arguments[2]);
    return fieldcal::testing::run(QDir(arguments[1]).absolutePath(), QDir(arguments[2]).absolutePath());
}
