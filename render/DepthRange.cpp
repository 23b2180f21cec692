#include "render/DepthRange.h"

#include <algorithm>
#include <cmath>

namespace fieldcal {
namespace {

constexpr double kLowShare = 0.05;
constexpr double kHighShare = 0.95;
constexpr double kMinRatio = 1.5;
constexpr double kApproach = 0.25;

double percentileMetres(std::vector<std::uint16_t>* depths, double share) {
    const auto at = depths->begin() + std::lround(share * static_cast<double>(depths->size() - 1));
    std::nth_element(depths->begin(), at, depths->end());
    return 0.001 * *at;
}

}  // namespace

DepthRange percentileRange(std::vector<std::uint16_t>* depths) {
    if (depths->empty()) return {};
    const double nearMetres = percentileMetres(depths, kLowShare);
    const double farMetres = percentileMetres(depths, kHighShare);
    const double widening = std::sqrt(std::max(1.0, kMinRatio * nearMetres / farMetres));
    return {nearMetres / widening, farMetres * widening};
}

DepthRange approach(const DepthRange& present, const DepthRange& wanted) {
    const auto between = [](double from, double to) { return from * std::pow(to / from, kApproach); };
    return {between(present.nearMetres, wanted.nearMetres), between(present.farMetres, wanted.farMetres)};
}

}  // namespace fieldcal
