#include "engine/FrameSelector.h"

#include "diagnostics/Logger.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cmath>
#include <limits>

namespace vq {
namespace {

using fieldcal::kInfo;
using fieldcal::logMessage;

constexpr const char* kTag = "FrameSelector::shouldUseThisFrame";
constexpr int kMotionWindowPx = 256, kSmallestMotionWindowPx = 32;
/// With a lower response, phase correlation has not found a common shift.
constexpr double kMinResponse = 0.1;

cv::Mat viewOf(const fieldcal::ImageFrame& frame, int type) {
    return {static_cast<int>(frame.height()), static_cast<int>(frame.width()), type,
            const_cast<std::uint8_t*>(frame.bytes())};
}

/// Copies the frame, or clears the image when the frame is empty or not wanted.
void copyIf(bool wanted, const fieldcal::ImageFrame& frame, int type, cv::Mat* image) {
    if (wanted && !frame.empty()) {
        viewOf(frame, type).copyTo(*image);
    } else {
        image->release();
    }
}

void assign(const cv::Mat& image, int bytesPerPixel, ImagePairRecord* record) {
    record->assign(static_cast<std::uint32_t>(image.cols), static_cast<std::uint32_t>(image.rows), image.data,
                   static_cast<std::uint32_t>(bytesPerPixel));
}

/// Shift of the central part of the image in pixels, by phase correlation (Kuglin and Hines, 1975).
float motionBetween(const cv::Mat& earlier, const cv::Mat& later) {
    const int side = std::min({kMotionWindowPx, earlier.cols, earlier.rows});
    if (earlier.size() != later.size() || side < kSmallestMotionWindowPx) return 0;
    const cv::Rect middle((earlier.cols - side) / 2, (earlier.rows - side) / 2, side, side);
    cv::Mat a, b, window;
    earlier(middle).convertTo(a, CV_32F);
    later(middle).convertTo(b, CV_32F);
    cv::createHanningWindow(window, middle.size(), CV_32F);
    double response = 0;
    const cv::Point2d shift = cv::phaseCorrelate(a, b, window, &response);
    return response > kMinResponse ? static_cast<float>(std::hypot(shift.x, shift.y)) : 0;
}

}  // namespace

void FrameSelector::push(const fieldcal::ImageFrame16& infrared, const fieldcal::ImageFrame32& colour) {
    push(infrared, colour, {}, {});
}

void FrameSelector::push(const fieldcal::ImageFrame16& infrared, const fieldcal::ImageFrame32& colour,
                         const fieldcal::ImageFrame16& right, const fieldcal::ImageFrame16& depth) {
    QueuedFrameSet frameSet = takeOldest();
    // A pair is selected only from frames that follow a movement.
    const bool mayBeSelected = state_ != WaitingToMove;
    copyIf(mayBeSelected, infrared, CV_16UC1, &frameSet.infrared);
    copyIf(mayBeSelected, colour, CV_8UC4, &frameSet.colour);
    copyIf(mayBeSelected, right, CV_16UC1, &frameSet.right);
    copyIf(mayBeSelected, depth, CV_16UC1, &frameSet.depth);
    const cv::Mat colourView = viewOf(colour, CV_8UC4);
    frameSet.colourSize = colourView.size();
    frameSet.infraredSize = viewOf(infrared, CV_16UC1).size();
    cv::Mat half;
    cv::pyrDown(colourView, half);
    cv::pyrDown(half, frameSet.motion);
    queue_.push_back(std::move(frameSet));
    if (state_ == Initial) state_ = WaitingForStill;
}

FrameSelector::QueuedFrameSet FrameSelector::takeOldest() {
    if (queue_.size() < 2 * step_ + 1) return {};
    QueuedFrameSet oldest = std::move(queue_.front());
    queue_.pop_front();
    return oldest;
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
    const QueuedFrameSet &earlier = queue_.at(index), &newest = queue_.at(counter_);
    const bool sizeChanged = earlier.infraredSize != newest.infraredSize || earlier.colourSize != newest.colourSize;
    if (sizeChanged) return std::numeric_limits<float>::max();
    return static_cast<float>(cv::norm(newest.motion, earlier.motion, cv::NORM_L2));
}

void FrameSelector::enter(State state) {
    counter_ = 0;
    state_ = state;
}

void FrameSelector::copySelectedPair(ImagePairRecord* infrared, ImagePairRecord* colour) {
    const auto kept = static_cast<int>(queue_.size());
    logMessage(kInfo, kTag, "Before getting the images from the deques: %d %d", kept, kept);
    const QueuedFrameSet& selected = queue_.at(counter_ - step_);
    logMessage(kInfo, kTag, "After");
    assign(selected.infrared, 2, infrared);
    logMessage(kInfo, kTag, "infrared memcpy is finished");
    assign(selected.colour, 4, colour);
    assign(selected.right, 2, &selectedRight_);
    assign(selected.depth, 2, &selectedDepth_);
    selectedMotionPx_ = motionBetween(selected.infrared, queue_.at(counter_ - step_ + 1).infrared);
    logMessage(kInfo, kTag, "Found good image pairs!");
}

void FrameSelector::reset() {
    enter(Initial);
    queue_.clear();
}

}  // namespace vq
