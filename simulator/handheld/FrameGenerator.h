#pragma once

#include "simulator/handheld/KeyframePrefetcher.h"
#include "simulator/handheld/LightCourse.h"

#include <array>
#include <functional>

namespace fieldcal::handheld {

/// Generates the frame sets of a hand-held module, thirty a second. The hand rests at a keyframe with a slight tremor,
/// turns to the next keyframe, and so on. Frame n depends only on the arguments and the calls, provided that `advance`
/// waits until keyframes are rendered. While the hand rests, six frame sets repeat. One thread.
class FrameGenerator {
public:
    /// `world` is one of `world::worldNames()`. `rig` must carry the true rotations. `inTime`: frames are requested in
    /// real time, and keyframes are rendered ahead; otherwise the caller waits for every keyframe.
    FrameGenerator(const std::string& world, std::uint64_t seed, const synthesis::Rig& rig, const LightCourse& light,
                   bool inTime);

    /// Takes effect with the next frame. While the emitter is on, its dots are visible and the hand stays at its
    /// keyframe, like that of a user who studies the overlay.
    void setEmitter(bool on) { emitter_ = on; }
    void setPlatformWanted(bool wanted) { withPlatform_ = wanted; }

    /// Proceeds to the next frame. Returns false when it is not rendered yet, which happens at the start, or when the
    /// rear camera has just been switched on. `patience` is the time to wait for a keyframe. With zero, the hand rests
    /// until the next keyframe is ready.
    bool advance(std::chrono::milliseconds patience);

    /// Null before the first frame. Valid until the next `advance`.
    const session::FrameImages* current() const { return current_; }

private:
    /// The conditions under which the cached images of a resting hand are valid.
    struct CacheKey {
        int rest = -1;
        bool emitter = false;
        bool platform = false;
        double light = 0;
        bool operator==(const CacheKey& other) const;
    };
    bool prepareKeyframe(std::chrono::milliseconds patience);
    void step(std::chrono::milliseconds patience);
    bool canLeave(std::chrono::milliseconds patience);
    const session::FrameImages* resting();
    const session::FrameImages* turning();
    /// Functions that fill the parts of a view: infrared with depth, the right imager, the third and the rear camera.
    struct ViewFunctions {
        std::function<void(world::View*)> infrared, right, third, platform;
    };
    /// The rear camera delivers an image with every other frame.
    bool platformShows() const { return withPlatform_ && frame_ % 2 == 1; }
    session::FrameImages expose(const ViewFunctions& functions, const synthesis::StillSettings& settings,
                                std::uint64_t noise);

    std::uint64_t seed_;
    LightCourse light_;
    ViewTurner turner_;
    KeyframePrefetcher prefetcher_;

    bool emitter_ = false, withPlatform_ = false;
    std::uint64_t frame_ = 0;  ///< counted from 1
    int rest_ = 0;
    int held_ = 0;    ///< frames at this keyframe
    int turned_ = 0;  ///< frames since the hand left it; 0 while it rests
    std::shared_ptr<const Keyframe> keyframe_, nextKeyframe_;

    CacheKey cacheKey_;
    std::array<session::FrameImages, kTremorFrames> cached_;
    std::array<bool, kTremorFrames> isCached_{};
    session::FrameImages turnedFrame_;
    const session::FrameImages* current_ = nullptr;
};

}  // namespace fieldcal::handheld
