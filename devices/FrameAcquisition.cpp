#include "devices/FrameAcquisition.h"

#include "devices/ColourConversion.h"

namespace fieldcal {
namespace {

bool size(ImageFrame* record, std::int32_t width, std::int32_t height) {
    if (!isPlausiblePictureSize(width, height)) return false;
    record->resize(static_cast<std::uint32_t>(width), static_cast<std::uint32_t>(height));
    return true;
}

void copy(ImageFrame16* record, std::int32_t width, std::int32_t height, const std::uint16_t* pixels) {
    if (pixels == nullptr || !isPlausiblePictureSize(width, height)) return;
    record->assign(static_cast<std::uint32_t>(width), static_cast<std::uint32_t>(height), pixels);
}

}  // namespace

bool FrameAcquisition::sizeRecords(KXDevice& device, KXThirdCamera& third) {
    return size(&records.depth, device.depthWidth(), device.depthHeight()) &&
           size(&records.leftInfrared, device.lrWidth(), device.lrHeight()) &&
           size(&records.rightInfrared, device.lrWidth(), device.lrHeight()) &&
           size(&records.inModuleColour, third.thirdWidth(), third.thirdHeight());
}

void FrameAcquisition::refresh(KXDevice& device, KXThirdCamera* third, const SensorSettings& settings) {
    if (settings.depthEnabled && device.depthEnabled()) {
        copy(&records.depth, device.depthWidth(), device.depthHeight(), device.depthImage());
    }
    if (settings.leftEnabled && device.leftEnabled()) {
        copy(&records.leftInfrared, device.lrWidth(), device.lrHeight(), device.leftImage());
    }
    if (settings.rightEnabled && device.rightEnabled()) {
        copy(&records.rightInfrared, device.lrWidth(), device.lrHeight(), device.rightImage());
    }
    if (settings.thirdEnabled && third != nullptr && third->thirdEnabled()) refreshThird(*third, settings);
}

void FrameAcquisition::refreshThird(KXThirdCamera& third, const SensorSettings& settings) {
    const std::int32_t width = third.thirdWidth();
    const std::int32_t height = third.thirdHeight();
    const std::uint8_t* pixels = third.thirdImage();
    if (pixels == nullptr || !isPlausiblePictureSize(width, height)) return;
    if (!isPlausiblePictureSize(settings.thirdScaledWidth, settings.thirdScaledHeight)) return;
    // A view of the module's own pixels: they hold still until the next grab, and are only read.
    const cv::Mat bgra(height, width, CV_8UC4, const_cast<std::uint8_t*>(pixels));
    scaleIntoRecord(bgra, settings.thirdScaledWidth, settings.thirdScaledHeight, &scaledThird_,
                    &records.inModuleColour);
}

}  // namespace fieldcal
