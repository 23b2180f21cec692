#pragma once

#include "demonstration/X11Hand.h"

#include <QFile>
#include <QImage>
#include <QProcess>
#include <QString>
#include <QStringList>

#include <functional>

namespace fieldcal::demonstration {

/// Simulates a user of the running program: takes screenshots, acts, and follows the program's log to know which page
/// is shown.
class WalkThrough {
public:
    /// Screenshots and the program's log are written to `folder`.
    explicit WalkThrough(QString folder) : folder_(std::move(folder)), log_(folder_ + "/application.log") {}

    /// Starts the program, which plays the recording on a module with a separate flash. Without `command` it is the
    /// program beside this one. A command may start a program of another system, as long as its window is on this
    /// display and its log on standard error.
    bool start(const QString& recording, const QStringList& command = {});
    /// Waits for a line of the log that contains `line` and follows the last one that was waited for. Returns false
    /// when it did not appear in time, or when the program ended; `problem` says which.
    bool waitFor(const QString& line, int milliseconds) { return waitForOne({line}, milliseconds) == 0; }
    /// The same for the first of several lines to appear. Returns its index, or -1.
    int waitForOne(const QStringList& lines, int milliseconds);
    /// Acts repeatedly until the line appears.
    bool actUntil(const QString& line, const std::function<void()>& action);
    /// `settle` waits until animations have ended; `look` takes a screenshot.
    void settle() const;
    QImage look(const QString& name);
    /// Waits until the interface says that it shows `page`, an object name. Returns false, with the reason in
    /// `problem`, when it has not said so within two seconds, which is the longest time that a user may wait for an
    /// answer.
    bool isOn(const QString& page);
    /// Waits for `page` as above, lets its animations end, and takes a screenshot of it.
    bool lookAt(const QString& page, const QString& name, QImage* picture = nullptr);
    /// Presses the key once, and waits for the page to which it leads.
    bool pressTo(const QString& page, X11Hand::Key key);
    /// Acts, and returns the milliseconds until the upper left corner of the screen changes; -1 if it does not within
    /// two seconds.
    double reactionMs(const std::function<void()>& action);
    /// The page that the interface has last said to show.
    const QString& page();
    /// Returns whether one of the lines has appeared since the last one that was waited for.
    bool hasAppeared(const QStringList& lines);
    /// Returns the exit code of the program once it has ended by itself; -1 if it does not.
    int waitForEnd();

    /// According to the program, the user has stored a calibration before, such as in an earlier run with the same
    /// folder.
    bool practised() const { return practised_; }
    /// The number of times that `pressTo` pressed the main button of a page.
    int mainButtonPresses() const { return mainButtonPresses_; }

    X11Hand& hand() { return hand_; }
    qint64 processId() const { return program_.processId(); }
    const QString& problem() const { return problem_; }
    /// Records what went wrong. Returns false.
    bool fail(const QString& problem) {
        problem_ = problem;
        return false;
    }
    const QStringList& pictures() const { return pictures_; }

private:
    void readLog();

    const QString folder_;
    QFile log_;
    X11Hand hand_;
    QProcess program_;
    QString unread_;
    QString lastLine_;  ///< as far as it has been read
    QString page_;
    QString problem_;
    bool practised_ = false;
    int mainButtonPresses_ = 0;
    QStringList pictures_;
};

}  // namespace fieldcal::demonstration
