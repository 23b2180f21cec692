#pragma once

#include "i18n/InterfaceLanguage.h"

#include <QLocale>

// Qt requires this call to be outside of any namespace.
inline void initTranslations() {
    Q_INIT_RESOURCE(Translations);
}

namespace fieldcal::testing {

/// The translations that are compiled into the program.
inline const QStringList kInterfaceLanguages =
    QString(
        "Arabic Chinese Chinese_HongKongSAR Chinese_Taiwan Czech Danish Dutch English Finnish French German Greek "
        "Hebrew Italian Japanese Korean Norwegian Polish Portuguese Portuguese_Brazil Russian Slovak Spanish Swedish "
        "Thai Turkish")
        .split(' ');

/// Makes the interface use the texts and the number format of `language`. Returns false when it reads from right to
/// left.
inline bool installTranslation(const QString& language, QTranslator* translator) {
    initTranslations();
    const SystemLanguage user{language.section('_', 0, 0), language.section('_', 1)};
    const bool leftToRight = loadInterfaceLanguage(user, ":/Files", translator);
    QLocale::setDefault(QLocale(translator->language()));
    return leftToRight;
}

}  // namespace fieldcal::testing
