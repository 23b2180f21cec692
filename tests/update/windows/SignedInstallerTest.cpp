#include "tests/devices/LogCapture.h"
#include "update/InstallerStarter.h"

#include <QDir>
#include <QFile>
#include <QThread>
#include <gmock/gmock.h>

namespace fieldcal::testing {
namespace {

using ::testing::Each;
using ::testing::StartsWith;

/// The arguments and the folder that the installer recorded.
QByteArray toldBy(const QString& installer) {
    QFile note(installer + ".txt");
    for (int i = 0; i < 100 && note.size() == 0; ++i)
        QThread::msleep(50);
    return note.open(QIODevice::ReadOnly) ? note.readAll().trimmed() : QByteArray();
}

/// Requires the files that ./test-windows signs: this program, and installers in the folder FIELDCAL_SIGNED.
TEST(SignedInstallerTest, OnlyWhatTheProgramsOwnSignerSignedIsStarted) {
    if (!qEnvironmentVariableIsSet("FIELDCAL_SIGNED")) GTEST_SKIP() << "nothing signed is here";
    const QDir folder(qEnvironmentVariable("FIELDCAL_SIGNED"));
    const auto starter = systemInstallerStarter();
    const LogCapture log;
    EXPECT_EQ(starter->obstacle(), std::nullopt);
    EXPECT_EQ(starter->start(folder.filePath("ours.exe"), "/S /AUTOSTART"), std::nullopt);
    EXPECT_EQ(toldBy(folder.filePath("ours.exe")).toLower(), "/s /autostart in c:\\windows\\system32");
    for (const char* refused : {"others.exe", "changed.exe", "unsigned.exe"})
        EXPECT_EQ(starter->start(folder.filePath(refused), "/S"), UpdateFailure::NotTrusted) << refused;
    EXPECT_THAT(LogCapture::lines(), Each(StartsWith("The installer is not started: ")));
}

}  // namespace
}  // namespace fieldcal::testing
