#pragma once

#include "engine/ParallaxAreas.h"
#include "engine/PositionTable.h"

#include <opencv2/core.hpp>

#include <functional>
#include <vector>

namespace vq {

/// Timings and counts of the last image pair.
struct PairStatistics {
    int infraredCorners = 0;  ///< as detected
    int colourCorners = 0;
    int matched = 0;
    int verified = 0;
    double conversionSeconds = 0;
    double detectionSeconds = 0;  ///< detection and sub-pixel refinement, both images, wall time
    double descriptionSeconds = 0;
    double distanceSeconds = 0;  ///< disparities of corners, matches and textured places
    double matchingSeconds = 0;  ///< search among the described corners
    double verificationSeconds = 0;
    double estimationSeconds = 0;
};

/// Finds corners in an infrared and a colour image that may show the same point. Corners are detected and described in
/// both images; each is compared only with the corners inside the area that the allowed rotations permit. Call it from
/// one thread at a time; it uses a second thread internally.
class CrossModalMatcher {
public:
    /// Builds the search areas about the current angles. `marginDeg` widens the range on every side, so that the
    /// parallax of objects a few metres away does not move correct matches out of their areas.
    void setup(const CameraPair& cameras, const Eigen::Vector3d& currentAnglesRad, const SearchRange& range,
               double marginDeg);
    /// Selects which image is the query, whose corners are searched in the other image. Takes effect with the next
    /// `setup`.
    void setQueryIsInfrared(bool queryIsInfrared) { queryIsInfrared_ = queryIsInfrared; }

    /// Converts the pair to 8 bits. `infrared16`: CV_16UC1; `colour`: CV_8UC4.
    void prepare(const cv::Mat& infrared16, const cv::Mat& colour, int infraredConversionMode);
    /// Returns, for each infrared corner, how far parallax can move it in the colour image.
    using ShiftFinder = std::function<std::vector<ParallaxShift>(const std::vector<cv::Point2f>&)>;
    /// Element i of one list matches element i of the other, in pixels of the delivered images. With `shifts`, and with
    /// the infrared image as the query, the search area of each corner is extended by its possible parallax.
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
