#include "files/SystemFolder.h"

#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace fieldcal {

bool createPrivateFolder(const std::string& folder, bool* nameIsTaken, std::string* reason) {
    if (mkdir(folder.c_str(), S_IRWXU) == 0) return true;
    *nameIsTaken = errno == EEXIST;
    *reason = std::generic_category().message(errno);
    return false;
}

std::vector<std::string> namesIn(const std::string& folder) {
    std::vector<std::string> names;
    DIR* open = opendir(folder.c_str());
    if (open == nullptr) return names;
    while (const dirent* entry = readdir(open))
        names.emplace_back(entry->d_name);
    closedir(open);
    return names;
}

bool removeOwnFolder(const std::string& folder, const std::string& file) {
    const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (descriptor < 0) return false;
    struct stat present {};
    const bool own = fstat(descriptor, &present) == 0 && present.st_uid == geteuid();
    if (own) unlinkat(descriptor, file.c_str(), 0);
    close(descriptor);
    return own && rmdir(folder.c_str()) == 0;
}

}  // namespace fieldcal
