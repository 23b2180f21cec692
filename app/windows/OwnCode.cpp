#include "app/OwnCode.h"

#include "update/windows/ProgramFile.h"

#include <QFileInfo>

namespace fieldcal {

bool mayHaveMoreRights() {
    return true;
}

std::optional<QString> ownLibraries() {
    return QFileInfo(QString::fromStdWString(programFile())).path();
}

}  // namespace fieldcal
