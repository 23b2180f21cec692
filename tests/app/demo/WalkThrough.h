#pragma once

#include "tests/app/demo/X11Hand.h"

#include <QFile>
#include <QProcess>
#include <QString>
#include <QStringList>

#include <functional>

namespace fieldcal::testing {

/// A person at the running program, who reads its log to know where they are: looks (takes a picture of the screen),
/// acts, and waits for what comes of it.
class WalkThrough {
public:
    /// Pictures and the program's log go into `folder`.
    explicit WalkThrough(QString folder) : folder_(std::move(folder)), log_(folder_ + "/application.log") {}

    bool start(const QString& program, const QProcessEnvironment& environment);
    /// Waits for a line of the log that contains `line` and came after the last one that was waited for. False: it did
    /// not come in time, or the program ended; `problem` says which.
    bool waitFor(const QString& line, int milliseconds);
    /// Acts, again and again, until the line comes.
    bool actUntil(const QString& line, const std::function<void()>& action);
    void look(const QString& name);
    /// The program's exit code, once it has ended by itself; -1 when it does not.
    int waitForEnd();

    X11Hand& hand() { return hand_; }
    const QString& problem() const { return problem_; }
    const QStringList& pictures() const { return pictures_; }

private:
    bool readLine(const QString& line);

    const QString folder_;
    QFile log_;
    X11Hand hand_;
    QProcess program_;
    QString unread_;
    QString problem_;
    QStringList pictures_;
};

}  // namespace fieldcal::testing
