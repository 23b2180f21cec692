#include "update/UpdateFolder.h"

#include <shlobj.h>

namespace fieldcal {

// The system is asked for the folder, because the user can set the variables of the environment.
QString updateFolder() {
    PWSTR path = nullptr;
    QString folder;
    if (SUCCEEDED(SHGetKnownFolderPath(FOLDERID_ProgramData, KF_FLAG_DEFAULT, nullptr, &path)))
        folder = QString::fromWCharArray(path);
    CoTaskMemFree(path);
    return folder;
}

}  // namespace fieldcal
