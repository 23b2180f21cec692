#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace fieldcal {

/// One open file of the operating system, unbuffered. A call that fails returns false and sets `reason` to the message
/// of the operating system.
class SystemFile {
public:
    SystemFile() = default;
    ~SystemFile();
    SystemFile(const SystemFile&) = delete;
    SystemFile& operator=(const SystemFile&) = delete;

    /// Creates a new file; fails if the name exists. The file gets the access rights of `like` if that exists,
    /// otherwise the user's default rights.
    bool create(const std::string& name, const std::string& like);
    /// Opens a regular file for reading and writing, and creates it if it does not exist.
    bool openToChange(const std::string& name);
    /// Opens an existing file in order to call `sync`.
    bool openToSync(const std::string& name);

    /// Writes all bytes at the present position.
    bool write(const void* bytes, std::size_t size);
    /// Reads one byte. A position behind the end is a failure.
    bool readAt(std::uint64_t position, char* byte);
    bool size(std::uint64_t* out);
    /// Changes the length to `size` bytes. The position is unspecified afterwards.
    bool resize(std::uint64_t size);
    bool seekToEnd();
    /// Returns when the content is on the disk.
    bool sync();
    /// Closes the file, if it is open. The destructor does the same without reporting a failure.
    bool close();
    /// Returns whether `create` failed because a file of that name exists.
    bool nameIsTaken() const { return nameIsTaken_; }
    const std::string& reason() const { return reason_; }

private:
    bool failed();

    std::intptr_t handle_ = -1;
    bool nameIsTaken_ = false;
    std::string reason_;
};

/// Functions with a parameter `reason` set it on failure and return false.
/// Returns the file to which a symbolic link leads; the name itself when it is no link.
std::string behindLinks(const std::string& file);
/// Returns whether `writeFile` may write to this name: it is free, or it is a regular file with write permission.
bool mayBeReplaced(const std::string& file, std::string* reason);
/// Renames a file and replaces the file of the new name, if there is one.
bool renameOver(const std::string& from, const std::string& to, std::string* reason);
/// Removes a file. Returns true when the file does not exist.
bool unlinkFile(const std::string& file, std::string* reason);
/// Syncs the entries of a folder to the disk.
bool syncFolder(const std::string& folder, std::string* reason);
/// Also returns true when the folder exists already; `made` is set only when it was created.
bool makeFolder(const std::string& folder, bool* made, std::string* reason);
unsigned long processNumber();

}  // namespace fieldcal
