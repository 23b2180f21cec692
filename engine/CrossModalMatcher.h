#pragma once

#include "engine/ParallaxAreas.h"
#include "engine/PositionTable.h"

#include <opencv2/core.hpp>

#include <functional>
#include <vector>

namespace vq {

/// Seconds and counts of the last pair, for whoever reports them.
struct PairStatistics {
    int infraredCorners = 0;  ///< as detected
    int colourCorners = 0;
    int matched = 0;
    int verified = 0;
    double conversionSeconds = 0;
    double detectionSeconds = 0;  ///< detection and sub-pixel refinement, both pictures, wall time
    double descriptionSeconds = 0;
    double distanceSeconds = 0;  ///< disparities of corners, matches and textured places
    double matchingSeconds = 0;  ///< search among the described corners
    double verificationSeconds = 0;
    double estimationSeconds = 0;
};

/// Finds corners of an infrared and a colour picture that may show the same thing: detected in both, described by
/// intensity comparisons, searched only where the allowed rotations can take them. One thread at a time; uses a second
/// one while it works.
class CrossModalMatcher {
public:
    /// Builds the search areas about the current angles. `marginDeg` widens the range on every side, so that the
    /// parallax of things a few metres away does not push right matches out of their areas.
    void setup(const CameraPair& cameras, const Eigen::Vector3d& currentAnglesRad, const SearchRange& range,
               double marginDeg);
    /// Which picture's corners are searched in the other one. Takes effect with the next `setup`.
    void setQueryIsInfrared(bool queryIsInfrared) { queryIsInfrared_ = queryIsInfrared; }

    /// Converts the pair to 8 bits. `infrared16`: CV_16UC1; `colour`: CV_8UC4.
    void prepare(const cv::Mat& infrared16, const cv::Mat& colour, int infraredConversionMode);
    /// For infrared corners, how far parallax can move each of them in the colour image.
    using ShiftFinder = std::function<std::vector<ParallaxShift>(const std::vector<cv::Point2f>&)>;
    /// Element i of one list matches element i of the other. Pixels of the delivered pictures. With `shifts`, and the
    /// infrared image as the query, each corner's search area follows its parallax.
    void findCrossModalMatches(std::vector<cv::Point2f>* colourPoints, std::vector<cv::Point2f>* infraredPoints,
                               const ShiftFinder& shifts = nullptr);

    const cv::Mat& infrared() const { return infrared8_; }
    const cv::Mat& grey() const { return grey_; }
    const PairStatistics& statistics() const { return statistics_; }
    PairStatistics& statistics() { return statistics_; }

private:
    cv::Mat infrared8_;
    cv::Mat grey_;
    PositionTable table_;
    bool queryIsInfrared_ = true;
    PairStatistics statistics_;
};

}  // namespace vq
