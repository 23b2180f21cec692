#include "report/Figures.h"

#include "report/Overlay.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace fieldcal {
namespace {

constexpr int kBackgroundWidth = 320;
constexpr std::size_t kMaxVectors = 400;
constexpr int kMedianColumns = 8, kMedianRows = 6;
constexpr std::size_t kMinForMedian = 10;
/// Length of the vector of a median residual, and the largest length drawn, as shares of the image's width.
constexpr double kMedianVectorShare = 0.025, kLongestVectorShare = 0.1;
constexpr double kSmallestMedianPx = 1e-3;

constexpr int kFirstDecade = -2, kLastDecade = 2, kBarsPerDecade = 8;
constexpr int kBars = (kLastDecade - kFirstDecade) * kBarsPerDecade;
/// Size of the figures without an image, in their own units.
constexpr double kWidth = 400, kHeight = 300, kAxisHeight = 34;
constexpr double kLegendHeight = 44;

/// An area with fewer matches than the first number is thinly covered; from the second number on it is well covered.
constexpr int kThinArea = 20, kFullArea = 100;

QString number(double value) {
    return QString::number(value, 'f', 1);
}

struct Vector {
    Eigen::Vector2d from, residual;
};

std::vector<Vector> vectorsOf(const vq::SolutionEvidence& evidence, const Eigen::Matrix3d& rotation) {
    std::vector<Vector> vectors;
    for (const vq::EvidenceMatch& match : evidence.matches)
        vectors.push_back({{match.infrared.x, match.infrared.y}, evidence.residualPx(match, rotation)});
    return vectors;
}

/// Returns the median vectors of those parts of the image that have enough matches.
std::vector<Vector> medianVectors(const std::vector<Vector>& vectors, double width, double height) {
    struct Part {
        std::vector<double> x, y;
    };
    std::array<Part, static_cast<std::size_t>(kMedianColumns) * kMedianRows> parts;
    for (const Vector& vector : vectors) {
        const int column =
            std::clamp(static_cast<int>(vector.from.x() * kMedianColumns / width), 0, kMedianColumns - 1);
        const int row = std::clamp(static_cast<int>(vector.from.y() * kMedianRows / height), 0, kMedianRows - 1);
        Part& part = parts[static_cast<std::size_t>(row * kMedianColumns + column)];
        part.x.push_back(vector.residual.x());
        part.y.push_back(vector.residual.y());
    }
    std::vector<Vector> medians;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (parts[i].x.size() < kMinForMedian) continue;
        const std::size_t column = i % kMedianColumns, row = i / kMedianColumns;
        medians.push_back({{(static_cast<double>(column) + 0.5) * width / kMedianColumns,
                            (static_cast<double>(row) + 0.5) * height / kMedianRows},
                           {medianPx(parts[i].x), medianPx(parts[i].y)}});
    }
    return medians;
}

void drawVector(Markup* out, const Vector& vector, double factor, double longest, const char* kind) {
    Eigen::Vector2d drawn = vector.residual * factor;
    const bool cut = drawn.norm() > longest;
    if (cut) drawn *= longest / drawn.norm();
    const Eigen::Vector2d to = vector.from + drawn;
    out->leaf("line", {{"x1", number(vector.from.x())},
                       {"y1", number(vector.from.y())},
                       {"x2", number(to.x())},
                       {"y2", number(to.y())},
                       {"class", cut ? QString(kind) + " cut" : QString(kind)}});
}

void openPicture(Markup* out, double width, double height, const QString& label) {
    out->open("svg",
              {{"viewBox", QString("0 0 %1 %2").arg(width).arg(height)}, {"role", "img"}, {"aria-label", label}});
}

int barOf(double lengthPx) {
    const double decade = std::log10(std::max(lengthPx, 1e-9));
    return std::clamp(static_cast<int>(std::floor((decade - kFirstDecade) * kBarsPerDecade)), 0, kBars - 1);
}

std::array<int, kBars> barsOf(const std::vector<double>& lengthsPx) {
    std::array<int, kBars> bars{};
    for (const double length : lengthsPx)
        ++bars[static_cast<std::size_t>(barOf(length))];
    return bars;
}

void drawBars(Markup* out, const std::array<int, kBars>& bars, int highest, const char* kind) {
    constexpr double kFull = kHeight - kAxisHeight - kLegendHeight;
    for (std::size_t i = 0; i < bars.size(); ++i) {
        if (bars[i] == 0) continue;
        const double height = kFull * bars[i] / highest;
        out->leaf("rect", {{"x", number(static_cast<double>(i) * kWidth / kBars)},
                           {"y", number(kHeight - kAxisHeight - height)},
                           {"width", number(kWidth / kBars - 0.6)},
                           {"height", number(height)},
                           {"class", kind}});
    }
}

void drawDecades(Markup* out) {
    for (int decade = kFirstDecade; decade <= kLastDecade; ++decade) {
        const double x = (decade - kFirstDecade) * kWidth / (kLastDecade - kFirstDecade);
        out->leaf("line", {{"x1", number(x)},
                           {"y1", number(kLegendHeight)},
                           {"x2", number(x)},
                           {"y2", number(kHeight - kAxisHeight + 5)},
                           {"class", "grid"}});
        const char* anchor = decade == kFirstDecade ? "start" : decade == kLastDecade ? "end" : "middle";
        out->element("text", QString::number(std::pow(10.0, decade)) + (decade == kLastDecade ? " px" : ""),
                     {{"x", number(x + (decade == kFirstDecade  ? 4
                                        : decade == kLastDecade ? -4
                                                                : 0))},
                      {"y", number(kHeight - 9)},
                      {"text-anchor", anchor}});
    }
}

