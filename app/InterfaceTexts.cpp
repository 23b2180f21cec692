#include "app/InterfaceTexts.h"

#include <QCoreApplication>

namespace fieldcal {

QString interfaceText(const char* english) {
    // Translating an empty text would return the header of the translation file.
    return *english == '\0' ? QString() : QCoreApplication::translate("Interface", english);
}

}  // namespace fieldcal
