#pragma once

#include "simulator/handheld/Lens.h"
#include "simulator/world/View.h"

#include <initializer_list>
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
    explicit ViewTurner(const synthesis::Rig& rig);

    // Infrared with depth, the right imager's, the third and the platform camera's picture are seen apart: four threads
    // may do it in the same view. Where a view has no platform picture, none is made.

    /// What `seen` shows from an attitude that differs by a tremor, as sharp as it was.
    void trembledInfrared(const SeenView& seen, const Attitude& now, world::View* view) const;
    void trembledRight(const SeenView& seen, const Attitude& now, world::View* view) const;
    void trembledThird(const SeenView& seen, const Attitude& now, world::View* view) const;
    void trembledPlatform(const SeenView& seen, const Attitude& now, world::View* view) const;

    /// On the way between two views: what is seen comes from the nearer one, and from the other where that one does
    /// not reach, blurred by a motion of so many degrees about x and y during the exposure.
    struct Passage {
        const SeenView &nearer, &other;
        Attitude now;
        cv::Point2d motionDeg;
    };
    void passingInfrared(const Passage& passage, world::View* view) const;
    void passingRight(const Passage& passage, world::View* view) const;
    void passingThird(const Passage& passage, world::View* view) const;
    /// The picture comes in half its size.
    void passingPlatform(const Passage& passage, world::View* view) const;

private:
    struct Eye {
        Lens lens;
        cv::Matx33d eye_infrared;  ///< rotation
        /// Takes directions in the eye's frame back into its frame before the infrared camera turned.
        cv::Matx33d turn(const cv::Matx33d& before, const cv::Matx33d& now) const;
        /// Where the pixels, or every `step` of them, were in a picture of `seen`.
        cv::Mat_<cv::Vec2f> places(const SeenView& seen, const cv::Matx33d& now, int step = 1) const;
    };
    /// What one sensor sees from the nearer and from the other view, and where it is put together.
    struct Layer {
        cv::Mat near, far, *out;
    };
    static void paintPassage(const Passage& passage, const Eye& eye, const cv::Matx33d& now,
                             std::initializer_list<Layer> layers, int interpolation, int step = 1);
    static void smear(cv::Mat picture, const Eye& eye, cv::Point2d motionDeg);

    Eye infrared_, right_, depth_, third_;
    std::optional<Eye> platform_;
};

}  // namespace fieldcal::handheld
