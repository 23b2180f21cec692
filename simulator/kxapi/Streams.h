#pragma once

#include "session/RecordedSession.h"
#include "simulator/kxapi/OtherConventions.h"
#include "simulator/kxapi/Settings.h"

#include <deque>
#include <optional>

namespace kxsim {

/// The images of one stream as the module delivers them: those of the source, unless a fault drops, freezes or delays
/// them.
template <typename Image>
class Stream {
public:
    explicit Stream(const char* name) : name_(name) {}

    /// To be called once for every frame set, counted from 1. `image` must stay valid until the next call; null when
    /// the source has none.
    void follow(const Image* image, std::uint64_t set, const Faults& faults) {
        const std::optional<StreamFault> fault = faults.inStream(name_, set);
        shown_ = image;
        if (!fault) return;
        if (fault->kind == StreamFaultKind::drop) shown_ = nullptr;
        if (fault->kind == StreamFaultKind::freeze) shown_ = frozen(image);
        if (fault->kind == StreamFaultKind::late) shown_ = delayed(image, fault->number);
    }

    /// Returns null when the frame set has no such image.
    const Image* shown() const { return shown_; }

private:
    const Image* frozen(const Image* image) {
        if (kept_.empty() && image != nullptr) kept_.push_back(*image);
        return kept_.empty() ? nullptr : &kept_.front();
    }
    const Image* delayed(const Image* image, std::size_t sets) {
        kept_.push_back(image != nullptr ? *image : Image());
        if (kept_.size() <= sets) return nullptr;
        if (kept_.size() > sets + 1) kept_.pop_front();
        return &kept_.front();
    }

    const char* name_;
    const Image* shown_ = nullptr;
    std::deque<Image> kept_;  ///< images to be delivered later, the oldest one first
};

/// The images that the module delivers of a frame set.
class Streams {
public:
    explicit Streams(RightChoice right) : choice_(right) {}

    /// To be called once for every grabbed frame set. `frame` must stay valid until the next call.
    void follow(const fieldcal::session::FrameImages& frame, bool platformIsNew, const Faults& faults);
    /// From now on the images of the colour camera inside the module are displaced.
    void displaceColour() { colourDisplaced_ = true; }

    /// Return null where the frame set has no such image.
    const std::uint16_t* depth() const { return depthPixels_; }
    const std::uint16_t* left() const { return leftPixels_; }
    const std::uint16_t* right() const { return rightPixels_; }
    const std::uint8_t* third() const { return thirdPixels_; }
    const std::uint8_t* platform() const;
    /// Returns whether the source has depth at all; if not, depth is 0 everywhere.
    bool hasDepth() const { return hasDepth_; }

private:
    using Image16 = fieldcal::ImageFrame16;
    void deliver(const Faults& faults);
    const Image16* chosenRight(const fieldcal::session::FrameImages& frame);

    RightChoice choice_;
    Image16 blank_;
    Stream<Image16> depth_{"depth"}, left_{"left"}, right_{"right"};
    Stream<fieldcal::ImageFrame32> third_{"third"};
    Stream<std::vector<std::uint8_t>> platform_{"platform"};
    AlteredImage depthDelivered_, leftDelivered_, rightDelivered_, thirdDelivered_;
    const std::uint16_t *depthPixels_ = nullptr, *leftPixels_ = nullptr, *rightPixels_ = nullptr;
    const std::uint8_t* thirdPixels_ = nullptr;
    std::uint64_t sets_ = 0;
    bool hasDepth_ = false;
    bool colourDisplaced_ = false;
};

}  // namespace kxsim
