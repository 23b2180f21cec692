#include "tools/StillCapture.h"

#include "engine/InfraredConversion.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>

namespace fieldcal {
namespace {

constexpr int kReduction = 8;
constexpr float kSameView = 0.97F;

cv::Mat reduced(const vq::ImagePairRecord& record) {
    const cv::Mat whole(static_cast<int>(record.height), static_cast<int>(record.width), CV_16UC1,
                        const_cast<std::uint8_t*>(record.pixels.data()));
    cv::Mat small;
    cv::resize(whole, small, whole.size() / kReduction, 0, 0, cv::INTER_AREA);
    small.convertTo(small, CV_32F);
    return small;
}

}  // namespace

bool StillCapture::take(const FrameRecords& frames) {
    const ImageFrame16& infrared = frames.leftInfrared;
    const ImageFrame32& colour =
        platformCamera_ ? frames.colour[ColourCamera::Platform] : frames.colour[ColourCamera::Third];
    if (isComplete() || infrared.empty() || colour.empty()) return false;
    lit_ = light_.isLitForCapture(
        vq::clippedMean(infrared.pixels(), static_cast<int>(infrared.width()), static_cast<int>(infrared.height())));
    if (!lit_) return false;
    selector_.push(infrared, colour, frames.rightInfrared, frames.depth);
    vq::SelectedImages still;
    if (!selector_.shouldUseThisFrame(&still.infrared, &still.colour)) return false;
    still.right = selector_.selectedRight();
    still.depth = selector_.selectedDepth();
    still.motionPx = selector_.selectedMotionPx();
    if (!showsSomethingNew(still)) return false;
    stills_.push_back(std::move(still));
    return true;
}

/// Rejects a view that has been taken already: it has the same errors and would only appear to be more evidence.
bool StillCapture::showsSomethingNew(const vq::SelectedImages& still) const {
    const cv::Mat present = reduced(still.infrared);
    return std::none_of(stills_.begin(), stills_.end(), [&](const vq::SelectedImages& earlier) {
        cv::Mat correlation;
        cv::matchTemplate(present, reduced(earlier.infrared), correlation, cv::TM_CCOEFF_NORMED);
        return correlation.at<float>(0, 0) > kSameView;
    });
}

QString StillCapture::advice() const {
    if (!lit_) return "Too dark: go out into sunlight.";
    const bool turn = selector_.state() == vq::FrameSelector::WaitingToMove;
    return turn ? "Turn the module a little, to other scenery." : "Hold it still.";
}

}  // namespace fieldcal
