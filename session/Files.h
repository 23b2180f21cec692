#pragma once

#include <QFile>

#include <string>

namespace fieldcal::session {

/// Puts "file: key: reason" into `why` (which may be null), or "file: reason" for an empty key, and returns false.
/// Always one line: control characters, as a hostile file name may hold, become '?'.
bool refuse(std::string* why, const std::string& file, const std::string& key, const std::string& reason);

/// Opens `file` for reading. False and `why` when that fails, when it is larger than `largestBytes`, or when it is no
/// regular file: a pipe might never answer and a device never end.
bool openInput(const std::string& name, const std::string& key, qint64 largestBytes, QFile* file, std::string* why);

/// Writes all of a file or, when that fails, nothing: a file of this name stays as it was. Then false and `why`.
bool writeOutput(const std::string& name, const void* bytes, std::size_t size, std::string* why);

/// Makes the folder and those that it stands in, as far as they are missing. False and `why` when that fails.
bool makeFolder(const std::string& folder, std::string* why);

}  // namespace fieldcal::session
