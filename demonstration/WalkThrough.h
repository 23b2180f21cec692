#pragma once

#include "demonstration/X11Hand.h"

#include <QFile>
#include <QImage>
#include <QProcess>
#include <QString>
#include <QStringList>

#include <functional>

namespace fieldcal::demonstration {

/// A person at the running program, who reads its log to know where they are: looks (takes a picture of the screen),
/// acts, and waits for what comes of it.
class WalkThrough {
public:
    /// Pictures and the program's log go into `folder`.
    explicit WalkThrough(QString folder) : folder_(std::move(folder)), log_(folder_ + "/application.log") {}

    /// Starts the program, playing the recording on a module with a flash of its own. Without a command it is the one
    /// that lies beside this one; with one it may be another system's, as long as its window is on this display and its
    /// log on standard error.
    bool start(const QString& recording, const QStringList& command = {});
    /// Waits for a line of the log that contains `line` and came after the last one that was waited for. False: it did
    /// not come in time, or the program ended; `problem` says which.
    bool waitFor(const QString& line, int milliseconds) { return waitForOne({line}, milliseconds) == 0; }
    /// The same for whichever of some lines comes first; its index, or -1.
    int waitForOne(const QStringList& lines, int milliseconds);
    /// Acts, again and again, until the line comes.
    bool actUntil(const QString& line, const std::function<void()>& action);
    /// A person waits for what they see.
    void settle() const;
    QImage look(const QString& name);
    /// Acts, and gives the milliseconds until the screen's upper left corner looks different; -1: it never does.
    double reactionMs(const std::function<void()>& action);
    /// Whether one of the lines has come since the last one that was waited for.
    bool hasCome(const QStringList& lines);
    /// The program's exit code, once it has ended by itself; -1 when it does not.
    int waitForEnd();

    X11Hand& hand() { return hand_; }
    qint64 processId() const { return program_.processId(); }
    const QString& problem() const { return problem_; }
    const QStringList& pictures() const { return pictures_; }

private:
    void readLog();

    const QString folder_;
    QFile log_;
    X11Hand hand_;
    QProcess program_;
    QString unread_;
    QString problem_;
    QStringList pictures_;
};

}  // namespace fieldcal::demonstration
