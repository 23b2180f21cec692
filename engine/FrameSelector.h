#pragma once

#include "camera/ImageFrame.h"
#include "engine/ImagePairRecord.h"

#include <opencv2/core.hpp>

#include <cstdint>
#include <deque>

namespace vq {

/// Selects an image pair from the middle of a period in which the device is held still, to avoid motion blur and an
/// offset between the two exposures.
///
/// Motion is the larger of the L2 distances between the newest colour frame, reduced to a quarter of its size, and the
/// frames four and eight frames earlier. The two thresholds lie far apart: motion between them neither ends the wait
/// for movement nor triggers a capture. One thread.
class FrameSelector {
public:
    enum State : std::uint32_t { Initial = 0, WaitingToMove = 1, WaitingForStill = 2 };

    /// Copies a pair into the queue. The frames must not be empty.
    void push(const fieldcal::ImageFrame16& infrared, const fieldcal::ImageFrame32& colour);
    /// The same with the right infrared image and the depth image of the same frame set, either of which may be empty.
    void push(const fieldcal::ImageFrame16& infrared, const fieldcal::ImageFrame32& colour,
              const fieldcal::ImageFrame16& right, const fieldcal::ImageFrame16& depth);

    /// Returns true when a pair has just been selected and written into the two records.
    bool shouldUseThisFrame(ImagePairRecord* infrared, ImagePairRecord* colour);
    /// The right infrared image and the depth image of the pair just selected; empty where there were none.
    const ImagePairRecord& selectedRight() const { return selectedRight_; }
    const ImagePairRecord& selectedDepth() const { return selectedDepth_; }
    /// Motion of the infrared image from the selected frame to the next one, in pixels. It detects a residual rotation
    /// that the colour frames of a low-contrast scene do not show. 0 where it cannot be measured.
    float selectedMotionPx() const { return selectedMotionPx_; }

    void reset();
    State state() const { return state_; }

private:
    /// The images that are kept from one frame set.
    struct QueuedFrameSet {
        cv::Mat motion;                          ///< the colour image, reduced to a quarter of its size
        cv::Mat infrared, colour, right, depth;  ///< empty while no pair can be selected from them
        cv::Size infraredSize, colourSize;
    };

    /// When the queue is full, returns its oldest entry for reuse, which saves allocations of several megabytes a
    /// frame.
    QueuedFrameSet takeOldest();
    float motionMeasure() const;
    /// Motion of the newest frame relative to the one at `index`. A change of the frame size counts as movement.
    float motionSince(std::size_t index) const;
    void enter(State state);
    void copySelectedPair(ImagePairRecord* infrared, ImagePairRecord* colour);

    const float moveThreshold_ = 8500.0F;
    const float stillThreshold_ = 4000.0F;
    const std::uint32_t step_ = 4;
    State state_ = Initial;
    std::deque<QueuedFrameSet> queue_;  ///< the oldest first, at most 2 · step + 1
    ImagePairRecord selectedRight_, selectedDepth_;
    float selectedMotionPx_ = 0;
    std::uint32_t counter_ = 0;
};

}  // namespace vq
