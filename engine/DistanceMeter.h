#pragma once

#include "camera/CameraParameters.h"
#include "engine/MeasuredMatch.h"
#include "engine/ParallaxReport.h"
#include "engine/StereoMatcher.h"
#include "engine/StereoScale.h"

#include <opencv2/core.hpp>

#include <memory>
#include <optional>
#include <vector>

namespace vq {

/// Measures the distance of places in an image pair: from their disparity in the right infrared image, and from the
/// depth image within its range. Accumulates what an attempt measures of the stereo baseline. One thread at a time.
class DistanceMeter {
public:
    /// Starts over for the given cameras. `rememberedBaselineM`: the baseline from an earlier calibration of the module
    /// in metres, 0 for none.
    void setup(const fieldcal::CameraModel& infrared, const fieldcal::CameraModel& depth, double rememberedBaselineM);
    /// Discards the collected samples; the cameras stay.
    void reset();

    /// Sets the images of a pair, CV_16UC1; `right16` and `depth16` are empty where the module has none. A right image
    /// that cannot belong to the left one (different size, blank, frozen, or a copy of the left one) is logged once and
    /// ignored.
    void beginPair(const cv::Mat& left16, const cv::Mat& right16, const cv::Mat& depth16);
    /// Returns false without a usable right image; distances then come from the depth image alone.
    bool seesDisparities() const { return stereo_ != nullptr; }

    bool seesDepth() const { return !depth16_.empty(); }

    /// Returns for each place the disparity to about a pixel, and the inverse depth from the depth image.
    std::vector<MeasuredPlace> lookUp(const std::vector<cv::Point2f>& infraredPoints) const;
    /// Replaces the coarse disparities by sub-pixel ones where the two agree.
    void refine(std::vector<MeasuredPlace>* places) const;
    /// Returns true when there is a depth image and it has no values around the place, so that the surface there is out
    /// of its range.
    bool isBeyondDepth(const cv::Point2f& infraredPoint) const;
    /// Updates the scale between disparity and distance from refined places, and checks whether the right image fits
    /// the left one at all.
    void learnFrom(const std::vector<MeasuredPlace>& places);

    /// The scale of the attempt: from the depth image, from the last fit, or remembered. Null when it is unknown.
    const StereoScale* scale() const;
    /// The initial scale when none is known: that of a typical baseline for infrared stereo modules.
    StereoScale assumedScale() const;
    /// Sets the scale found by a fit of the rotation, averaged with the remembered or assumed one according to their
    /// weights. A scale from the depth image takes precedence.
    void setFittedScale(const StereoScale& fitted);
    BaselineSource source() const;
    std::optional<double> baselineM() const;

private:
    bool isUsable(const cv::Mat& left16, const cv::Mat& right16);
    bool refuse(const char* what);
    cv::Point depthPixelOf(const cv::Point2f& infraredPoint) const;
    float inverseDepthAt(const cv::Point2f& infraredPoint) const;

    fieldcal::CameraModel infrared_, depthCamera_;
    cv::Mat depth16_;
    cv::Mat lastRight16_, lastLeft16_;
    std::unique_ptr<StereoMatcher> stereo_;
    std::vector<MeasuredPlace> samples_;  ///< places with both a disparity and a depth
    std::optional<StereoScale> fromDepth_, fromFit_, remembered_;
    bool refused_ = false;
};

}  // namespace vq
