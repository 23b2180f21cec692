#include "simulator/kxapi/RightImages.h"

#include <algorithm>
#include <cmath>

namespace kxsim {
namespace {

using fieldcal::ImageFrame16;
using fieldcal::session::FramePictures;

constexpr double kLateSeconds = 0.1;
constexpr std::uint16_t kBlankValue = 400;

const std::uint16_t* pixelsOf(const ImageFrame16& picture) {
    return picture.empty() ? nullptr : picture.pixels();
}

ImageFrame16 blankLike(const ImageFrame16& picture) {
    ImageFrame16 blank;
    blank.resize(picture.width(), picture.height());
    std::fill_n(blank.pixels(), blank.byteCount() / sizeof(std::uint16_t), kBlankValue);
    return blank;
}

}  // namespace

RightImages::RightImages(RightChoice choice, double grabsPerSecond)
    : choice_(choice), late_(static_cast<std::size_t>(std::lround(kLateSeconds * grabsPerSecond))) {}

void RightImages::follow(const FramePictures& frame) {
    if (choice_ == RightChoice::late) {
        kept_.push_back(frame.right);
        if (kept_.size() > late_ + 1) kept_.pop_front();
    } else if (kept_.empty() && choice_ == RightChoice::blank) {
        kept_.push_back(blankLike(frame.infrared));
    } else if (kept_.empty() && choice_ == RightChoice::frozen && !frame.right.empty()) {
        kept_.push_back(frame.right);
    }
}

const std::uint16_t* RightImages::picture(const FramePictures& frame) const {
    switch (choice_) {
        case RightChoice::real:
            return pixelsOf(frame.right);
        case RightChoice::left:
            return frame.infrared.pixels();
        case RightChoice::late:
            return kept_.size() > late_ ? pixelsOf(kept_.front()) : nullptr;
        case RightChoice::blank:
        case RightChoice::frozen:
            return kept_.empty() ? nullptr : pixelsOf(kept_.front());
        case RightChoice::missing:
            break;
    }
    return nullptr;
}

}  // namespace kxsim
