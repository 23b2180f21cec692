#include "simulator/kxapi/Streams.h"

#include <algorithm>

namespace kxsim {

using fieldcal::session::FrameImages;

namespace {

constexpr std::uint16_t kBlankValue = 400;

}  // namespace

void Streams::follow(const FrameImages& frame, bool platformIsNew, const Faults& faults) {
    ++sets_;
    hasDepth_ = !frame.depth.empty();
    depth_.follow(&frame.depth, sets_, faults);
    left_.follow(&frame.infrared, sets_, faults);
    right_.follow(chosenRight(frame), sets_, faults);
    third_.follow(&frame.third, sets_, faults);
    platform_.follow(platformIsNew ? &frame.platform : nullptr, sets_, faults);
    deliver(faults);
}

void Streams::deliver(const Faults& faults) {
    const bool swapped = faults.holds("swapped-imagers");
    const Image16* left = swapped ? right_.shown() : left_.shown();
    const Image16* right = swapped ? left_.shown() : right_.shown();
    depthPixels_ = depthDelivered_.inCentimetres(depth_.shown(), faults);
    leftPixels_ = reinterpret_cast<const std::uint16_t*>(leftDelivered_.withPaddedRows(left, faults));
    rightPixels_ = rightDelivered_.withLowerRows(right, faults);
    thirdPixels_ = colourDisplaced_ ? thirdDelivered_.displaced(third_.shown(), faults)
                                    : thirdDelivered_.withPaddedRows(third_.shown(), faults);
}

const fieldcal::ImageFrame16* Streams::chosenRight(const FrameImages& frame) {
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
