#include "i18n/SystemLanguage.h"

#include <windows.h>

namespace fieldcal {
namespace {

std::optional<QString> localeName(LANGID language, LCTYPE what) {
    char text[50] = {};
    if (GetLocaleInfoA(MAKELCID(language, SORT_DEFAULT), what, text, sizeof text) == 0) return std::nullopt;
    return QString::fromLocal8Bit(text);
}

}  // namespace

SystemLanguage systemLanguage() {
    const LANGID language = GetUserDefaultUILanguage();
    return {localeName(language, LOCALE_SENGLANGUAGE), localeName(language, LOCALE_SENGCOUNTRY)};
}

}  // namespace fieldcal
