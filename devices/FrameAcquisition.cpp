#include "devices/FrameAcquisition.h"

#include "devices/ColourConversion.h"

#include <cstring>

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

/// Without pixels the record becomes empty.
void copyOrEmpty(ImageFrame16* record, std::int32_t width, std::int32_t height, const std::uint16_t* pixels) {
    if (pixels == nullptr || !isPlausiblePictureSize(width, height)) record->resize(0, 0);
    copy(record, width, height, pixels);
}

bool hasSize(const ImageFrame32& record, const SensorSettings& settings) {
    return record.width() == static_cast<std::uint32_t>(settings.thirdScaledWidth) &&
           record.height() == static_cast<std::uint32_t>(settings.thirdScaledHeight);
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
        copyOrEmpty(&records.rightInfrared, device.lrWidth(), device.lrHeight(), device.rightImage());
    } else {
        records.rightInfrared.resize(0, 0);
    }
    if (settings.thirdEnabled && third != nullptr && third->thirdEnabled()) refreshThird(*third, settings);
}

void FrameAcquisition::refreshThird(KXThirdCamera& third, const SensorSettings& settings) {
    const std::int32_t width = third.thirdWidth();
    const std::int32_t height = third.thirdHeight();
    const std::uint8_t* pixels = third.thirdImage();
    if (pixels == nullptr || !isPlausiblePictureSize(width, height)) return;
    if (!isPlausiblePictureSize(settings.thirdScaledWidth, settings.thirdScaledHeight)) return;
    if (!keepIfNew(pixels, width, height) && hasSize(records.inModuleColour, settings)) return;
    scaleIntoRecord(third_, settings.thirdScaledWidth, settings.thirdScaledHeight, &scaledThird_,
                    &records.inModuleColour);
}

bool FrameAcquisition::keepIfNew(const std::uint8_t* pixels, std::int32_t width, std::int32_t height) {
    const std::size_t bytes = static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 4;
    const bool sameSize = third_.cols == width && third_.rows == height;
    if (sameSize && std::memcmp(third_.ptr(), pixels, bytes) == 0) return false;
    third_.create(height, width, CV_8UC4);
    std::memcpy(third_.ptr(), pixels, bytes);
    return true;
}

}  // namespace fieldcal
