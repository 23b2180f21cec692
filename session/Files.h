#pragma once

#include "files/SafeFile.h"

#include <QFile>

#include <string>

namespace fieldcal::session {

/// Puts "file: key: reason" into `why` (which may be null), or "file: reason" for an empty key, and returns false.
/// Always one line: control characters, as a hostile file name may hold, become '?'.
bool refuse(std::string* why, const std::string& file, const std::string& key, const std::string& reason);

/// Opens `file` for reading. It fails when the file is larger than `largestBytes` or no regular file, as a pipe might
/// never answer and a device never end. A failure returns false and `why`.
bool openInput(const std::string& name, const std::string& key, qint64 largestBytes, QFile* file, std::string* why);

/// Writes a whole file as `fieldcal::writeFile` does. When that fails, a file of this name stays as it was, and false
/// and `why` are returned.
bool writeOutput(const std::string& name, const void* bytes, std::size_t size, std::string* why,
                 Durability durability = Durability::Now);

/// Makes the folder and its missing parents. Returns false and `why` when that fails.
bool makeFolder(const std::string& folder, std::string* why);

}  // namespace fieldcal::session
