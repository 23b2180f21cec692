#pragma once

#include <QByteArray>

#include <optional>
#include <string>

namespace fieldcal::session {

/// What Qt's parser does not tell about a JSON text. Any text may be given; one that is no JSON is followed as far as
/// its brackets and quotes go, and none deeper than that parser goes. Keys are paths as in `JsonKey`.

/// The key of the value at a byte of the text; empty for the document itself.
std::string jsonKeyAt(const QByteArray& text, int offset);

/// The first key that stands a second time in its object: which of its values counts would be anybody's guess.
std::optional<std::string> repeatedJsonKey(const QByteArray& text);

}  // namespace fieldcal::session
