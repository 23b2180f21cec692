#include "i18n/InterfaceLanguage.h"

#include <gtest/gtest.h>

namespace fieldcal::testing {
namespace {

/// A program cannot select the language of the system, so the environment specifies the expected result.
TEST(SystemLanguageTest, TheUsersLanguageIsNamedInEnglish) {
    const QString expected = qEnvironmentVariable("FIELDCAL_EXPECTED_LANGUAGE");
    const SystemLanguage names = systemLanguage();
    ASSERT_TRUE(names.language && names.country);
    if (expected.isEmpty()) GTEST_SKIP() << "this system speaks " << names.language->toStdString();
    EXPECT_EQ(translationName(*names.language, *names.country), expected);
}

}  // namespace
}  // namespace fieldcal::testing
