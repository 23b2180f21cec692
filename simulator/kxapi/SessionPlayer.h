#pragma once

#include "simulator/kxapi/FrameSource.h"
#include "simulator/kxapi/FrameStore.h"

namespace kxsim {

/// Plays a recorded session cyclically: each frame as many times as its `repeat` says.
class SessionPlayer final : public FrameSource {
public:
    /// Checks the description and every image file. Returns null with `why` (one line) when something is wrong.
    static std::unique_ptr<SessionPlayer> open(const std::string& folder, std::string* why);

    const fieldcal::session::SessionDescription& description() const override { return description_; }
    double grabsPerSecond() const override { return 60; }
    bool advance(std::string* why) override;
    /// Returns the same pointers while the frame repeats.
    const fieldcal::session::FrameImages* current() const override { return current_; }
    /// The rear camera runs at half the module's rate, and always shows a new frame with the frame's first grab.
    bool hasNewPlatformImage() const override { return !current_->platform.empty() && repetition_ % 2 == 0; }
    std::uint64_t grabs() const override { return grabs_; }
    void setEmitter(bool) override {}
    void setPlatformWanted(bool) override {}

private:
    SessionPlayer(const std::string& folder, fieldcal::session::SessionDescription description);

    fieldcal::session::SessionDescription description_;
    FrameStore store_;
    const fieldcal::session::FrameImages* current_ = nullptr;
    std::size_t index_ = 0;
    int repetition_ = 0;  ///< number of previous deliveries of the current frame
    std::uint64_t grabs_ = 0;
};

}  // namespace kxsim
