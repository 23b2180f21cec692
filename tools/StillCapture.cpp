#include "tools/StillCapture.h"

#include "engine/InfraredConversion.h"

namespace fieldcal {

bool StillCapture::take(const FrameRecords& frames) {
    const ImageFrame16& infrared = frames.leftInfrared;
    const ImageFrame32& colour = platformCamera_ ? frames.outOfModuleColour : frames.inModuleColour;
    if (isComplete() || infrared.empty() || colour.empty()) return false;
    lit_ = light_.isLitForCapture(vq::clippedMean(infrared.pixels(), static_cast<int>(infrared.width()),
                                                  static_cast<int>(infrared.height())));
    if (!lit_) return false;
    selector_.push(infrared, colour, frames.rightInfrared, frames.depth);
    vq::SelectedImages still;
    if (!selector_.shouldUseThisFrame(&still.infrared, &still.colour)) return false;
    still.right = selector_.selectedRight();
    still.depth = selector_.selectedDepth();
    still.motionPx = selector_.selectedMotionPx();
    stills_.push_back(std::move(still));
    return true;
}

QString StillCapture::advice() const {
    if (!lit_) return "Too dark: go out into sunlight.";
    const bool turn = selector_.state() == vq::FrameSelector::WaitingToMove;
    return turn ? "Turn the module a little, to other scenery." : "Hold it still.";
}

}  // namespace fieldcal
