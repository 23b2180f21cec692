#pragma once

#include <QString>
#include <QtGlobal>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <mutex>
#include <string>
#include <vector>

namespace fieldcal::testing {

/// Collects everything that is logged through Qt during its lifetime, and prints it only if the test has failed.
/// Critical lines start with "CRITICAL ". Only one instance at a time.
class LogCapture {
public:
    LogCapture() {
        const std::lock_guard lock(mutex());
        lines().clear();
        previous_ = qInstallMessageHandler(&LogCapture::collect);
    }
    ~LogCapture() {
        qInstallMessageHandler(previous_);
        if (!::testing::Test::HasFailure()) return;
        const std::lock_guard lock(mutex());
        for (const std::string& line : lines())
            std::printf("%s\n", line.c_str());
    }
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
    /// Returns the last line that starts with `start`.
    static std::string last(const std::string& start) {
        const std::lock_guard lock(mutex());
        const auto startsSo = [&](const std::string& line) { return line.compare(0, start.size(), start) == 0; };
        const auto found = std::find_if(lines().rbegin(), lines().rend(), startsSo);
        return found == lines().rend() ? "" : *found;
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
