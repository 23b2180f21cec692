#pragma once

#include <QFile>
#include <QString>
#include <QtGlobal>

namespace fieldcal {

/// While it lives, every message of Qt's also goes into a file, with its time and its level; what is installed already
/// (standard error) gets it as before. A full file is kept under a number, and the oldest is dropped. One at a time;
/// messages come from any thread. A file that cannot be written is said once, on standard error.
class LogFile {
public:
    static constexpr qint64 kFullBytes = 1024 * 1024;
    static constexpr int kKeptFiles = 3;

    /// `folder/field-calibrator.log`; older ones end in `.1` to `.3`.
    explicit LogFile(const QString& folder);
    ~LogFile();
    LogFile(const LogFile&) = delete;
    LogFile& operator=(const LogFile&) = delete;

private:
    static void receive(QtMsgType type, const QMessageLogContext& context, const QString& text);
    void write(QtMsgType type, const QString& text);
    void rotate();

    const QString path_;
    QFile file_;
    QtMessageHandler previous_ = nullptr;
};

}  // namespace fieldcal
