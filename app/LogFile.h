#pragma once

#include <QFile>
#include <QString>
#include <QtGlobal>

namespace fieldcal {

/// While an instance exists, every message of Qt is also written to a file with its time and level; the message handler
/// installed before (standard error) still receives it. A full file is renamed with a number, and the oldest one is
/// deleted. Only one instance may exist at a time; messages may come from any thread. Failure to write the file is
/// reported once on standard error.
class LogFile {
public:
    static constexpr qint64 kFullBytes = 1024 * 1024;
    static constexpr int kKeptFiles = 3;

    /// Writes to `folder/field-calibrator.log`; older files end in `.1` to `.3`.
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
