#pragma once

#include "i18n/SystemLanguage.h"

#include <QString>
#include <QTranslator>

#include <functional>

namespace fieldcal {

/// The name of the translation file for a language and a country, both in English, without the file's suffix:
/// ("Chinese (Traditional)", "Hong Kong SAR") gives "Chinese_HongKongSAR".
QString translationName(const QString& language, const QString& country);

/// Loads the user's translation from `folder` into `translator` and installs it; English where there is none. False:
/// the interface reads from right to left. An Arabic interface does so even when English had to be used, a Hebrew one
/// only with its translation. The thread of the application object, which must exist.
bool loadInterfaceLanguage(const SystemLanguage& user, const QString& folder, QTranslator* translator);

}  // namespace fieldcal
