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

/// Appends a copy of a 16-bit image, or an empty image where there is none or none is wanted.
void appendCopy(std::deque<cv::Mat>& queue, std::size_t limit, const fieldcal::ImageFrame16& frame, bool wanted) {
    cv::Mat copy = takeOldest(queue, limit);
    if (wanted && !frame.empty()) {
        copyInto(copy, frame, CV_16UC1);
    } else {
        copy.release();
    }
    queue.push_back(std::move(copy));
}

void assign(const cv::Mat& image, int bytesPerPixel, ImagePairRecord* record) {
    record->assign(static_cast<std::uint32_t>(image.cols), static_cast<std::uint32_t>(image.rows), image.data,
                   static_cast<std::uint32_t>(bytesPerPixel));
}

}  // namespace

void FrameSelector::push(const fieldcal::ImageFrame16& infrared, const fieldcal::ImageFrame32& colour) {
    push(infrared, colour, {}, {});
}

void FrameSelector::push(const fieldcal::ImageFrame16& infrared, const fieldcal::ImageFrame32& colour,
                         const fieldcal::ImageFrame16& right, const fieldcal::ImageFrame16& depth) {
    const std::size_t limit = 2 * step_ + 1;
    // A pair is only ever selected from frames that came after the movement.
    const bool mayBeSelected = state_ != WaitingToMove;
    appendCopy(rightQueue_, limit, right, mayBeSelected);
    appendCopy(depthQueue_, limit, depth, mayBeSelected);
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

void FrameSelector::copySelectedPair(ImagePairRecord* infrared, ImagePairRecord* colour) {
    logMessage(kInfo, kTag, "Before getting the images from the deques: %d %d", static_cast<int>(infraredQueue_.size()),
               static_cast<int>(colourQueue_.size()));
    const cv::Mat& infraredImage = infraredQueue_.at(counter_ - step_);
    const cv::Mat& colourImage = colourQueue_.at(counter_ - step_);
    logMessage(kInfo, kTag, "After");
    assign(infraredImage, 2, infrared);
    logMessage(kInfo, kTag, "infrared memcpy is finished");
    assign(colourImage, 4, colour);
    assign(rightQueue_.at(counter_ - step_), 2, &selectedRight_);
    assign(depthQueue_.at(counter_ - step_), 2, &selectedDepth_);
    logMessage(kInfo, kTag, "Found good image pairs!");
}

void FrameSelector::reset() {
    enter(Initial);
    colourQueue_.clear();
    infraredQueue_.clear();
    motionQueue_.clear();
    rightQueue_.clear();
    depthQueue_.clear();
}

}  // namespace vq
