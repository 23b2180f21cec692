#include "tests/app/demo/WalkThrough.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QPixmap>
#include <QProcessEnvironment>
#include <QScreen>

#include <cstdio>

namespace fieldcal::testing {
namespace {

constexpr int kPatienceMs = 120000;
constexpr int kActEveryMs = 3000;

}  // namespace

bool WalkThrough::start(const QString& program, const QProcessEnvironment& environment) {
    if (!log_.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) std::fprintf(stderr, "no log is kept\n");
    program_.setProcessEnvironment(environment);
    program_.setProcessChannelMode(QProcess::MergedChannels);
    program_.start(program, QStringList());
    if (program_.waitForStarted() && hand_.connected()) return true;
    problem_ = hand_.connected() ? program_.errorString() : "there is no X display";
    return false;
}

bool WalkThrough::readLine(const QString& line) {
    const QByteArray told = program_.readAll();
    log_.write(told);
    unread_ += QString::fromUtf8(told);
    const int at = unread_.indexOf(line);
    if (at < 0) return false;
    unread_.remove(0, at + line.size());
    return true;
}

bool WalkThrough::waitFor(const QString& line, int milliseconds) {
    QElapsedTimer timer;
    timer.start();
    while (!readLine(line)) {
        const bool ended = program_.state() == QProcess::NotRunning;
        if (ended || timer.elapsed() > milliseconds) {
            problem_ = (ended ? "the program ended before \"" : "no \"") + line + '"';
            return false;
        }
        program_.waitForReadyRead(50);
    }
    return true;
}

bool WalkThrough::actUntil(const QString& line, const std::function<void()>& action) {
    for (int waitedMs = 0; waitedMs < kPatienceMs; waitedMs += kActEveryMs) {
        hand_.focusLargestWindow();
        action();
        if (waitFor(line, kActEveryMs)) return true;
        if (program_.state() == QProcess::NotRunning) return false;
    }
    return false;
}

void WalkThrough::look(const QString& name) {
    const QString file = QString("%1-%2.png").arg(pictures_.size() + 1, 2, 10, QChar('0')).arg(name);
    QGuiApplication::primaryScreen()->grabWindow(0).save(folder_ + '/' + file);
    pictures_.push_back(file);
    std::printf("   %s\n", qPrintable(file));
    std::fflush(stdout);
}

int WalkThrough::waitForEnd() {
    if (program_.waitForFinished(kPatienceMs) && program_.exitStatus() == QProcess::NormalExit) {
        return program_.exitCode();
    }
    problem_ = "the program did not end by itself";
    return -1;
}

}  // namespace fieldcal::testing
