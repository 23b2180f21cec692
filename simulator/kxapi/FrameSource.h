#pragma once

#include "session/RecordedSession.h"

#include <cstdint>
#include <memory>
#include <string>

namespace kxsim {

/// Where a module's pictures come from: a recording, or a world seen by cameras in a hand. One thread.
class FrameSource {
public:
    FrameSource() = default;
    FrameSource(const FrameSource&) = delete;
    FrameSource& operator=(const FrameSource&) = delete;
    virtual ~FrameSource() = default;

    /// The module and its cameras. `truthThird` and `truthPlatform` are nobody's business behind the library.
    virtual const fieldcal::session::SessionDescription& description() const = 0;
    /// The same as the factory measured it, with what `description` hides. A new parameter block has its numbers.
    virtual const fieldcal::session::SessionDescription& factory() const { return description(); }
    virtual double grabsPerSecond() const = 0;

    /// Goes to the next grab. On failure false and `why`; the current frame stays. A source that has nothing new yet
    /// keeps its frame, too, and answers true.
    virtual bool advance(std::string* why) = 0;

    /// Null before the first frame. Valid until the next `advance`.
    virtual const fieldcal::session::FramePictures* current() const = 0;
    /// Whether the rear camera has a new picture, `current()->platform`, with this grab.
    virtual bool hasNewPlatformPicture() const = 0;
    /// Grabs so far.
    virtual std::uint64_t grabs() const = 0;

    /// What the cameras see may depend on it. A recording cannot follow.
    virtual void setEmitter(bool on) = 0;
    /// Whether anybody takes the rear camera's pictures.
    virtual void setPlatformWanted(bool wanted) = 0;
};

}  // namespace kxsim
