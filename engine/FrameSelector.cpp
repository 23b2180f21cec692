#include "engine/FrameSelector.h"

#include "diagnostics/Logger.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <limits>

namespace vq {
namespace {

using fieldcal::kInfo;
using fieldcal::logMessage;

constexpr const char* kTag = "FrameSelector::shouldUseThisFrame";

/// The matrix that is about to leave the queue, to be filled anew: saves an allocation of two megabytes a frame.
/// Empty when somebody else still holds its pixels.
cv::Mat takeOldest(std::deque<cv::Mat>& queue, std::size_t limit) {
    if (queue.size() < limit) return {};
    cv::Mat oldest = std::move(queue.front());
    queue.pop_front();
    return oldest.u != nullptr && oldest.u->refcount == 1 ? oldest : cv::Mat();
}

void copyInto(cv::Mat& matrix, const fieldcal::ImageFrame& frame, int type) {
    const cv::Mat view(static_cast<int>(frame.height()), static_cast<int>(frame.width()), type,
                       const_cast<std::uint8_t*>(frame.bytes()));
    view.copyTo(matrix);
}

}  // namespace

void FrameSelector::push(const fieldcal::ImageFrame16& infrared, const fieldcal::ImageFrame32& colour) {
    const std::size_t limit = 2 * step_ + 1;
    cv::Mat colourCopy = takeOldest(colourQueue_, limit);
    cv::Mat infraredCopy = takeOldest(infraredQueue_, limit);
    cv::Mat motion = takeOldest(motionQueue_, limit);
    copyInto(infraredCopy, infrared, CV_16UC1);
    copyInto(colourCopy, colour, CV_8UC4);
    cv::Mat half;
    cv::pyrDown(colourCopy, half);
    cv::pyrDown(half, motion);
    colourQueue_.push_back(std::move(colourCopy));
    infraredQueue_.push_back(std::move(infraredCopy));
    motionQueue_.push_back(std::move(motion));
    if (state_ == Initial) state_ = WaitingForStill;
}

bool FrameSelector::shouldUseThisFrame(ImagePairRecord* infrared, ImagePairRecord* colour) {
    if (state_ == Initial) return false;
    if (counter_ != 2 * step_) {
        ++counter_;
        return false;
    }
    const float maxError = motionMeasure();
    if (state_ == WaitingToMove) {
        logMessage(kInfo, kTag, "maxError for WaitingToMove: %f", static_cast<double>(maxError));
        if (maxError > moveThreshold_) enter(WaitingForStill);
        return false;
    }
    logMessage(kInfo, kTag, "maxError for WaitingForStill: %f", static_cast<double>(maxError));
    if (!(stillThreshold_ > maxError)) return false;
    copySelectedPair(infrared, colour);
    enter(WaitingToMove);
    return true;
}

float FrameSelector::motionMeasure() const {
    return std::max(motionSince(counter_ - step_), motionSince(counter_ - 2 * step_));
}

float FrameSelector::motionSince(std::size_t index) const {
    const bool sizeChanged = infraredQueue_.at(index).size() != infraredQueue_.at(counter_).size() ||
                             colourQueue_.at(index).size() != colourQueue_.at(counter_).size();
    if (sizeChanged) return std::numeric_limits<float>::max();
    return static_cast<float>(cv::norm(motionQueue_.at(counter_), motionQueue_.at(index), cv::NORM_L2));
}

void FrameSelector::enter(State state) {
    counter_ = 0;
    state_ = state;
}

void FrameSelector::copySelectedPair(ImagePairRecord* infrared, ImagePairRecord* colour) const {
    logMessage(kInfo, kTag, "Before getting the images from the deques: %d %d", static_cast<int>(infraredQueue_.size()),
               static_cast<int>(colourQueue_.size()));
    const cv::Mat& infraredImage = infraredQueue_.at(counter_ - step_);
    const cv::Mat& colourImage = colourQueue_.at(counter_ - step_);
    logMessage(kInfo, kTag, "After");
    infrared->assign(static_cast<std::uint32_t>(infraredImage.cols), static_cast<std::uint32_t>(infraredImage.rows),
                     infraredImage.data, 2);
    logMessage(kInfo, kTag, "infrared memcpy is finished");
    colour->assign(static_cast<std::uint32_t>(colourImage.cols), static_cast<std::uint32_t>(colourImage.rows),
                   colourImage.data, 4);
    logMessage(kInfo, kTag, "Found good image pairs!");
}

void FrameSelector::reset() {
    enter(Initial);
    colourQueue_.clear();
    infraredQueue_.clear();
    motionQueue_.clear();
}

}  // namespace vq
