#include "app/OwnCode.h"

#include <QCoreApplication>
#include <QProcessEnvironment>
#include <QQmlEngine>

namespace fieldcal {
namespace {

constexpr const char* kPrefixes[] = {"QT", "QML", "QSG", "QV4", "OPENCV"};
constexpr const char* kHarmless = "QT_FORCE_STDERR_LOGGING";

}  // namespace

bool mayNameCode(const QString& variable) {
    if (variable.compare(kHarmless, Qt::CaseInsensitive) == 0) return false;
    for (const char* prefix : kPrefixes)
        if (variable.startsWith(QLatin1String(prefix), Qt::CaseInsensitive)) return true;
    return false;
}

void clearVariablesThatNameCode() {
    for (const QString& name : QProcessEnvironment::systemEnvironment().keys())
        if (mayNameCode(name)) qunsetenv(name.toLocal8Bit());
}

void allowOnlyOwnCode(int& argc, char** argv) {
    if (!mayHaveMoreRights()) return;
    clearVariablesThatNameCode();
    // Compiled interface code and shaders would be read from a folder that the user can write.
    qputenv("QML_DISABLE_DISK_CACHE", "1");
    QCoreApplication::setAttribute(Qt::AA_DisableShaderDiskCache);
    if (argc > 1) argv[1] = nullptr;
    if (argc > 1) argc = 1;
    if (const auto folder = ownLibraries()) QCoreApplication::setLibraryPaths({*folder + "/plugins"});
}

void allowOnlyOwnModules(QQmlEngine& engine) {
    if (const auto folder = ownLibraries())
        engine.setImportPathList({*folder + "/qml", QStringLiteral("qrc:/qt-project.org/imports")});
}

}  // namespace fieldcal
