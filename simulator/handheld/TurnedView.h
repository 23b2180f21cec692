#pragma once

#include "simulator/handheld/Lens.h"
#include "simulator/world/View.h"

#include <optional>

namespace fieldcal::handheld {

/// A view that was rendered, and from where.
struct SeenView {
    world::Pose pose;
    world::View view;
};

/// Where the cameras point now: infrared and depth, and the colour cameras a little later.
struct Attitude {
    cv::Matx33d infrared, colour;  ///< camera_world of the infrared camera at either time
};

/// Makes views of turned cameras out of rendered ones, at a small part of the cost. Exact for cameras that turn about
/// their centres; that the hand moves by centimetres between two views is left to the rendered ones. One thread.
class ViewTurner {
public:
    /// `rig` must carry the true rotations of its cameras.
    explicit ViewTurner(const session::SessionDescription& rig);

    /// What `seen` shows from an attitude that differs by a tremor, as sharp as it was.
    world::View trembled(const SeenView& seen, const Attitude& now, bool withPlatform) const;
    /// What is seen between two views: from the nearer one, and from the other where that one does not reach. The
    /// platform camera's picture comes in half its size.
    world::View between(const SeenView& nearer, const SeenView& other, const Attitude& now, bool withPlatform) const;

    /// Blurs by a motion of so many degrees about x and y during the exposure.
    void smear(world::View* view, cv::Point2d motionDeg) const;

private:
    struct Eye {
        Lens lens;
        cv::Matx33d eye_infrared;  ///< rotation
        /// Takes directions in the eye's frame back into its frame before the infrared camera turned.
        cv::Matx33d turn(const cv::Matx33d& before, const cv::Matx33d& now) const;
        /// Where the pixels were in a picture of `seen`.
        cv::Mat_<cv::Vec2f> places(const SeenView& seen, const cv::Matx33d& now) const;
    };
    world::View emptyLike(const world::View& view, bool withPlatform) const;

    Eye infrared_, depth_, third_;
    std::optional<Eye> platform_;
};

}  // namespace fieldcal::handheld
