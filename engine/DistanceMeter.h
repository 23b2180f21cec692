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

/// Measures how far away the places of a pair are: by their disparity in the right infrared image, and by the depth
/// image where that reaches. Keeps what an attempt learns about the stereo baseline. One thread at a time.
class DistanceMeter {
public:
    /// Starts over for the given cameras. `rememberedBaselineM`: of an earlier calibration of the module; 0 for none.
    void setup(const fieldcal::CameraModel& infrared, const fieldcal::CameraModel& depth, double rememberedBaselineM);
    /// Forgets what was collected, not the cameras.
    void reset();

    /// Takes the images of a pair. CV_16UC1; `right16` and `depth16` are empty where there are none. A right image that
    /// cannot be the one that belongs to the left one (another size, blank, frozen, a copy of the left one) is logged
    /// once and left out.
    void beginPair(const cv::Mat& left16, const cv::Mat& right16, const cv::Mat& depth16);
    /// False without a usable right image: then distances come from the depth image alone.
    bool seesDisparities() const { return stereo_ != nullptr; }

    bool seesDepth() const { return !depth16_.empty(); }

    /// The disparity to about a pixel, and the depth image's inverse depth, of each place.
    std::vector<MeasuredPlace> lookUp(const std::vector<cv::Point2f>& infraredPoints) const;
    /// Replaces the coarse disparities by sub-pixel ones, where both agree.
    void refine(std::vector<MeasuredPlace>* places) const;
    /// Whether there is a depth image and it shows nothing about the place: what is there lies beyond its reach.
    bool isBeyondDepth(const cv::Point2f& infraredPoint) const;
    /// What refined places tell about the scale between disparity and distance, and whether the right image fits the
    /// left one at all.
    void learnFrom(const std::vector<MeasuredPlace>& places);

    /// The scale of the attempt: from depth, from the last fit, or remembered. Null without one.
    const StereoScale* scale() const;
    /// A scale to begin with where none is known: of a baseline as infrared stereo modules usually have it.
    StereoScale assumedScale() const;
    /// Takes the scale that a fit of the rotation found, and averages it with the remembered or assumed one, each with
    /// its weight. Depth goes before it.
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
