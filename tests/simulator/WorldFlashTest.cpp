// The flash of a module that sees a world.
#include "tests/simulator/FlashFixture.h"

#include <gmock/gmock.h>

namespace {

TEST_F(FlashTest, ARearCameraThatIsHiddenIsInTheFlashAllTheSame) {
    set("KXSIM_SESSION", "");
    const QByteArray factory = stored();
    for (const char* hidden : {"absent", "uncalibrated"}) {
        set("KXSIM_FLASH", flash + hidden);
        set("KXSIM_PLATFORM", hidden);
        EXPECT_EQ(createReady()->platformCamera(), nullptr);
        EXPECT_EQ(stored(), factory) << hidden;
        set("KXSIM_PLATFORM", "calibrated");
        EXPECT_NE(createReady()->platformCamera(), nullptr);
        EXPECT_EQ(stored(), factory) << "a later run, after " << hidden;
    }
}

}  // namespace
