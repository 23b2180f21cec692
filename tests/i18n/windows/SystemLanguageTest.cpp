#include "i18n/InterfaceLanguage.h"

#include <gtest/gtest.h>

namespace fieldcal::testing {
namespace {

/// Which language the system speaks cannot be chosen from inside; whoever chose it says what to expect.
TEST(SystemLanguageTest, TheUsersLanguageIsNamedInEnglish) {
    const QString expected = qEnvironmentVariable("FIELDCAL_EXPECTED_LANGUAGE");
    const SystemLanguage names = systemLanguage();
    ASSERT_TRUE(names.language && names.country);
    if (expected.isEmpty()) GTEST_SKIP() << "this system speaks " << names.language->toStdString();
    EXPECT_EQ(translationName(*names.language, *names.country), expected);
}

}  // namespace
}  // namespace fieldcal::testing
