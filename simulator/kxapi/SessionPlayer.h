#pragma once

#include "simulator/kxapi/FrameStore.h"

namespace kxsim {

/// Plays a recorded session: each frame as many times as its `repeat` says, and from the start again at the end.
class SessionPlayer {
public:
    /// Checks the description and every picture file. Null and `why` (one line) when something is wrong.
    static std::unique_ptr<SessionPlayer> open(const std::string& folder, std::string* why);

    const fieldcal::session::SessionDescription& description() const { return description_; }

    /// Goes to the next grab. On failure false and `why`; the current frame stays.
    bool advance(std::string* why);

    /// Null before the first `advance`. Valid until the next one; the same pointers while the frame repeats.
    const fieldcal::session::FramePictures* current() const { return current_; }
    /// How often the current frame was delivered before: 0 on its first grab.
    int repetition() const { return repetition_; }
    /// Grabs so far.
    std::uint64_t grabs() const { return grabs_; }

private:
    SessionPlayer(const std::string& folder, fieldcal::session::SessionDescription description);

    fieldcal::session::SessionDescription description_;
    FrameStore store_;
    const fieldcal::session::FramePictures* current_ = nullptr;
    std::size_t index_ = 0;
    int repetition_ = 0;
    std::uint64_t grabs_ = 0;
};

}  // namespace kxsim
