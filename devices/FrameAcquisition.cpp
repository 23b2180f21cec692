#include "devices/FrameAcquisition.h"

#include "devices/ColourConversion.h"

#include <algorithm>
#include <cstring>

namespace fieldcal {
namespace {

bool size(ImageFrame* record, std::int32_t width, std::int32_t height) {
    if (!isPlausibleImageSize(width, height)) return false;
    record->resize(static_cast<std::uint32_t>(width), static_cast<std::uint32_t>(height));
    return true;
}

void copy(ImageFrame16* record, std::int32_t width, std::int32_t height, const std::uint16_t* pixels) {
    if (pixels == nullptr || !isPlausibleImageSize(width, height)) return;
    record->assign(static_cast<std::uint32_t>(width), static_cast<std::uint32_t>(height), pixels);
}

bool holds(const ImageFrame16& record, std::int32_t width, std::int32_t height, const std::uint16_t* pixels) {
    return record.width() == static_cast<std::uint32_t>(width) &&
           record.height() == static_cast<std::uint32_t>(height) &&
           std::memcmp(record.pixels(), pixels, record.byteCount()) == 0;
}

/// Copies the pixels, or empties the record when there are none.
void copyOrEmpty(ImageFrame16* record, std::int32_t width, std::int32_t height, const std::uint16_t* pixels) {
    if (pixels == nullptr || !isPlausibleImageSize(width, height)) record->resize(0, 0);
    copy(record, width, height, pixels);
}

bool hasSize(const ImageFrame32& record, const SensorSettings& settings) {
    return record.width() == static_cast<std::uint32_t>(settings.thirdScaledWidth) &&
           record.height() == static_cast<std::uint32_t>(settings.thirdScaledHeight);
}

}  // namespace

void Pairing::follow(const StreamDelivery& infrared, const StreamDelivery& colour, Clock::time_point infraredAt,
                     Clock::time_point colourAt) {
    if (infrared.delivered) infraredAt_ = infraredAt;
    if (colour.delivered) colourAt_ = colourAt;
    if (infrared.changed || colour.changed) isPair_ = infrared.changed && colour.changed;
}

std::optional<Pairing::Clock::duration> Pairing::age(Clock::time_point now) const {
    if (!isPair_ || !infraredAt_ || !colourAt_) return std::nullopt;
    return now - std::min(*infraredAt_, *colourAt_);
}

bool FrameAcquisition::sizeRecords(KXDevice& device, KXThirdCamera& third) {
    return size(&records.depth, device.depthWidth(), device.depthHeight()) &&
           size(&records.leftInfrared, device.lrWidth(), device.lrHeight()) &&
           size(&records.rightInfrared, device.lrWidth(), device.lrHeight()) &&
           size(&records.colour[ColourCamera::Third], third.thirdWidth(), third.thirdHeight());
}

void FrameAcquisition::refresh(KXDevice& device, KXThirdCamera* third, const SensorSettings& settings) {
    leftDelivery = thirdDelivery = depthDelivery = {};
    if (settings.depthEnabled && device.depthEnabled()) {
        const std::uint16_t* pixels = device.depthImage();
        depthDelivery.delivered = pixels != nullptr;
        copy(&records.depth, device.depthWidth(), device.depthHeight(), pixels);
    }
    if (settings.leftEnabled && device.leftEnabled()) {
        const std::uint16_t* pixels = device.leftImage();
        const ImageFrame16& left = records.leftInfrared;
        leftDelivery.delivered = pixels != nullptr;
        leftDelivery.changed = pixels != nullptr && !holds(left, device.lrWidth(), device.lrHeight(), pixels);
        copy(&records.leftInfrared, device.lrWidth(), device.lrHeight(), pixels);
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
    if (pixels == nullptr || !isPlausibleImageSize(width, height)) return;
    if (!isPlausibleImageSize(settings.thirdScaledWidth, settings.thirdScaledHeight)) return;
    thirdDelivery.delivered = true;
    thirdDelivery.changed = keepIfNew(pixels, width, height);
    if (!thirdDelivery.changed && hasSize(records.colour[ColourCamera::Third], settings)) return;
    scaleIntoRecord(third_, settings.thirdScaledWidth, settings.thirdScaledHeight, &scaledThird_,
                    &records.colour[ColourCamera::Third]);
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
