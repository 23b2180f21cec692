#pragma once

#include <QString>
#include <QtGlobal>

#include <algorithm>
#include <mutex>
#include <string>
#include <vector>

namespace fieldcal::testing {

/// Collects what is logged through Qt while it lives, instead of printing it. Critical lines start with "CRITICAL ".
/// One at a time.
class LogCapture {
public:
    LogCapture() {
        const std::lock_guard lock(mutex());
        lines().clear();
        previous_ = qInstallMessageHandler(&LogCapture::collect);
    }
    ~LogCapture() { qInstallMessageHandler(previous_); }
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;

    static std::vector<std::string>& lines() {
        static std::vector<std::string> collected;
        return collected;
    }
    static bool has(const std::string& line) {
        const std::lock_guard lock(mutex());
        return std::count(lines().begin(), lines().end(), line) > 0;
    }

private:
    static std::mutex& mutex() {
        static std::mutex ofLines;
        return ofLines;
    }
    static void collect(QtMsgType type, const QMessageLogContext&, const QString& text) {
        const std::lock_guard lock(mutex());
        lines().push_back((type == QtCriticalMsg ? "CRITICAL " : "") + text.toStdString());
    }

    QtMessageHandler previous_;
};

}  // namespace fieldcal::testing
