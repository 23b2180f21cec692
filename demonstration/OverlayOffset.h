#pragma once

#include <QImage>
#include <opencv2/core.hpp>

#include <array>
#include <vector>

namespace fieldcal::demonstration {

/// How far the coloured depth on a picture of the screen stands to the right of and below the edges it belongs to.
struct OverlayOffset {
    std::array<double, 2> pixels{};
    double correlation = 0;  ///< of the edges of both, at that offset
};

/// `screen`: the refinement page. `pictures`: what the colour camera may just have delivered (BGR); the one that the
/// screen shows is found among them.
OverlayOffset measureOverlayOffset(const QImage& screen, const std::vector<cv::Mat>& pictures);

}  // namespace fieldcal::demonstration
