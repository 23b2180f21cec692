#pragma once

#include <QFile>

#include <string>

namespace fieldcal::session {

/// Opens `file` for reading. False and `why` ("name: key: reason", see `refuse`) when that fails, when it is larger
/// than `largestBytes`, or when it is no regular file: a pipe might never answer and a device never end.
bool openInput(const std::string& name, const std::string& key, qint64 largestBytes, QFile* file, std::string* why);

}  // namespace fieldcal::session
