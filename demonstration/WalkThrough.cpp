#include "demonstration/WalkThrough.h"

#include <QDir>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QPixmap>
#include <QRegularExpression>
#include <QScreen>
#include <QThread>

#include <algorithm>
#include <cstdio>

namespace fieldcal::demonstration {
namespace {

constexpr int kPatienceMs = 120000;
constexpr int kActEveryMs = 3000;
constexpr int kSettleMs = 700;
constexpr int kAnswerMs = 2000;

}  // namespace

bool WalkThrough::start(const QString& recording, const QStringList& command) {
    if (!log_.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) std::fprintf(stderr, "no log is kept\n");
    qputenv("KXSIM_SESSION", recording.toLocal8Bit());
    qputenv("KXSIM_FLASH", (folder_ + "/flash").toLocal8Bit());
    qputenv("XDG_DATA_HOME", (folder_ + "/data").toLocal8Bit());
    // A separate session prevents a conflict with a copy that runs elsewhere.
    QDir().mkpath(folder_ + "/session");
    QFile::setPermissions(folder_ + "/session", QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    qputenv("XDG_RUNTIME_DIR", (folder_ + "/session").toLocal8Bit());
    QFile::remove(folder_ + "/flash");
    program_.setProcessChannelMode(QProcess::MergedChannels);
    if (command.isEmpty()) {
        program_.start(QCoreApplication::applicationDirPath() + "/field-calibrator", QStringList());
    } else {
        program_.start(command.first(), command.mid(1));
    }
    if (program_.waitForStarted() && hand_.connected()) return true;
    problem_ = hand_.connected() ? program_.errorString() : "there is no X display";
    return false;
}

void WalkThrough::readLog() {
    const QByteArray output = program_.readAll();
    log_.write(output);
    unread_ += QString::fromUtf8(output);
    lastLine_ += QString::fromUtf8(output);
    static const QRegularExpression shows("The interface shows (\\w+)\\.");
    auto pages = shows.globalMatch(lastLine_);
    while (pages.hasNext())
        page_ = pages.next().captured(1);
    static const QRegularExpression history("The history shows (\\d+) stored calibrations\\.");
    const auto stored = history.match(lastLine_);
    if (stored.hasMatch() && mainButtonPresses_ == 0) practised_ = stored.captured(1).toInt() > 0;
    lastLine_ = lastLine_.mid(lastLine_.lastIndexOf('\n') + 1);
}

const QString& WalkThrough::page() {
    readLog();
    return page_;
}

bool WalkThrough::isOn(const QString& page) {
    QElapsedTimer timer;
    timer.start();
    while (this->page() != page) {
        if (program_.state() == QProcess::NotRunning || timer.elapsed() > kAnswerMs) {
            problem_ = QString("%1 is shown, not %2").arg(page_.isEmpty() ? "nothing" : page_, page);
            return false;
        }
        program_.waitForReadyRead(20);
    }
    return true;
}

bool WalkThrough::lookAt(const QString& page, const QString& name, QImage* picture) {
    if (!isOn(page)) return false;
    settle();
    const QImage taken = look(name);
    if (picture != nullptr) *picture = taken;
    return isOn(page);
}

bool WalkThrough::pressTo(const QString& page, X11Hand::Key key) {
    hand_.focusWindow();
    hand_.press(key);
    ++mainButtonPresses_;
    return isOn(page);
}

int WalkThrough::waitForOne(const QStringList& lines, int milliseconds) {
    QElapsedTimer timer;
    timer.start();
    while (true) {
        readLog();
        int first = -1, at = unread_.size();
        for (int i = 0; i < lines.size(); ++i) {
            const int found = unread_.indexOf(lines[i]);
            if (found < 0 || found >= at) continue;
            first = i;
            at = found;
        }
        if (first >= 0) {
            unread_.remove(0, at + lines[first].size());
            return first;
        }
        const bool ended = program_.state() == QProcess::NotRunning;
        if (ended || timer.elapsed() > milliseconds) {
            problem_ = (ended ? "the program ended before \"" : "no \"") + lines.first() + '"';
            return -1;
        }
        program_.waitForReadyRead(50);
    }
}

bool WalkThrough::hasAppeared(const QStringList& lines) {
    readLog();
    return std::any_of(lines.begin(), lines.end(), [this](const QString& line) { return unread_.contains(line); });
}

bool WalkThrough::actUntil(const QString& line, const std::function<void()>& action) {
    for (int waitedMs = 0; waitedMs < kPatienceMs; waitedMs += kActEveryMs) {
        hand_.focusWindow();
        action();
        if (waitFor(line, kActEveryMs)) return true;
        if (program_.state() == QProcess::NotRunning) return false;
    }
    return false;
}

void WalkThrough::settle() const {
    QThread::msleep(kSettleMs);
}

QImage WalkThrough::look(const QString& name) {
    const QString file = QString("%1-%2.png").arg(pictures_.size() + 1, 2, 10, QChar('0')).arg(name);
    QImage picture = QGuiApplication::primaryScreen()->grabWindow(0).toImage();
    picture.save(folder_ + '/' + file);
    pictures_.push_back(file);
    std::printf("   %s\n", qPrintable(file));
    std::fflush(stdout);
    return picture;
}

double WalkThrough::reactionMs(const std::function<void()>& action) {
    const auto corner = [] {
        return QGuiApplication::primaryScreen()->grabWindow(0, 2, 2, 1, 1).toImage().pixel(0, 0);
    };
    const QRgb before = corner();
    QElapsedTimer timer;
    timer.start();
    action();
    while (corner() == before)
        if (timer.elapsed() > kAnswerMs) return -1;
    return static_cast<double>(timer.nsecsElapsed()) * 1e-6;
}

int WalkThrough::waitForEnd() {
    if (program_.waitForFinished(kPatienceMs) && program_.exitStatus() == QProcess::NormalExit) {
        return program_.exitCode();
    }
    problem_ = "the program did not end by itself";
    return -1;
}

}  // namespace fieldcal::demonstration
