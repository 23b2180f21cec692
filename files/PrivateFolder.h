#pragma once

#include <string>

namespace fieldcal {

/// Folders for files that no other user may change. Names are UTF-8. A stem is the beginning of a folder's name, which
/// random digits complete.

/// Creates a folder in `parent` to which only this user has access; on Windows only the system and administrators have,
/// and creating it requires administrator rights. These rights hold from the moment of its creation. Returns false,
/// with one line in `why`, on a failure.
bool makePrivateFolder(const std::string& parent, const std::string& stem, std::string* folder, std::string* why);

/// Removes the file of that name and then the folder, unless something else is in it.
bool removePrivateFolder(const std::string& folder, const std::string& file);

/// Removes, in the same way, every folder in `parent` that `makePrivateFolder` created with this stem. Follows no link
/// and no junction, and leaves folders alone that others may change. What is in use stays.
void removePrivateFolders(const std::string& parent, const std::string& stem, const std::string& file);

}  // namespace fieldcal
