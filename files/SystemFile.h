#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace fieldcal {

/// One open file of the operating system, without a buffer of its own. A failed call returns false and leaves the
/// system's own words in `reason`.
class SystemFile {
public:
    SystemFile() = default;
    ~SystemFile();
    SystemFile(const SystemFile&) = delete;
    SystemFile& operator=(const SystemFile&) = delete;

    /// Creates a file with the access rights of `like`, if that is there, and else with the user's usual ones.
    bool create(const std::string& name, const std::string& like);
    /// Opens a regular file for reading and writing, and makes it if it is not there.
    bool openToChange(const std::string& name);
    bool openToSync(const std::string& name);

    bool write(const void* bytes, std::size_t size);
    bool readAt(std::uint64_t position, char* byte);
    bool size(std::uint64_t* out);
    /// The position is the new end.
    bool resize(std::uint64_t size);
    bool seekToEnd();
    bool sync();
    bool close();
    /// `create` failed because a file of that name is there.
    bool nameIsTaken() const { return nameIsTaken_; }
    const std::string& reason() const { return reason_; }

private:
    bool failed();

    std::intptr_t handle_ = -1;
    bool nameIsTaken_ = false;
    std::string reason_;
};

/// The file behind a symbolic link; the name itself where there is none.
std::string behindLinks(const std::string& file);
/// Whether `writeFile` may put a file into this place: nothing, or a regular file that may be written.
bool mayBeReplaced(const std::string& file, std::string* reason);
bool renameOver(const std::string& from, const std::string& to, std::string* reason);
bool unlinkFile(const std::string& file, std::string* reason);
bool syncFolder(const std::string& folder, std::string* reason);
/// True for a folder that is there already, too.
bool makeFolder(const std::string& folder, bool* made, std::string* reason);
unsigned long processNumber();

}  // namespace fieldcal
