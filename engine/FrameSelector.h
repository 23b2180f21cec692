#pragma once

#include "camera/ImageFrame.h"
#include "engine/ImagePairRecord.h"

#include <opencv2/core.hpp>

#include <cstdint>
#include <deque>

namespace vq {

/// Picks a pair from the middle of a still stretch: no motion blur and no skew between the two pictures.
///
/// Motion is the largest L2 distance of the newest colour frame, reduced to a quarter, from those four and eight
/// frames earlier. The two thresholds lie far apart: a middle band neither ends a wait for movement nor captures.
/// One thread.
class FrameSelector {
public:
    enum State : std::uint32_t { Initial = 0, WaitingToMove = 1, WaitingForStill = 2 };

    /// Copies the pair into the queues. Frames must not be empty.
    void push(const fieldcal::ImageFrame16& infrared, const fieldcal::ImageFrame32& colour);
    /// The same with the right infrared image and the depth of the same grab, either of which may be empty.
    void push(const fieldcal::ImageFrame16& infrared, const fieldcal::ImageFrame32& colour,
              const fieldcal::ImageFrame16& right, const fieldcal::ImageFrame16& depth);

    /// True when a pair has just been selected and written into the two records.
    bool shouldUseThisFrame(ImagePairRecord* infrared, ImagePairRecord* colour);
    /// The right infrared image and the depth of the pair that was just selected; empty where there were none.
    const ImagePairRecord& selectedRight() const { return selectedRight_; }
    const ImagePairRecord& selectedDepth() const { return selectedDepth_; }
    /// How far the infrared image moved from the selected frame to the next one, pixels: what is left of a turn that
    /// the colour frames, of a scene with little contrast, do not show. 0 where it cannot be told.
    float selectedMotionPx() const { return selectedMotionPx_; }

    void reset();
    State state() const { return state_; }

private:
    /// What is kept of one frame set.
    struct Moment {
        cv::Mat motion;                          ///< the colour image, reduced to a quarter
        cv::Mat infrared, colour, right, depth;  ///< empty while no pair can be selected from them
        cv::Size infraredSize, colourSize;
    };

    /// The oldest moment with its images, to be filled anew, once the queue is full: that saves allocations of several
    /// megabytes a frame.
    Moment takeOldest();
    float motionMeasure() const;
    /// Of the newest frame against an earlier one. A change of a frame size counts as movement, whatever the images
    /// show.
    float motionSince(std::size_t index) const;
    void enter(State state);
    void copySelectedPair(ImagePairRecord* infrared, ImagePairRecord* colour);

    const float moveThreshold_ = 8500.0F;
    const float stillThreshold_ = 4000.0F;
    const std::uint32_t step_ = 4;
    State state_ = Initial;
    std::deque<Moment> moments_;  ///< the oldest first, at most 2 · step + 1
    ImagePairRecord selectedRight_, selectedDepth_;
    float selectedMotionPx_ = 0;
    std::uint32_t counter_ = 0;
};

}  // namespace vq
