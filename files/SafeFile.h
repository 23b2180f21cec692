#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace fieldcal {

/// All names are UTF-8. Every function returns true once everything is done and, unless told otherwise, on the disk,
/// the folder's entry included. Otherwise it returns false and one line in `why`: "FILE: reason".

enum class Durability {
    Now,   ///< a power cut after the call leaves the new file
    Later  ///< the file is whole, but stays for `syncFiles` to bring to the disk
};

/// Writes a whole file, through a temporary one beside it which is flushed, measured and renamed. After a failure a
/// file of this name is still as it was; only when the folder itself cannot be synced at the end it may be the new one.
/// What is there and is no regular file is refused. Access rights are kept; a symbolic link is followed.
bool writeFile(const std::string& file, const void* bytes, std::size_t size, std::string* why,
               Durability durability = Durability::Now);

/// Appends whole lines to a text file. A file that is empty or not there begins with `heading`, and after a last line
/// that was cut short the new ones begin on a line of their own. After a failure the file has its former length.
bool appendLines(const std::string& file, const std::string& heading, const std::string& lines, std::string* why);

/// Brings files and the entries of their folder to the disk.
bool syncFiles(const std::string& folder, const std::vector<std::string>& names, std::string* why);

/// Makes a folder and those above it.
bool makeFolders(const std::string& folder, std::string* why);

/// Removes a file; one that is not there counts as removed.
bool removeFile(const std::string& file, std::string* why);

}  // namespace fieldcal
