#include "tests/devices/LogCapture.h"
#include "update/InstallerStarter.h"

#include <gtest/gtest.h>

namespace fieldcal::testing {
namespace {

TEST(InstallerStarterTest, AProgramWithoutASignatureStartsNothing) {
    const auto starter = systemInstallerStarter();
    const LogCapture log;
    EXPECT_TRUE(starter->obstacle());
    EXPECT_TRUE(starter->start(QString(), QString(), {}));
    EXPECT_GE(LogCapture::lines().size(), 2U);
}

}  // namespace
}  // namespace fieldcal::testing
