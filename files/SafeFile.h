#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace fieldcal {

/// All file names are UTF-8. Every function returns true when its work is complete and, unless stated otherwise, on the
/// disk, including the entry in the folder. Otherwise it returns false and sets `why` to one line "FILE: reason". Any
/// thread.

enum class Durability {
    Now,   ///< a power cut after the call does not lose the new file
    Later  ///< the file is complete, but only `syncFiles` guarantees that it is on the disk
};

/// Writes a whole file: writes a temporary file beside it, syncs it, checks its size and renames it. After a failure,
/// an existing file of this name is unchanged, except when only the final sync of the folder failed: the new file may
/// then be in place. Anything at this name that is not a regular file is refused. Access rights are kept; a symbolic
/// link is followed.
bool writeFile(const std::string& file, const void* bytes, std::size_t size, std::string* why,
               Durability durability = Durability::Now);

/// Appends whole lines to a text file. If the file is empty or missing, `heading` is written first. If the last line is
/// incomplete, the new lines start on a line of their own. After a failure the file is truncated to its former length.
bool appendLines(const std::string& file, const std::string& heading, const std::string& lines, std::string* why);

/// Syncs files of a folder, and the folder's entries, to the disk.
bool syncFiles(const std::string& folder, const std::vector<std::string>& names, std::string* why);

/// Creates a folder and its missing parents.
bool makeFolders(const std::string& folder, std::string* why);

/// Removes a file. A file that does not exist counts as removed.
bool removeFile(const std::string& file, std::string* why);

}  // namespace fieldcal
