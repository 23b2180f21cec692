#include "i18n/InterfaceLanguage.h"

#include <gtest/gtest.h>

#include <utility>

namespace fieldcal::testing {
namespace {

TEST(SystemLanguageTest, TheUsersLocaleIsNamedInEnglish) {
    for (const auto& [locale, name] : {std::pair("zh_HK.UTF-8", "Chinese_HongKongSAR"),
                                       {"zh_TW.UTF-8", "Chinese_Taiwan"},
                                       {"zh_CN.UTF-8", "Chinese_China"},
                                       {"pt_BR.UTF-8", "Portuguese_Brazil"},
                                       {"nb_NO.UTF-8", "Norwegian_Norway"},
                                       {"he_IL.UTF-8", "Hebrew_Israel"},
                                       {"C.UTF-8", "English_UnitedStates"}}) {
        qputenv("LC_ALL", locale);
        const SystemLanguage names = systemLanguage();
        EXPECT_EQ(translationName(names.language.value_or(""), names.country.value_or("")), name);
    }
    qunsetenv("LC_ALL");
}

}  // namespace
}  // namespace fieldcal::testing
