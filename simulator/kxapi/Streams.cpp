#include "simulator/kxapi/Streams.h"

#include <algorithm>

namespace kxsim {

using fieldcal::session::FramePictures;

namespace {

constexpr std::uint16_t kBlankValue = 400;

}  // namespace

void Streams::follow(const FramePictures& frame, bool platformIsNew, const Faults& faults) {
    ++sets_;
    hasDepth_ = !frame.depth.empty();
    depth_.follow(&frame.depth, sets_, faults);
    left_.follow(&frame.infrared, sets_, faults);
    right_.follow(chosenRight(frame), sets_, faults);
    third_.follow(&frame.third, sets_, faults);
    platform_.follow(platformIsNew ? &frame.platform : nullptr, sets_, faults);
}

const fieldcal::ImageFrame16* Streams::chosenRight(const FramePictures& frame) {
    if (choice_ == RightChoice::left) return &frame.infrared;
    if (choice_ == RightChoice::real) return &frame.right;
    if (blank_.empty()) {
        blank_.resize(frame.infrared.width(), frame.infrared.height());
        std::fill_n(blank_.pixels(), blank_.byteCount() / sizeof(std::uint16_t), kBlankValue);
    }
    return &blank_;
}

const std::uint8_t* Streams::platform() const {
    return platform_.shown() == nullptr || platform_.shown()->empty() ? nullptr : platform_.shown()->data();
}

}  // namespace kxsim
