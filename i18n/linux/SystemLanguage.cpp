#include "i18n/SystemLanguage.h"

#include <QLocale>
#include <QStringList>

namespace fieldcal {
namespace {

/// The translations are named after what Windows calls the place.
QString countryName(QLocale::Country country) {
    return country == QLocale::HongKong ? QStringLiteral("Hong Kong SAR") : QLocale::countryToString(country);
}

}  // namespace

SystemLanguage systemLanguage() {
    const QStringList wanted = QLocale::system().uiLanguages();
    const QLocale locale = wanted.isEmpty() ? QLocale::system() : QLocale(wanted.first());
    SystemLanguage names;
    if (locale.language() == QLocale::AnyLanguage) return names;
    // Without a language of the user's, the C library's is "C", which is English.
    if (locale.language() == QLocale::C) return {QStringLiteral("English"), QStringLiteral("United States")};
    names.language = QLocale::languageToString(locale.language());
    if (locale.country() != QLocale::AnyCountry) names.country = countryName(locale.country());
    return names;
}

}  // namespace fieldcal
