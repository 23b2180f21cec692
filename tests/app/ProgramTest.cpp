#include "app/LogFile.h"
#include "app/OwnCode.h"
#include "devices/SingleInstance.h"

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <memory>

#ifndef _WIN32
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#endif

namespace fieldcal::testing {
namespace {

TEST(SingleInstanceTest, ASecondCopyEndsAtOnceSilentlyWithOne) {
    QTemporaryDir session;
    qputenv("XDG_RUNTIME_DIR", session.path().toLocal8Bit());
    auto first = std::make_unique<SingleInstance>();
    ASSERT_TRUE(first->isFirst());
    EXPECT_FALSE(SingleInstance().isFirst());

    QElapsedTimer timer;
    timer.start();
    QProcess second;
    second.start(FIELDCAL_PROGRAM, QStringList());
    ASSERT_TRUE(second.waitForFinished(10000));
    EXPECT_LT(timer.elapsed(), 1000);
    EXPECT_EQ(second.exitCode(), 1);
    EXPECT_EQ(second.exitStatus(), QProcess::NormalExit);
    EXPECT_TRUE((second.readAllStandardOutput() + second.readAllStandardError()).isEmpty());

    first.reset();
    EXPECT_TRUE(SingleInstance().isFirst());
    qunsetenv("XDG_RUNTIME_DIR");
}

#ifndef _WIN32
TEST(SingleInstanceTest, ALockThatAnotherProgramHoldsIsReported) {
    if (geteuid() != 0) GTEST_SKIP() << "a file of another user is needed";
    const QTemporaryDir session;
    const QByteArray lock = session.filePath("field-calibrator.lock").toLocal8Bit();
    const int file = open(lock.constData(), O_RDWR | O_CREAT, 0666);
    ASSERT_TRUE(file >= 0 && fchown(file, 1, 1) == 0 && flock(file, LOCK_EX) == 0);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_RUNTIME_DIR", session.path());
    environment.insert("XDG_DATA_HOME", session.filePath("data"));
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    QProcess second;
    second.setProcessEnvironment(environment);
    second.setProcessChannelMode(QProcess::MergedChannels);
    second.start(FIELDCAL_PROGRAM, QStringList());
    QByteArray output;
    while (!output.contains("uses the name of this program's lock") && second.waitForReadyRead(10000))
        output += second.readAll();
    EXPECT_TRUE(output.contains("uses the name of this program's lock")) << output.toStdString();
    EXPECT_FALSE(second.waitForFinished(500)) << "a message is shown";
    second.kill();
    second.waitForFinished();
    close(file);
}
#endif

TEST(OwnCodeTest, VariablesThatNameCodeAreRemovedAndNoOthers) {
    const QProcessEnvironment before = QProcessEnvironment::systemEnvironment();
    const char* const code[] = {"QT_PLUGIN_PATH",          "QT_QPA_PLATFORM_PLUGIN_PATH",
                                "QT_QPA_PLATFORMTHEME",    "QT_STYLE_OVERRIDE",
                                "QML2_IMPORT_PATH",        "QMLSCENE_DEVICE",
                                "QSG_RENDER_LOOP",         "QT_OPENGL_DLL",
                                "QT_QUICK_CONTROLS_STYLE", "qt_plugin_path",
                                "OPENCV_OPENCL_RUNTIME"};
    const char* const others[] = {"QT_FORCE_STDERR_LOGGING", "KXSIM_SPEED", "QUIET"};
    for (const char* name : code)
        qputenv(name, "/foreign");
    for (const char* name : others)
        qputenv(name, "1");
    clearVariablesThatNameCode();
    for (const char* name : code)
        EXPECT_FALSE(qEnvironmentVariableIsSet(name)) << name;
    for (const char* name : others)
        EXPECT_EQ(qgetenv(name), "1") << name;
    for (const char* name : others)
        qunsetenv(name);
    for (const QString& name : before.keys())
        qputenv(name.toLocal8Bit(), before.value(name).toLocal8Bit());
}

TEST(LogFileTest, LinesAreKeptWithTimeAndLevelAndTheOldestAreDropped) {
    QTemporaryDir folder;
    const QString path = folder.filePath("data/field-calibrator.log");
    const auto contents = [&](const QString& suffix) {
        QFile file(path + suffix);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    const QtMessageHandler outer = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    {
        const LogFile log(folder.filePath("data"));
        qInfo("a line with \xc3\xa4");
        qCritical("trouble");
    }
    EXPECT_TRUE(contents("").contains("Z info a line with \xc3\xa4\n"));
    EXPECT_TRUE(contents("").contains("Z critical trouble\n"));
    {
        const LogFile log(folder.filePath("data"));
        const QByteArray longLine(64 * 1024, 'x');
        for (int i = 0; i < 5 * 17; ++i)
            qInfo("%s", longLine.constData());
        qInfo("the last");
    }
    EXPECT_TRUE(contents("").endsWith("the last\n"));
    EXPECT_FALSE(contents(".3").isEmpty());
    EXPECT_TRUE(contents(".4").isEmpty());
    for (const char* suffix : {"", ".1", ".2", ".3"}) {
        EXPECT_LT(contents(suffix).size(), LogFile::kFullBytes + 70000) << suffix;
        EXPECT_FALSE(contents(suffix).contains("trouble")) << suffix;
    }
    qInstallMessageHandler(outer);
}

}  // namespace
}  // namespace fieldcal::testing
