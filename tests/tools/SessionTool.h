#pragma once

#include "session/RecordedSession.h"
#include "tests/tools/RenderedRecording.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <gmock/gmock.h>

#include <map>

/// Runs the command line as users and scripts do: the real program, on recordings that it has made.
namespace fieldcal::testing {

struct Result {
    int status = -1;
    QByteArray out, error;
    QJsonObject json() const { return QJsonDocument::fromJson(out).object(); }
    int errorLines() const { return static_cast<int>(error.count('\n')); }
};

/// `knobs` are options of the simulated module: "FAULTS" stands for KXSIM_FAULTS.
inline Result run(const QStringList& arguments, const std::map<QString, QString>& knobs = {}) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const auto& [knob, value] : knobs)
        environment.insert("KXSIM_" + knob, value);
    process.setProcessEnvironment(environment);
    process.start(TOOL, arguments);
    process.waitForFinished(-1);
    const int status = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    // On Windows lines end with two characters.
    return {status, process.readAllStandardOutput().replace("\r\n", "\n"),
            process.readAllStandardError().replace("\r\n", "\n")};
}

/// One recording for all tests, and a data folder for each.
class SessionToolTest : public ::testing::Test {
protected:
    SessionToolTest() {
        qputenv("XDG_DATA_HOME", data.path().toLocal8Bit());
        qputenv("XDG_RUNTIME_DIR", data.path().toLocal8Bit());
    }
    ~SessionToolTest() override {
        qunsetenv("XDG_DATA_HOME");
        qunsetenv("XDG_RUNTIME_DIR");
    }

    /// A path in a folder that is removed when the program ends.
    static QString path(const QString& name) {
        static const QTemporaryDir folder;
        return folder.filePath(name);
    }
    static QString recording() { return mountainRecording(); }
    static session::SessionDescription described(const QString& folder) {
        session::SessionDescription session;
        std::string why;
        EXPECT_TRUE(session::readDescription(folder.toStdString(), &session, &why)) << why;
        return session;
    }

    /// A copy of the recording whose description has been changed.
    template <typename Change>
    static QString changed(const QString& name, Change change) {
        QString target = path(name);
        QDir().mkpath(target);
        for (const QString& file : QDir(recording()).entryList(QDir::Files)) {
            QFile::copy(recording() + '/' + file, target + '/' + file);
        }
        session::SessionDescription session = described(target);
        change(&session, target);
        std::string why;
        EXPECT_TRUE(session::writeDescription(target.toStdString(), session, &why)) << why;
        return target;
    }

    const QTemporaryDir data;
};

}  // namespace fieldcal::testing