void drawLegend(Markup* out, double x, const QString& text, const char* kind) {
    out->leaf("rect", {{"x", number(x)}, {"y", "8"}, {"width", "16"}, {"height", "16"}, {"class", kind}});
    out->element("text", text, {{"x", number(x + 22)}, {"y", "23"}});
}

}  // namespace

std::vector<double> residualLengthsPx(const vq::SolutionEvidence& evidence, const Eigen::Matrix3d& rotation) {
    std::vector<double> lengths;
    for (const Vector& vector : vectorsOf(evidence, rotation))
        lengths.push_back(vector.residual.norm());
    return lengths;
}

double medianPx(std::vector<double> lengthsPx) {
    if (lengthsPx.empty()) return 0;
    const auto middle = lengthsPx.begin() + static_cast<std::ptrdiff_t>(lengthsPx.size() / 2);
    std::nth_element(lengthsPx.begin(), middle, lengthsPx.end());
    return *middle;
}

double exaggeration(const vq::SolutionEvidence& evidence, const Eigen::Matrix3d& rotation) {
    const double median = std::max(medianPx(residualLengthsPx(evidence, rotation)), kSmallestMedianPx);
    const double wanted = std::max(1.0, kMedianVectorShare * evidence.projection.cameras.infrared.width / median);
    const double power = std::pow(10.0, std::floor(std::log10(wanted)));
    const double mantissa = wanted / power;
    return power * (mantissa < 1.5 ? 1 : mantissa < 3.5 ? 2 : mantissa < 7.5 ? 5 : 10);
}

void drawResiduals(Markup* out, const vq::SolutionEvidence& evidence, const Eigen::Matrix3d& rotation) {
    const double width = evidence.projection.cameras.infrared.width;
    const double height = evidence.projection.cameras.infrared.height;
    const double factor = exaggeration(evidence, rotation), longest = kLongestVectorShare * width;
    openPicture(out, width, height, "Residual vectors over the infrared image");
    if (!evidence.infrared.empty()) {
        out->leaf("image", {{"href", dataUri(smallInfrared(evidence, kBackgroundWidth))},
                            {"width", number(width)},
                            {"height", number(height)},
                            {"opacity", "0.35"}});
    }
    const std::vector<Vector> vectors = vectorsOf(evidence, rotation);
    const std::size_t count = std::min(vectors.size(), kMaxVectors);
    for (std::size_t i = 0; i < count; ++i)
        drawVector(out, vectors[i * vectors.size() / count], factor, longest, "single");
    for (const Vector& median : medianVectors(vectors, width, height)) {
        out->leaf("circle", {{"cx", number(median.from.x())}, {"cy", number(median.from.y())}, {"r", "3.5"}});
        drawVector(out, median, factor, longest, "median");
    }
    out->close();
}

void drawHistogram(Markup* out, const std::vector<double>& storedPx, const std::vector<double>& newPx) {
    const std::array<int, kBars> stored = barsOf(storedPx), now = barsOf(newPx);
    const int highest = std::max({1, *std::max_element(stored.begin(), stored.end()),  //
                                  *std::max_element(now.begin(), now.end())});
    openPicture(out, kWidth, kHeight, "Histogram of residuals");
    drawDecades(out);
    drawBars(out, stored, highest, "old");
    drawBars(out, now, highest, "new");
    drawLegend(out, 4, QString("stored: %1 px").arg(medianPx(storedPx), 0, 'f', 2), "old");
    drawLegend(out, kWidth / 2 + 24, QString("new: %1 px").arg(medianPx(newPx), 0, 'f', 2), "new");
    out->close();
}

void drawCoverage(Markup* out, const vq::SolutionEvidence& evidence) {
    constexpr double kCellWidth = kWidth / vq::kAreaColumns, kCellHeight = kHeight / vq::kAreaRows;
    openPicture(out, kWidth, kHeight, "Matches in each area of the infrared image");
    const auto counts = evidence.matchesPerArea();
    for (std::size_t i = 0; i < counts.size(); ++i) {
        const std::size_t column = i % vq::kAreaColumns, row = i / vq::kAreaColumns;
        const double x = static_cast<double>(column) * kCellWidth, y = static_cast<double>(row) * kCellHeight;
        const char* kind = counts[i] < kThinArea ? "thin" : counts[i] < kFullArea ? "some" : "full";
        out->leaf("rect", {{"x", number(x + 1)},
                           {"y", number(y + 1)},
                           {"width", number(kCellWidth - 2)},
                           {"height", number(kCellHeight - 2)},
                           {"class", kind}});
        out->element("text", QString::number(counts[i]),
                     {{"x", number(x + kCellWidth / 2)},
                      {"y", number(y + kCellHeight / 2 + 9)},
                      {"text-anchor", "middle"},
                      {"class", "count"}});
    }
    out->close();
}

}  // namespace fieldcal
