#include "session/Refusal.h"

namespace fieldcal::session {

bool refuse(std::string* why, const std::string& file, const std::string& key, const std::string& reason) {
    if (why == nullptr) return false;
    *why = file + ": " + (key.empty() ? std::string() : key + ": ") + reason;
    for (char& c : *why) {
        if (static_cast<unsigned char>(c) < 0x20 || c == 0x7f) c = '?';
    }
    return false;
}

}  // namespace fieldcal::session
