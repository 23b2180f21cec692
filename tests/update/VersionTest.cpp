#include "update/Version.h"

#include <gmock/gmock.h>

namespace fieldcal::testing {
namespace {

TEST(VersionTest, NumbersAreComparedAsNumbers) {
    const std::vector<const char*> rising{"0", "0.0.0.1", "0.9", "0.10", "1", "1.2.9", "1.2.10", "1.10", "2.0.0.1"};
    for (std::size_t i = 0; i < rising.size(); ++i) {
        for (std::size_t j = 0; j < rising.size(); ++j)
            EXPECT_EQ(*Version::parse(rising[i]) < *Version::parse(rising[j]), i < j) << rising[i] << ' ' << rising[j];
    }
    EXPECT_EQ(Version::parse("1.2"), Version::parse("1.2.0.0"));
    EXPECT_EQ(Version::parse("1.2.0.0")->text(), "1.2");
    EXPECT_EQ(Version::parse("7")->text(), "7.0");
}

TEST(VersionTest, AnythingElseIsNone) {
    for (const char* text : {"", ".", "1.", ".1", "1..2", "v1.2", "1.2-rc1", " 1.2", "1.2\n", "-1", "+1", "1.02",
                             "65536", "1.99999", "1.2.3.4.5", "\xd9\xa1.\xd9\xa2"})
        EXPECT_FALSE(Version::parse(QString::fromUtf8(text))) << text;
}

}  // namespace
}  // namespace fieldcal::testing
