#pragma once

#include "i18n/SystemLanguage.h"

#include <QString>
#include <QTranslator>

#include <functional>

namespace fieldcal {

/// Returns the name of the translation file, without suffix, for a language and a country given in English: ("Chinese
/// (Traditional)", "Hong Kong SAR") gives "Chinese_HongKongSAR".
QString translationName(const QString& language, const QString& country);

/// Loads the user's translation from `folder` into `translator` and installs it; English where there is none. Returns
/// false when the interface reads from right to left. This applies to an Arabic interface even without a translation,
/// and to a Hebrew one only with its translation. To be called on the thread of the application object, which must
/// exist.
bool loadInterfaceLanguage(const SystemLanguage& user, const QString& folder, QTranslator* translator);

}  // namespace fieldcal
