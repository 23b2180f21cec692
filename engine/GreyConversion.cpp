#include "engine/GreyConversion.h"

#include <algorithm>
#include <cstdint>

namespace vq {

void convertToGrey(const cv::Mat& colour, cv::Mat* grey) {
    grey->create(colour.size(), CV_8UC1);
    for (int y = 0; y < colour.rows; ++y) {
        const auto* source = colour.ptr<std::uint8_t>(y);
        auto* target = grey->ptr<std::uint8_t>(y);
        for (int x = 0; x < colour.cols; ++x, source += 4) {
            const float sum = static_cast<float>(source[0]) * 0.299F + static_cast<float>(source[1]) * 0.587F +
                              static_cast<float>(source[2]) * 0.114F + 0.5F;
            const auto value = static_cast<std::uint8_t>(std::min(sum, 255.0F));
            target[x] = source[3] != 0 ? value : 0;
        }
    }
}

}  // namespace vq
