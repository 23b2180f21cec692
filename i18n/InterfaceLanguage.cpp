#include "i18n/InterfaceLanguage.h"

#include <QCoreApplication>

namespace fieldcal {
namespace {

/// Removes a script, a dialect or a region that follows the name of the language.
QString cutVariant(const QString& language) {
    static const QString kSeparators = QStringLiteral("[({-_ ");
    for (int i = 0; i < language.size(); ++i)
        if (kSeparators.contains(language[i])) return i > 0 ? language.left(i) : language;
    return language;
}

bool useTranslation(const QString& name, const QString& folder, QTranslator* translator) {
    qInfo("loadUILanguage - translation file name: %s", qUtf8Printable(name));
    if (!translator->load(name, folder)) {
        qInfo("loadUILanguage - failed to load translation file, using default english");
        return false;
    }
    if (!QCoreApplication::installTranslator(translator)) {
        qInfo("loadUILanguage - failed to install translator, using default english");
        return false;
    }
    return true;
}

QString nameFor(const SystemLanguage& user) {
    if (!user.language) {
        qInfo("loadUILanguage - could not get local info language - default english will be used.");
        return {};
    }
    if (!user.country) {
        qInfo("loadUILanguage - could not get local info country - default english will be used.");
        return *user.language;
    }
    return translationName(*user.language, *user.country);
}

}  // namespace

QString translationName(const QString& language, const QString& country) {
    QString name = QString(cutVariant(language) + "_" + country).remove(' ');
    // Some systems report "Hong Kong SAR China".
    if (name.endsWith(QLatin1String("SARChina"))) name.chop(5);
    return name;
}

bool loadInterfaceLanguage(const SystemLanguage& user, const QString& folder, QTranslator* translator) {
    const QString name = nameFor(user);
    const bool complete = user.language && user.country;
    if (complete && useTranslation(name, folder, translator)) {
        if (name.contains(QLatin1String("Hebrew"))) return false;
    } else if (translator->load(QStringLiteral("English"), folder)) {
        QCoreApplication::installTranslator(translator);
    }
    return !name.contains(QLatin1String("Arabic"));
}

}  // namespace fieldcal
