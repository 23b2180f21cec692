#include "files/PrivateFolder.h"
#include "tests/devices/LogCapture.h"
#include "update/InstallerStarter.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>
#include <gmock/gmock.h>

#include <aclapi.h>
#include <sddl.h>
#include <string>

namespace fieldcal::testing {
namespace {

using ::testing::AnyOf;
using ::testing::Each;
using ::testing::StartsWith;
using ::testing::StrEq;

/// The arguments and the folder that the installer recorded.
QByteArray argumentsOf(const QString& installer) {
    QFile note(installer + ".txt");
    for (int i = 0; i < 100 && note.size() == 0; ++i)
        QThread::msleep(50);
    return note.open(QIODevice::ReadOnly) ? note.readAll().trimmed() : QByteArray();
}

bool canBeWritten(const QString& installer) {
    return QFile(installer).open(QIODevice::ReadWrite | QIODevice::ExistingOnly);
}

bool canBeRenamed(const QString& installer) {
    return QFile::rename(installer, installer + ".old") && QFile::rename(installer + ".old", installer);
}

const ExpectedInstaller kExpected{*Version::parse("2.0"), *Version::parse("1.9")};

/// Requires the files that ./test-windows signs: this program, and installers in the folder FIELDCAL_SIGNED.
TEST(SignedInstallerTest, OnlyWhatTheProgramsOwnSignerSignedIsStarted) {
    if (!qEnvironmentVariableIsSet("FIELDCAL_SIGNED")) GTEST_SKIP() << "nothing signed is here";
    const QDir folder(qEnvironmentVariable("FIELDCAL_SIGNED"));
    const auto starter = systemInstallerStarter();
    const LogCapture log;
    EXPECT_EQ(starter->obstacle(), std::nullopt);
    EXPECT_EQ(starter->start(folder.filePath("ours.exe"), "/S /AUTOSTART", kExpected), std::nullopt);
    EXPECT_EQ(argumentsOf(folder.filePath("ours.exe")).toLower(), "/s /autostart in c:\\windows\\system32");
    for (const char* refused : {"others.exe", "changed.exe", "unsigned.exe"})
        EXPECT_EQ(starter->start(folder.filePath(refused), "/S", kExpected), UpdateFailure::NotTrusted) << refused;
    for (const char* refused : {"old.exe", "product.exe"})
        EXPECT_EQ(starter->start(folder.filePath(refused), "/S", kExpected), UpdateFailure::Server) << refused;
    EXPECT_EQ(starter->start(folder.filePath("ours.exe"), "/S", {kExpected.offered, kExpected.offered}),
              UpdateFailure::Server)
        << "no newer";
    EXPECT_THAT(LogCapture::lines(), Each(StartsWith("The installer is not started: ")));
}

TEST(SignedInstallerTest, TheFileIsHeldUntilTheInstallerEnds) {
    if (!qEnvironmentVariableIsSet("FIELDCAL_SIGNED")) GTEST_SKIP() << "nothing signed is here";
    const QString installer = QDir(qEnvironmentVariable("FIELDCAL_SIGNED")).filePath("held.exe");
    ASSERT_TRUE(canBeWritten(installer));
    ASSERT_TRUE(canBeRenamed(installer));
    ASSERT_EQ(systemInstallerStarter()->start(installer, "/S", kExpected), std::nullopt);
    ASSERT_FALSE(argumentsOf(installer).isEmpty());
    EXPECT_FALSE(canBeWritten(installer));
    EXPECT_FALSE(canBeRenamed(installer));
    EXPECT_FALSE(QFile::remove(installer));
    EXPECT_TRUE(QFile(installer + ".end").open(QIODevice::WriteOnly));
    bool released = false;
    for (int i = 0; i < 100 && !released; ++i) {
        QThread::msleep(50);
        released = QFile::remove(installer);
    }
    EXPECT_TRUE(released);
}

TEST(PrivateFolderTest, OnlyTheSystemAndAdministratorsHaveAccess) {
    const QTemporaryDir parent;
    std::string folder, why;
    ASSERT_TRUE(makePrivateFolder(parent.path().toStdString(), "stem-", &folder, &why)) << why;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    char* rights = nullptr;
    constexpr SECURITY_INFORMATION kWanted = OWNER_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION;
    ASSERT_EQ(
        GetNamedSecurityInfoA(folder.c_str(), SE_FILE_OBJECT, kWanted, nullptr, nullptr, nullptr, nullptr, &descriptor),
        0U);
    EXPECT_TRUE(
        ConvertSecurityDescriptorToStringSecurityDescriptorA(descriptor, SDDL_REVISION_1, kWanted, &rights, nullptr));
    // Wine has a single user, who is the administrators, and does not record that rights are protected.
    EXPECT_THAT(rights, AnyOf(StrEq("O:BAD:P(A;OICI;FA;;;SY)(A;OICI;FA;;;BA)"),
                              StrEq("O:S-1-5-21-0-0-0-1000D:(A;OICI;FA;;;SY)(A;OICI;FA;;;S-1-5-21-0-0-0-1000)")));
    LocalFree(rights);
    LocalFree(descriptor);
}

}  // namespace
}  // namespace fieldcal::testing
