#pragma once

#include "simulator/handheld/LightCourse.h"
#include "simulator/handheld/ViewMaker.h"

#include <array>
#include <functional>

namespace fieldcal::handheld {

/// The frame sets of a module in a hand, thirty a second: the hand rests at a view, trembling, turns to the next one,
/// and so on. Frame n is the same each time for the same arguments and the same calls, as long as `advance` waits
/// until views are rendered. While it rests, six frame sets come round and round. One thread.
class Footage {
public:
    /// `world` is one of `world::worldNames()`. `rig` must carry the true rotations. `inTime`: frames are asked for in
    /// their time, and views are to be ready by then; else somebody waits for every view.
    Footage(const std::string& world, std::uint64_t seed, const synthesis::Rig& rig, const LightCourse& light,
            bool inTime);

    /// From the next frame on. With the emitter on its dots are seen, and the hand stays where it is, as a user does
    /// who studies the overlay.
    void setEmitter(bool on) { emitter_ = on; }
    void setPlatformWanted(bool wanted) { withPlatform_ = wanted; }

    /// Goes to the next frame; false when it is not rendered yet: at the very start, or when the rear camera has just
    /// been asked for. `patience` is how long to wait for a view. Without patience the hand rests until the next view
    /// is there.
    bool advance(std::chrono::milliseconds patience);

    /// Null before the first frame. Valid until the next `advance`.
    const session::FramePictures* current() const { return current_; }

private:
    /// What the pictures of a resting hand depend on, besides the view.
    struct Circumstances {
        int rest = -1;
        bool emitter = false;
        bool platform = false;
        double light = 0;
        bool operator==(const Circumstances& other) const;
    };
    bool enter(std::chrono::milliseconds patience);
    void step(std::chrono::milliseconds patience);
    bool mayLeave(std::chrono::milliseconds patience);
    const session::FramePictures* resting();
    const session::FramePictures* turning();
    /// How the parts of a view come to be seen: infrared with depth, the right imager's, the third and the rear
    /// camera's.
    struct Seeing {
        std::function<void(world::View*)> infrared, right, third, platform;
    };
    /// The rear camera shows every other frame only.
    bool platformShows() const { return withPlatform_ && frame_ % 2 == 1; }
    session::FramePictures expose(const Seeing& seeing, const synthesis::StillSettings& settings, std::uint64_t noise);

    std::uint64_t seed_;
    LightCourse light_;
    ViewTurner turner_;
    ViewMaker maker_;

    bool emitter_ = false, withPlatform_ = false;
    std::uint64_t frame_ = 0;  ///< counted from 1
    int rest_ = 0;
    int held_ = 0;    ///< frames at this rest
    int turned_ = 0;  ///< frames since it was left; 0 while it rests
    std::shared_ptr<const RestingView> here_, there_;

    Circumstances circumstances_;
    std::array<session::FramePictures, tremorFrames> trembling_;
    std::array<bool, tremorFrames> isThere_{};
    session::FramePictures moving_;
    const session::FramePictures* current_ = nullptr;
};

}  // namespace fieldcal::handheld
