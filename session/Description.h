#pragma once

#include "session/RecordedSession.h"

#include <QByteArray>

namespace fieldcal::session {

/// The name of the description inside a session's folder, with the folder before it.
std::string descriptionFile(const std::string& folder);

/// Parses and checks the bytes of a session.json; `file` is its name for `why`.
bool parseDescription(const QByteArray& bytes, const std::string& file, SessionDescription* out, std::string* why);

}  // namespace fieldcal::session
