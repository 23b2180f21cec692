#include "report/History.h"
#include "tests/report/Reports.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>

namespace fieldcal::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::StartsWith;

class HistoryTest : public ::testing::Test {
protected:
    HistoryTest() {
        for (ReportedCamera* camera : {&third, &platform})
            camera->evidence.reset();
    }
    std::vector<std::string> lines() const {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        std::vector<std::string> lines;
        for (const QByteArray& line : file.readAll().split('\n'))
            lines.push_back(line.toStdString());
        return lines;
    }

    const QTemporaryDir temporary;
    const QString folder = temporary.filePath("data"), path = folder + "/history.csv";
    ReportedCamera third = cameraOf(ColourCamera::Third), platform = cameraOf(ColourCamera::Platform);
};

TEST_F(HistoryTest, ALineForEachCameraAndTheColumnsOnce) {
    EXPECT_TRUE(appendHistory(folder, reportOf({third, platform})));
    platform.quality.reset();
    ServiceReport failed = reportOf({platform});
    failed.write = ReportedWrite{false, {}, "7: \"full\",\nagain", {}};
    EXPECT_TRUE(appendHistory(folder, failed));

    const std::string angles = "0.12340,-0.23450,0.34560,0.98760,-1.09870,1.21090,";
    EXPECT_THAT(
        lines(),
        ElementsAre(StartsWith("time,serial,camera,before_x_deg,"),
                    "2026-07-01T12:34:56Z,550101,third," + angles + "0.00410,0.00520,0.00630,10.127,0.214,stored",
                    "2026-07-01T12:34:56Z,550101,platform," + angles + "0.00410,0.00520,0.00630,10.127,0.214,stored",
                    "2026-07-01T12:34:56Z,550101,platform," + angles + ",,,,,\"not stored: 7: \"\"full\"\", again\"",
                    ""));
    EXPECT_EQ(QString::fromStdString(lines()[0]).count(','), QString::fromStdString(lines()[1]).count(','));

    failed.time = failed.time.addDays(1);
    EXPECT_TRUE(appendHistory(folder, failed));
    EXPECT_EQ(lastStored(folder, 550101).toString(Qt::ISODate), "2026-07-01T12:34:56Z") << "the later one failed";
    EXPECT_FALSE(lastStored(folder, 550102).isValid());
    EXPECT_FALSE(lastStored(folder + "/none", 550101).isValid());

    const std::vector<HistoryEntry> newest = newestOfHistory(folder, 3);
    ASSERT_EQ(newest.size(), 3U);
    EXPECT_EQ(newest[0].time, failed.time.addMSecs(-789));
    EXPECT_FALSE(newest[0].stored || newest[1].stored || newest[0].proof);
    EXPECT_TRUE(newest[2].stored && newest[2].proof);
    EXPECT_EQ(newest[2].camera, ColourCamera::Platform);
    EXPECT_NEAR(newest[2].turnDeg, turnDeg(platform.stored, platform.accepted), 1e-3);
    EXPECT_EQ(newest[2].proof->newPx, 0.214);

    for (const QDateTime& wrong :
         {QDateTime(QDate(1970, 1, 1), {}, Qt::UTC), QDateTime::currentDateTimeUtc().addDays(1)}) {
        ServiceReport stored = reportOf({third});
        stored.time = wrong;
        EXPECT_TRUE(appendHistory(folder, stored));
        EXPECT_FALSE(lastStored(folder, 550101).isValid()) << "the last one, but at an unknown time";
    }
}

TEST_F(HistoryTest, WhatIsThereStands) {
    ASSERT_TRUE(QDir().mkpath(folder));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("mine\ncut sho");
    file.close();
    EXPECT_TRUE(appendHistory(folder, reportOf({third})));
    EXPECT_EQ(newestOfHistory(folder, 9).size(), 1U) << "lines that cannot be read are skipped";
    EXPECT_THAT(lines(), ElementsAre("mine", "cut sho", StartsWith("2026-07-01T12:34:56Z,550101,third,"), ""));
}

}  // namespace
}  // namespace fieldcal::testing
