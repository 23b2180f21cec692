#pragma once

#include "files/SafeFile.h"

#include <QFile>

#include <string>

namespace fieldcal::session {

/// Sets `why` (which may be null) to "file: key: reason", or "file: reason" for an empty key, and returns false. The
/// text is always one line: control characters, as in a hostile file name, are replaced by '?'.
bool refuse(std::string* why, const std::string& file, const std::string& key, const std::string& reason);

/// Opens `name` for reading. A file larger than `largestBytes` is refused, and so is anything but a regular file,
/// because reading from a pipe may block and a device may have no end. Returns false and `why` on failure; `key` is the
/// key that names the file.
bool openInput(const std::string& name, const std::string& key, qint64 largestBytes, QFile* file, std::string* why);

/// Writes a whole file as `fieldcal::writeFile` does. On failure, a file of this name is unchanged, and false and `why`
/// are returned.
bool writeOutput(const std::string& name, const void* bytes, std::size_t size, std::string* why,
                 Durability durability = Durability::Now);

/// Creates the folder and its missing parents. Returns false and `why` on failure.
bool makeFolder(const std::string& folder, std::string* why);

}  // namespace fieldcal::session
