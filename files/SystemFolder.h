#pragma once

#include <string>
#include <vector>

namespace fieldcal {

/// The operating system's part of `PrivateFolder.h`.
bool createPrivateFolder(const std::string& folder, bool* nameIsTaken, std::string* reason);
/// Returns the names of everything in a folder; none when it cannot be read.
std::vector<std::string> namesIn(const std::string& folder);
/// Removes the file and then the folder, if that is no link and belongs to those for whom `createPrivateFolder` creates
/// one. Returns whether the folder is gone.
bool removeOwnFolder(const std::string& folder, const std::string& file);

}  // namespace fieldcal
