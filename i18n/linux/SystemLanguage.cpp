#include "i18n/SystemLanguage.h"

#include <QLocale>
#include <QStringList>

namespace fieldcal {
namespace {

/// The translation files use the names that Windows gives to countries.
QString countryName(QLocale::Country country) {
    return country == QLocale::HongKong ? QStringLiteral("Hong Kong SAR") : QLocale::countryToString(country);
}

}  // namespace

SystemLanguage systemLanguage() {
    const QStringList wanted = QLocale::system().uiLanguages();
    const QLocale locale = wanted.isEmpty() ? QLocale::system() : QLocale(wanted.first());
    SystemLanguage names;
    if (locale.language() == QLocale::AnyLanguage) return names;
    // Without a language set by the user, the C library's language is "C", which means English.
    if (locale.language() == QLocale::C) return {QStringLiteral("English"), QStringLiteral("United States")};
    names.language = QLocale::languageToString(locale.language());
    if (locale.country() != QLocale::AnyCountry) names.country = countryName(locale.country());
    return names;
}

}  // namespace fieldcal
