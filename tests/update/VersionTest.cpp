#include "update/ProgramIdentity.h"

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

TEST(ProgramIdentityTest, OnlyTheOfferedNewerVersionOfThisProductIsAccepted) {
    const auto refused = [](const char* product, const char* stated, const char* offered) {
        const ExpectedInstaller expected{*Version::parse(offered), *Version::parse("1.9")};
        return reasonToRefuse(ProgramIdentity{product, *Version::parse(stated)}, expected).toStdString();
    };
    EXPECT_EQ(refused("Field Calibrator", "1.10.0.0", "1.10"), "");
    EXPECT_EQ(refused("Field Calibrator", "1.8", "1.10"), "it is version 1.8, not 1.10") << "a signed old version";
    EXPECT_EQ(refused("Field Calibrator", "1.10.0.1", "1.10"), "it is version 1.10.0.1, not 1.10");
    EXPECT_EQ(refused("Field Calibrator", "1.9", "1.9"), "version 1.9 is no newer than this one");
    EXPECT_EQ(refused("Field Calibrator ", "1.10", "1.10"), "it is one of the product \"Field Calibrator \"");
    EXPECT_FALSE(reasonToRefuse(std::nullopt, {*Version::parse("2"), *Version::parse("1")}).isEmpty());
}

}  // namespace
}  // namespace fieldcal::testing
