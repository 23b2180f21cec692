// Keeps the running program capturing and refining in a loop, and samples its memory use.
//   endurance RECORDING FOLDER MINUTES   (on an X display; the program is the one beside it)
// MINUTES are time of the module: KXSIM_SPEED times real time. The speed must not be 0, as fast as possible.
#include "demonstration/WalkThrough.h"

#include <QDir>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QScreen>
#include <QThread>

#include <algorithm>
#include <cstdio>

namespace fieldcal::demonstration {
namespace {

using Key = X11Hand::Key;

constexpr int kCaptureMs = 240000;

int residentMegabytes(qint64 process) {
    QFile status(QString("/proc/%1/status").arg(process));
    if (!status.open(QIODevice::ReadOnly)) return 0;
    const QRegularExpression line("VmRSS:\\s*(\\d+) kB");
    return line.match(QString::fromLatin1(status.readAll())).captured(1).toInt() / 1024;
}

/// Goes from the start of an attempt through the refinement and its restart back to the start page.
bool round(WalkThrough* user) {
    const auto pressReturn = [user] { user->hand().press(Key::Return); };
    const QSize screen = QGuiApplication::primaryScreen()->size();
    const auto press = [&](int x, int y) {
        user->hand().moveTo(x, y);
        user->hand().buttonDown();
        user->hand().buttonUp();
    };
    const auto restart = [&] {  // the button is in the lower left corner, and the confirmation is left of the centre
        const double unit = std::min(screen.width() / 1280.0, screen.height() / 800.0);
        press(60, screen.height() - 55);
        user->settle();
        press(screen.width() / 2 - static_cast<int>(190 * unit), screen.height() / 2 + static_cast<int>(96 * unit));
    };
    const int found = user->waitForOne({"changing qml to state 9", "changing qml to state 5"}, kCaptureMs);
    if (found == 1) return user->actUntil("changing to state 6", pressReturn);
    if (found < 0) return false;
    user->settle();
    pressReturn();  // leaves the page with the result
    user->settle();
    pressReturn();  // once only: a second press might arrive after the page has changed, and accept
    if (!user->waitFor("changing to state 10", kCaptureMs)) return false;
    for (int x = -100; x <= 100; x += 5) {
        user->hand().moveTo(screen.width() / 2 + x, screen.height() / 2);
        if (x == -100) user->hand().buttonDown();
        QThread::msleep(40);
    }
    user->hand().buttonUp();
    return user->actUntil("changing to state 3", restart) && user->waitFor("changing qml to state 5", kCaptureMs) &&
           user->actUntil("changing to state 6", pressReturn);
}

int run(const QString& recording, const QString& folder, int minutes) {
    const double speed = qEnvironmentVariable("KXSIM_SPEED", "1").toDouble();
    WalkThrough user(folder);
    const auto pressReturn = [&user] { user.hand().press(Key::Return); };
    bool goes = user.start(recording) && user.waitFor("changing qml to state 1", 60000) &&
                user.actUntil("changing to state 2", pressReturn) && user.actUntil("changing to state 6", pressReturn);
    QElapsedTimer clock;
    clock.start();
    double passed = 0;
    for (int rounds = 0; goes && passed < minutes; ++rounds) {
        std::printf("%6.1f min %4d rounds %5d MB\n", passed, rounds, residentMegabytes(user.processId()));
        std::fflush(stdout);
        goes = round(&user);
        passed = static_cast<double>(clock.elapsed()) * speed / 60000;
    }
    std::printf("%6.1f min  at the end %5d MB\n", passed, residentMegabytes(user.processId()));
    if (!goes) std::fprintf(stderr, "endurance: %s\n", qPrintable(user.problem()));
    return goes ? 0 : 1;
}

}  // namespace
}  // namespace fieldcal::demonstration

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 4) {
        std::fprintf(stderr, "usage: endurance RECORDING FOLDER MINUTES\n");
        return 2;
    }
    QDir().mkpath(arguments[2]);
    return fieldcal::demonstration::run(QDir(arguments[1]).absolutePath(), QDir(arguments[2]).absolutePath(),
                                        arguments[3].toInt());
}
