#include "render/DepthColourMap.h"

#include "camera/Rotation.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace fieldcal {
namespace {

using Rgba = std::array<std::uint8_t, 4>;

/// Lightness, chroma and hue in a perceptually uniform colour space (Björn Ottosson's Oklab, 2020).
struct PerceivedColour {
    double lightness;
    double chroma;
    double hueDeg;
};

constexpr PerceivedColour kNearColour{0.93, 0.15, 100};
constexpr PerceivedColour kFarColour{0.40, 0.15, -80};

std::uint8_t displayValue(double linear) {
    const double light = std::clamp(linear, 0.0, 1.0);
    const double encoded = light <= 0.0031308 ? 12.92 * light : 1.055 * std::pow(light, 1 / 2.4) - 0.055;
    return static_cast<std::uint8_t>(std::lround(255 * encoded));
}

Rgba toRgba(const PerceivedColour& colour) {
    const double a = colour.chroma * std::cos(colour.hueDeg * kRadiansPerDegree);
    const double b = colour.chroma * std::sin(colour.hueDeg * kRadiansPerDegree);
    const double l = std::pow(colour.lightness + 0.3963377774 * a + 0.2158037573 * b, 3);
    const double m = std::pow(colour.lightness - 0.1055613458 * a - 0.0638541728 * b, 3);
    const double s = std::pow(colour.lightness - 0.0894841775 * a - 1.2914855480 * b, 3);
    return {displayValue(4.0767416621 * l - 3.3077115913 * m + 0.2309699292 * s),
            displayValue(-1.2684380046 * l + 2.6097574011 * m - 0.3413193965 * s),
            displayValue(-0.0041960863 * l - 0.7034186147 * m + 1.7076147010 * s), 255};
}

constexpr std::size_t kSteps = 1024;

/// Returns the colour between the near end (0) and the far end (1).
Rgba colourAt(double t) {
    const auto between = [t](double first, double last) { return first + t * (last - first); };
    return toRgba({between(kNearColour.lightness, kFarColour.lightness), between(kNearColour.chroma, kFarColour.chroma),
                   between(kNearColour.hueDeg, kFarColour.hueDeg)});
}

std::array<Rgba, kSteps> makeColours() {
    std::array<Rgba, kSteps> colours{};
    for (std::size_t step = 0; step < kSteps; ++step)
        colours[step] = colourAt(static_cast<double>(step) / (kSteps - 1));
    return colours;
}

std::vector<float> makeLogarithms() {
    std::vector<float> logarithms(65536);
    for (std::size_t millimetres = 0; millimetres < logarithms.size(); ++millimetres)
        logarithms[millimetres] = std::log(std::max(static_cast<float>(millimetres), 1.0F) * 0.001F);
    return logarithms;
}

}  // namespace

DepthColours::DepthColours(const DepthRange& range)
    : nearest_(static_cast<float>(std::log(range.nearMetres))),
      stepsPerUnit_(static_cast<float>((kSteps - 1) / std::log(range.farMetres / range.nearMetres))) {}

Rgba DepthColours::operator()(std::uint16_t millimetres) const {
    static const std::array<Rgba, kSteps> colours = makeColours();
    static const std::vector<float> logarithms = makeLogarithms();
    const float step = (logarithms[millimetres] - nearest_) * stepsPerUnit_ + 0.5F;
    return colours[static_cast<std::size_t>(std::clamp(step, 0.0F, static_cast<float>(kSteps - 1)))];
}

}  // namespace fieldcal
