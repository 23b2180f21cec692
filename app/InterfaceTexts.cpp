#include "app/InterfaceTexts.h"

#include <QCoreApplication>

namespace fieldcal {

QString interfaceText(const char* english) {
    // An empty text would give the translation file's own description.
    return *english == '\0' ? QString() : QCoreApplication::translate("Interface", english);
}

}  // namespace fieldcal
