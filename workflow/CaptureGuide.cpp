#include "workflow/CaptureGuide.h"

#include <cmath>
#include <cstddef>
#include <numeric>

namespace fieldcal {
namespace {

constexpr int kMinVerified = 12;   ///< one for each area
constexpr double kMinGain = 0.05;  ///< of one area's required detail
constexpr std::size_t kColumns = 4, kRows = 3;
constexpr double kMinNeed = 0.5;       ///< of one area's required detail
constexpr double kMinOneSided = 0.25;  ///< distance of the needy areas' centre from that of the image, half widths

double sum(const std::vector<double>& areas) {
    return std::accumulate(areas.begin(), areas.end(), 0.0);
}

}  // namespace

PhotoWorth photoWorth(int verified, const std::vector<double>& before, const std::vector<double>& after) {
    if (verified < kMinVerified) return PhotoWorth::TooLittleDetail;
    const bool complete = sum(before) >= static_cast<double>(after.size()) - kMinNeed;
    return complete || sum(after) - sum(before) >= kMinGain ? PhotoWorth::Useful : PhotoWorth::NothingNew;
}

Look nextLook(const std::vector<double>& areas) {
    if (areas.size() != kColumns * kRows) return Look::Anywhere;
    double need = 0, x = 0, y = 0;
    for (std::size_t i = 0; i < areas.size(); ++i) {
        const std::size_t column = i % kColumns, row = i / kColumns;
        const double missing = 1 - areas[i];
        need += missing;
        x += missing * (2 * static_cast<double>(column) / (kColumns - 1) - 1);
        y += missing * (2 * static_cast<double>(row) / (kRows - 1) - 1);
    }
    if (need < kMinNeed || std::hypot(x, y) < kMinOneSided * need) return Look::Anywhere;
    if (std::abs(x) >= std::abs(y)) return x > 0 ? Look::Left : Look::Right;
    return y > 0 ? Look::Up : Look::Down;
}

}  // namespace fieldcal
