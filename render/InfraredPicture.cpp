#include "render/InfraredPicture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

namespace fieldcal {
namespace {

constexpr std::size_t kLevels = 1024;
constexpr double kDisplayGamma = 2.2;

using GreyTable = std::array<std::array<std::uint8_t, 4>, kLevels>;

GreyTable makeGreyTable() {
    GreyTable table;
    for (std::size_t level = 0; level < kLevels; ++level) {
        const double light = static_cast<double>(level) / (kLevels - 1);
        const auto grey = static_cast<std::uint8_t>(std::lround(255 * std::pow(light, 1 / kDisplayGamma)));
        table[level] = {grey, grey, grey, 255};
    }
    return table;
}

}  // namespace

void infraredToPicture(const ImageFrame16& infrared, ImageFrame32* picture) {
    static const GreyTable table = makeGreyTable();
    picture->resize(infrared.width(), infrared.height());
    const std::size_t count = std::size_t{infrared.width()} * infrared.height();
    std::uint8_t* out = picture->bytes();
    for (std::size_t i = 0; i < count; ++i, out += 4) {
        const std::size_t level = std::min<std::size_t>(infrared.pixels()[i], kLevels - 1);
        std::memcpy(out, table[level].data(), 4);
    }
}

}  // namespace fieldcal
