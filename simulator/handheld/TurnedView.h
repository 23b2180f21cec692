#pragma once

#include "simulator/handheld/Lens.h"
#include "simulator/world/View.h"

#include <initializer_list>
#include <optional>

namespace fieldcal::handheld {

/// A rendered view with its pose.
struct RenderedView {
    world::Pose pose;
    world::View view;
};

/// The attitude of the module at the exposure of infrared and depth, and at the later exposure of colour.
struct Attitude {
    cv::Matx33d infrared, colour;  ///< camera_world of the infrared camera at the two times
};

/// Computes views of rotated cameras from rendered ones, at a fraction of the cost of rendering. The result is exact
/// for rotations about the camera centres; the hand's translation appears only in the rendered views. One thread.
class ViewTurner {
public:
    /// `rig` must carry the true rotations of its cameras.
    explicit ViewTurner(const synthesis::Rig& rig);

    // The images of infrared with depth, of the right imager, and of the third and the platform camera are computed
    // separately, so that four threads may fill the same view. No platform image is made if the source view has none.

    /// Computes the view from an attitude that differs by a tremor, without loss of sharpness.
    void tremorInfrared(const RenderedView& seen, const Attitude& now, world::View* view) const;
    void tremorRight(const RenderedView& seen, const Attitude& now, world::View* view) const;
    void tremorThird(const RenderedView& seen, const Attitude& now, world::View* view) const;
    void tremorPlatform(const RenderedView& seen, const Attitude& now, world::View* view) const;

    /// An attitude between two keyframes. Pixels come from the nearer view, and from the other one where the nearer one
    /// does not reach. The image is blurred by the given motion in degrees about x and y during the exposure.
    struct Transition {
        const RenderedView &nearer, &other;
        Attitude now;
        cv::Point2d motionDeg;
    };
    void transitionInfrared(const Transition& transition, world::View* view) const;
    void transitionRight(const Transition& transition, world::View* view) const;
    void transitionThird(const Transition& transition, world::View* view) const;
    /// The image has half the size.
    void transitionPlatform(const Transition& transition, world::View* view) const;

private:
    struct Eye {
        Lens lens;
        cv::Matx33d eye_infrared;  ///< rotation
        /// Maps directions in the camera's frame to its frame before the infrared camera rotated.
        cv::Matx33d turn(const cv::Matx33d& before, const cv::Matx33d& now) const;
        /// Returns the positions of the pixels, or of every `step`-th one, in an image of `seen`.
        cv::Mat_<cv::Vec2f> places(const RenderedView& seen, const cv::Matx33d& now, int step = 1) const;
    };
    /// The images of one sensor in the nearer and in the other view, and the composed image.
    struct Layer {
        cv::Mat near, far, *out;
    };
    static void paintTransition(const Transition& transition, const Eye& eye, const cv::Matx33d& now,
                                std::initializer_list<Layer> layers, int interpolation, int step = 1);
    static void blurMotion(cv::Mat image, const Eye& eye, cv::Point2d motionDeg);

    Eye infrared_, right_, depth_, third_;
    std::optional<Eye> platform_;
};

}  // namespace fieldcal::handheld
