#pragma once

#include <QImage>
#include <opencv2/core.hpp>

#include <array>
#include <vector>

namespace fieldcal::demonstration {

/// The offset of the coloured depth in a screenshot, to the right of and below the image edges to which it belongs.
struct OverlayOffset {
    std::array<double, 2> pixels{};
    double correlation = 0;  ///< of both sets of edges at that offset
};

/// `screen`: the refinement page. `pictures`: the images that the colour camera may just have delivered (BGR), among
/// which the one on the screen is found.
OverlayOffset measureOverlayOffset(const QImage& screen, const std::vector<cv::Mat>& pictures);

}  // namespace fieldcal::demonstration
