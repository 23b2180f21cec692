#include "tests/devices/LogCapture.h"
#include "workflow/BaselineMemory.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>

#include <cmath>

namespace fieldcal::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::StartsWith;

class BaselineMemoryTest : public ::testing::Test {
protected:
    void write(const QByteArray& text) const {
        QFile file(path);
        EXPECT_TRUE(QDir().mkpath(folder) && file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(text), text.size());
    }
    double foundMm(std::uint32_t serial) const { return BaselineMemory(folder).find(serial).value_or(0) * 1000; }

    const QTemporaryDir temporary;
    const QString folder = temporary.filePath("data");
    const QString path = folder + "/stereo-baselines.txt";
    const BaselineMemory memory{folder};
};

TEST_F(BaselineMemoryTest, EachModuleHasItsLatestPlausibleBaseline) {
    EXPECT_EQ(foundMm(4000000001U), 0);
    memory.remember(4000000001U, 0.0551234);
    memory.remember(700010, 0.2);
    memory.remember(700010, 0.015);
    for (const double absurd : {0.0149, 0.2001, -0.05, 0.0, std::nan(""), HUGE_VAL})
        memory.remember(700010, absurd);
    memory.remember(0, 0.05);
    EXPECT_NEAR(foundMm(4000000001U), 55.1234, 1e-3);
    EXPECT_NEAR(foundMm(700010), 15, 1e-9);
    EXPECT_EQ(foundMm(0), 0);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll().count('\n'), 3) << "a comment and two modules";
    EXPECT_EQ(QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList{"stereo-baselines.txt"});
}

TEST_F(BaselineMemoryTest, WhatCannotBeReadIsNotKnownAndLearntAnew) {
    const QByteArray huge = "8 60\n7 55\n" + QByteArray(65536, '#');
    for (const QByteArray& text :
         {QByteArray(), QByteArray("7"), QByteArray("7 oops"), QByteArray("7 nan"), QByteArray("7 inf"),
          QByteArray("7 14.99"), QByteArray("7 200.1"), QByteArray("7 55 mm"), QByteArray("7 55\n7 55"),
          QByteArray("7 oops\n7 55"), QByteArray("-7 55"), QByteArray("77 55"), QByteArray(5000, '\0'), huge}) {
        write(text);
        EXPECT_EQ(foundMm(7), 0) << text.left(40).constData();
        memory.remember(7, 0.055);
        EXPECT_NEAR(foundMm(7), 55, 1e-9) << text.left(40).constData();
    }
    write("\xff\xfe\n\n8 60.5\r\n7 9999\n\t9\t61 ");
    EXPECT_EQ(foundMm(7), 0);
    memory.remember(7, 0.055);
    EXPECT_NEAR(foundMm(8), 60.5, 1e-9) << "the lines of others stand";
    EXPECT_NEAR(foundMm(9), 61, 1e-9);
}

TEST_F(BaselineMemoryTest, ManyModulesNeverMakeAFileThatCannotBeRead) {
    QByteArray many;
    for (int serial = 10001; serial <= 14000; ++serial)
        many += QByteArray::number(serial) + " 55.000000\n";
    write(many);
    memory.remember(7, 0.055);
    EXPECT_NEAR(foundMm(7), 55, 1e-9);
    EXPECT_NEAR(foundMm(14000), 55, 1e-9);
    EXPECT_EQ(foundMm(10001), 0) << "the oldest go first";
}

TEST_F(BaselineMemoryTest, AFolderThatCannotBeWrittenCostsOneLogLine) {
    {
        const LogCapture log;
        QFile inTheWay(folder);
        ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
        memory.remember(7, 0.055);
        EXPECT_THAT(LogCapture::lines(), ElementsAre(StartsWith("CRITICAL " + path.toStdString())));
        EXPECT_EQ(foundMm(7), 0);
        inTheWay.remove();
    }
    const LogCapture log;
    ASSERT_TRUE(QDir().mkpath(path + "/a-folder-of-this-name"));
    EXPECT_EQ(foundMm(7), 0);
    memory.remember(7, 0.055);
    EXPECT_THAT(LogCapture::lines(), ElementsAre(StartsWith("CRITICAL " + path.toStdString())));
}

}  // namespace
}  // namespace fieldcal::testing
