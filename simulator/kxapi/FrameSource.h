#pragma once

#include "session/RecordedSession.h"

#include <cstdint>
#include <memory>
#include <string>

namespace kxsim {

/// The source of a module's images: a recording, or a world rendered for hand-held cameras. One thread.
class FrameSource {
public:
    FrameSource() = default;
    FrameSource(const FrameSource&) = delete;
    FrameSource& operator=(const FrameSource&) = delete;
    virtual ~FrameSource() = default;

    /// The module and its cameras. `truthThird` and `truthPlatform` must not be visible through the library.
    virtual const fieldcal::session::SessionDescription& description() const = 0;
    /// The same as measured by the factory, including what `description` hides. A new parameter block gets its values.
    virtual const fieldcal::session::SessionDescription& factory() const { return description(); }
    virtual double grabsPerSecond() const = 0;

    /// Proceeds to the next grab. On failure returns false with `why`; the current frame stays. A source without a new
    /// frame also keeps its frame, and returns true.
    virtual bool advance(std::string* why) = 0;

    /// Null before the first frame. Valid until the next `advance`.
    virtual const fieldcal::session::FrameImages* current() const = 0;
    /// Returns whether the rear camera has a new image, `current()->platform`, with this grab.
    virtual bool hasNewPlatformImage() const = 0;
    /// The number of grabs so far.
    virtual std::uint64_t grabs() const = 0;

    /// The images of a world depend on the emitter, those of a recording do not.
    virtual void setEmitter(bool on) = 0;
    /// Sets whether the images of the rear camera are used.
    virtual void setPlatformWanted(bool wanted) = 0;
};

}  // namespace kxsim
