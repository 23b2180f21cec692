#pragma once

#include <string>

namespace fieldcal::session {

/// Puts "file: key: reason" into `why` (which may be null), or "file: reason" for an empty key, and returns false.
/// Always one line: control characters, as a hostile file name may hold, become '?'.
bool refuse(std::string* why, const std::string& file, const std::string& key, const std::string& reason);

}  // namespace fieldcal::session
