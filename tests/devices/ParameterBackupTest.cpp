#include "devices/ParameterBackup.h"
#include "tests/devices/FakeDevice.h"

#include <QCryptographicHash>
#include <QFile>
#include <QTemporaryDir>
#include <QtEndian>
#include <gmock/gmock.h>

#include <cstring>
#include <limits>
#include <random>

namespace fieldcal {
namespace {

ParameterBackup sample() {
    ParameterBackup backup;
    backup.serial = 550101;
    backup.taken = QDateTime::fromMSecsSinceEpoch(1774000000123, Qt::UTC);
    backup.block = testing::FakeKxDevice::unitBlock();
    return backup;
}

bool same(const ParameterBackup& a, const ParameterBackup& b) {
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(&a.block);
    return a.serial == b.serial && a.taken == b.taken &&
           std::equal(bytes, bytes + sizeof(a.block), reinterpret_cast<const std::uint8_t*>(&b.block));
}

class ParameterBackupTest : public ::testing::Test {
protected:
    QByteArray bytesOf(const QString& path) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    void put(const QByteArray& bytes) {
        QFile file(folder.filePath("changed"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }
    bool read(ParameterBackup* out) {
        why.clear();
        return readBackup(folder.filePath("changed"), out, &why);
    }
    static QByteArray rehashed(const QByteArray& bytes) {
        const QByteArray content = bytes.left(bytes.size() - 32);
        return content + QCryptographicHash::hash(content, QCryptographicHash::Sha256);
    }

    QTemporaryDir folder;
    QString why;
};

TEST_F(ParameterBackupTest, KeepsEveryBlockUnderANameOfItsOwn) {
    const QString kept = folder.filePath("new %2 %1/backups");
    QString first, second;
    ASSERT_TRUE(keepBackup(kept, sample(), &first, &why)) << why.toStdString();
    ASSERT_TRUE(keepBackup(kept, sample(), &second, &why));
    EXPECT_EQ(first, kept + "/550101-20260320T094640123Z.fcbackup");
    EXPECT_EQ(second, kept + "/550101-20260320T094640123Z-2.fcbackup");
    ParameterBackup read;
    ASSERT_TRUE(readBackup(first, &read, &why)) << why.toStdString();
    EXPECT_TRUE(same(read, sample()));
    EXPECT_FALSE(writeBackup(first, sample(), &why)) << "nothing is overwritten";
}

TEST_F(ParameterBackupTest, WhatMakesNoSenseIsNamed) {
    QString path;
    ASSERT_TRUE(keepBackup(folder.path(), sample(), &path, &why));
    const QByteArray original = bytesOf(path);
    const float infinite = std::numeric_limits<float>::infinity();
    const auto changed = [&](int at, const QByteArray& to) {
        return rehashed(QByteArray(original).replace(at, to.size(), to));
    };
    const struct {
        QByteArray bytes;
        const char* what;
    } cases[] = {{"", "it is no backup"},
                 {original.left(9), "version"},
                 {changed(8, QByteArray("\2\0\0\0", 4)), "version"},
                 {original.left(2111), "length"},
                 {original + 'x', "length"},
                 {QByteArray(original).replace(100, 1, "x"), "checksum"},
                 {changed(23, "\x7f"), "date"},
                 {changed(24, "\1"), "block length"},
                 {changed(32 + 1272, QByteArray(4, '\0')), "infrared rectification: not a rotation"},
                 {changed(32 + 1416, {reinterpret_cast<const char*>(&infinite), 4}), "third rectification"},
                 {changed(32 + 1416 + 35, "\xbf"), "third rectification"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        put(c.bytes);
        ParameterBackup untouched = sample();
        untouched.serial = 7;
        EXPECT_FALSE(read(&untouched));
        EXPECT_EQ(untouched.serial, 7U);
        EXPECT_TRUE(why.startsWith(folder.filePath("changed") + ": ")) << why.toStdString();
        EXPECT_TRUE(why.contains(c.what)) << why.toStdString();
    }
    put(original);
    ParameterBackup again;
    EXPECT_TRUE(read(&again));
    EXPECT_FALSE(readBackup(folder.path(), &again, &why)) << "a folder";
}

}  // namespace
}  // namespace fieldcal
