#include "simulator/kxapi/SessionPlayer.h"

namespace kxsim {

using fieldcal::session::FrameImages;
using fieldcal::session::SessionDescription;

SessionPlayer::SessionPlayer(const std::string& folder, SessionDescription description)
    : description_(std::move(description)), store_(folder, description_) {}

std::unique_ptr<SessionPlayer> SessionPlayer::open(const std::string& folder, std::string* why) {
    SessionDescription description;
    if (!readDescription(folder, &description, why) || !checkImageFiles(folder, description, why)) return nullptr;
    return std::unique_ptr<SessionPlayer>(new SessionPlayer(folder, std::move(description)));
}

bool SessionPlayer::advance(std::string* why) {
    const bool repeats = current_ != nullptr && repetition_ + 1 < description_.frames[index_].repeat;
    if (!repeats) {
        const std::size_t next = current_ == nullptr ? 0 : (index_ + 1) % description_.frames.size();
        const FrameImages* images = store_.images(next, why);
        if (images == nullptr) return false;
        current_ = images;
        index_ = next;
    }
    repetition_ = repeats ? repetition_ + 1 : 0;
    ++grabs_;
    return true;
}

}  // namespace kxsim
