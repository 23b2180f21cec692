#include "devices/PowerState.h"

#include <gtest/gtest.h>

#ifndef _WIN32
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#endif

namespace fieldcal::testing {
namespace {

TEST(PowerStateTest, OnlyANearlyEmptyBatteryWithoutMainsIsRefused) {
    EXPECT_FALSE(sufficesToWrite(PowerState{false, 14}));
    EXPECT_TRUE(sufficesToWrite(PowerState{false, 15}));
    EXPECT_TRUE(sufficesToWrite(PowerState{true, 0}));
    EXPECT_TRUE(sufficesToWrite(std::nullopt));
}

#ifndef _WIN32
TEST(PowerStateTest, TheSuppliesOfTheComputerCount) {
    const QTemporaryDir folder;
    const auto put = [&](const QString& file, const QByteArray& text) {
        ASSERT_TRUE(QDir(folder.path()).mkpath(QFileInfo(file).path()));
        QFile out(folder.filePath(file));
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(text + '\n');
    };
    const auto now = [&] { return powerIn(folder.path().toStdString()); };
    EXPECT_FALSE(powerIn(folder.filePath("missing").toStdString()));
    put("AC/type", "Mains");
    put("AC/online", "0");
    put("pen/type", "Battery");
    put("pen/scope", "Device");
    put("pen/capacity", "90");
    EXPECT_FALSE(now()) << "a pen's battery";
    put("BAT0/type", "Battery");
    put("BAT0/capacity", "9");
    ASSERT_TRUE(now());
    EXPECT_FALSE(now()->mains);
    EXPECT_EQ(now()->batteryPercent, 9);
    put("BAT1/type", "Battery");
    put("BAT1/capacity", "40");
    EXPECT_EQ(now()->batteryPercent, 40);
    put("usb/type", "USB");
    put("usb/online", "1");
    EXPECT_TRUE(now()->mains);
}
#endif

}  // namespace
}  // namespace fieldcal::testing
