#include "update/UpdateFolder.h"

#include <QDir>

namespace fieldcal {

QString updateFolder() {
    return QDir::tempPath();
}

}  // namespace fieldcal
