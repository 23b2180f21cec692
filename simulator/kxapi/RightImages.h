#pragma once

#include "session/RecordedSession.h"
#include "simulator/kxapi/Settings.h"

#include <deque>

namespace kxsim {

/// What the right infrared imager delivers: its own picture of the frame set, or what the settings put in its place.
class RightImages {
public:
    /// `grabsPerSecond`: of the source that the frame sets come from.
    RightImages(RightChoice choice, double grabsPerSecond);

    /// Once for every frame set that was grabbed, with `frame` current.
    void follow(const fieldcal::session::FramePictures& frame);

    /// The picture that goes with `frame`, the last one followed. Null when there is none.
    const std::uint16_t* picture(const fieldcal::session::FramePictures& frame) const;

private:
    RightChoice choice_;
    std::size_t late_;                         ///< grabs by which `late` is behind
    std::deque<fieldcal::ImageFrame16> kept_;  ///< what is delivered later on, the oldest one first
};

}  // namespace kxsim
