#include "render/DepthEdges.h"

#include <algorithm>
#include <cstdint>
#include <numeric>

namespace fieldcal {
namespace {

constexpr int kWidestGapPx = 12;     ///< without depth, beside a near object
constexpr int kMinPieces = 24;       ///< of a border
constexpr int kReachPx = 8;          ///< of the neighbourhood that tells whether a surface is upright
constexpr int kMinSamples = 12;      ///< of this neighbourhood
constexpr double kMinKnown = 0.9;    ///< share of this surface with depth; it is lower where depth fades with distance
constexpr double kBlindBand = 0.15;  ///< share of the width at either side, where one of the two imagers sees nothing
constexpr int kSmoothings = 3;       ///< of the steps that the pixel grid leaves in a slanted border

/// Of two known depths.
bool isStep(std::uint16_t a, std::uint16_t b) {
    return 5 * std::max(a, b) >= 6 * std::min(a, b);
}

/// Sums for a straight line through depths over rows.
struct RowFit {
    double count = 0, y = 0, z = 0, yy = 0, yz = 0;

    void add(double row, double depth) {
        ++count;
        y += row;
        z += depth;
        yy += row * row;
        yz += row * depth;
    }
    double slope() const { return (count * yz - y * z) / (count * yy - y * y); }
};

/// Depth without narrow gaps.
class Surface {
public:
    Surface(const ImageFrame16& depth, const CameraModel& camera)
        : camera_(camera),
          original_(depth.pixels()),
          width_(static_cast<int>(depth.width())),
          height_(static_cast<int>(depth.height())),
          depths_(depth.pixels(), depth.pixels() + std::size_t{depth.width()} * depth.height()) {
        for (int y = 0; y < height_; ++y)
            closeGaps(y * width_, 1, width_);
        for (int x = 0; x < width_; ++x)
            closeGaps(x, width_, height_);
    }
    int width() const { return width_; }
    int height() const { return height_; }
    std::uint16_t at(int x, int y) const { return depths_[static_cast<std::size_t>(y) * width_ + x]; }

    /// Returns whether a border runs between a pixel and its neighbour to the right (1, 0) or below (0, 1).
    bool isBorder(int x, int y, int right, int below) const {
        const std::uint16_t a = at(x, y), b = at(x + right, y + below);
        if (a != 0 && b != 0) return isStep(a, b);
        if (a == b) return false;
        return a != 0 ? endsHere(x, y, -right, -below) : endsHere(x + right, y + below, right, below);
    }

private:
    /// `dx`, `dy`: the direction from the end into the surface.
    bool endsHere(int x, int y, int dx, int dy) const {
        if (dx != 0 && isBlindBand(x, y, -dx)) return false;
        const int depth = at(x, y);
        RowFit fit;
        int known = 0;
        const int first = std::max(0, y - (dy > 0 ? 0 : kReachPx)),
                  last = std::min(height_ - 1, y + (dy < 0 ? 0 : kReachPx));
        for (int row = first; row <= last; ++row) {
            for (int i = -1; i <= 1; ++i) {
                const int column = x + (dx == 0 ? i : dx * (i + 1));
                if (column < 0 || column >= width_) continue;
                const int z = at(column, row);
                if (10 * std::abs(z - depth) >= depth) continue;
                fit.add(row - camera_.cy, z);
                if (original_[row * width_ + column] != 0) ++known;
            }
        }
        return known >= kMinSamples && known >= kMinKnown * fit.count && isUpright(fit, y - camera_.cy, depth);
    }
    /// Returns whether the height above the camera's axis changes more than the distance from one row to the next.
    bool isUpright(const RowFit& fit, double row, double depth) const {
        const double slope = fit.slope();
        return std::abs(depth + row * slope) > camera_.fy * std::abs(slope);
    }
    bool isBlindBand(int x, int y, int direction) const {
        const int edge = direction < 0 ? 0 : width_ - 1;
        if (std::abs(edge - x) > kBlindBand * width_) return false;
        for (int column = x + direction; column != edge; column += direction)
            if (at(column, y) != 0) return false;
        return true;
    }

    /// What a gap hides is the farther surface, so that the nearer one keeps its border.
    void closeGaps(int first, int stride, int count) {
        int last = -1;
        for (int i = 0; i < count; ++i) {
            const std::uint16_t depth = depths_[first + i * stride];
            if (depth == 0) continue;
            if (last >= 0 && i - last > 1 && i - last <= kWidestGapPx + 1) {
                const std::uint16_t hidden = std::max(depth, depths_[first + last * stride]);
                for (int gap = last + 1; gap < i; ++gap)
                    depths_[first + gap * stride] = hidden;
            }
            last = i;
        }
    }

    const CameraModel camera_;
    const std::uint16_t* original_;
    int width_, height_;
    std::vector<std::uint16_t> depths_;
};

/// The middle between two neighbouring pixels of which one is behind a border, and the next such places of the border.
struct Crossing {
    float x, y, z;
    int next[2] = {-1, -1};

    void connect(int other) { next[next[0] < 0 ? 0 : 1] = other; }
};

class Borders {
public:
    explicit Borders(const Surface& surface)
        : surface_(surface),
          right_(static_cast<std::size_t>(surface.width()) * surface.height(), -1),
          below_(right_.size(), -1) {
        for (int y = 0; y < surface.height(); ++y)
            for (int x = 0; x < surface.width(); ++x)
                cross(x, y);
        for (int y = 0; y + 1 < surface.height(); ++y)
            for (int x = 0; x + 1 < surface.width(); ++x)
                join(x, y);
    }

    void smooth() {
        for (int i = 0; i < kSmoothings; ++i) {
            const std::vector<Crossing> before = crossings_;
            for (Crossing& crossing : crossings_) {
                if (crossing.next[1] < 0) continue;
                const Crossing& a = before[crossing.next[0]];
                const Crossing& b = before[crossing.next[1]];
                crossing.x = 0.5F * crossing.x + 0.25F * (a.x + b.x);
                crossing.y = 0.5F * crossing.y + 0.25F * (a.y + b.y);
            }
        }
    }

    std::vector<DepthEdge> pieces() const {
        const std::vector<int> lengths = measure();
        std::vector<DepthEdge> edges;
        for (std::size_t i = 0; i < crossings_.size(); ++i) {
            if (lengths[i] < kMinPieces) continue;
            for (const int other : crossings_[i].next)
                if (other > static_cast<int>(i)) edges.push_back({point(crossings_[i]), point(crossings_[other])});
        }
        return edges;
    }

private:
    int index(int x, int y) const { return y * surface_.width() + x; }
    static std::array<float, 3> point(const Crossing& c) { return {c.x * c.z, c.y * c.z, c.z}; }

    void cross(int x, int y) {
        if (x + 1 < surface_.width()) right_[index(x, y)] = addIfBorder(x, y, 1, 0);
        if (y + 1 < surface_.height()) below_[index(x, y)] = addIfBorder(x, y, 0, 1);
    }
    int addIfBorder(int x, int y, int right, int below) {
        if (!surface_.isBorder(x, y, right, below)) return -1;
        const std::uint16_t a = surface_.at(x, y), b = surface_.at(x + right, y + below);
        const std::uint16_t nearer = a == 0 || b == 0 ? std::max(a, b) : std::min(a, b);
        crossings_.push_back({static_cast<float>(x) + 0.5F * static_cast<float>(right),
                              static_cast<float>(y) + 0.5F * static_cast<float>(below),
                              0.001F * static_cast<float>(nearer)});
        return static_cast<int>(crossings_.size()) - 1;
    }
    /// Joins the crossings between four neighbouring pixels. A crossing lies between two such groups, so it gets at
    /// most two neighbours.
    void join(int x, int y) {
        const int top = right_[index(x, y)], bottom = right_[index(x, y + 1)];
        const int left = below_[index(x, y)], right = below_[index(x + 1, y)];
        const bool fourMeet = top >= 0 && bottom >= 0 && left >= 0 && right >= 0;
        if (fourMeet) {
            joinBoth(top, left);
            joinBoth(bottom, right);
        } else if (!joinBoth(top, bottom) && !joinBoth(left, right)) {
            joinBoth(std::max(top, bottom), std::max(left, right));
        }
    }
    bool joinBoth(int a, int b) {
        if (a < 0 || b < 0) return false;
        crossings_[a].connect(b);
        crossings_[b].connect(a);
        return true;
    }
    /// Returns, for each crossing, the number of crossings on its border.
    std::vector<int> measure() const {
        std::vector<int> lengths(crossings_.size(), 0), border;
        for (std::size_t i = 0; i < crossings_.size(); ++i) {
            if (lengths[i] != 0) continue;
            border.assign(1, static_cast<int>(i));
            lengths[i] = 1;
            for (std::size_t k = 0; k < border.size(); ++k) {
                for (const int other : crossings_[border[k]].next) {
                    if (other < 0 || lengths[other] != 0) continue;
                    lengths[other] = 1;
                    border.push_back(other);
                }
            }
            for (const int one : border)
                lengths[one] = static_cast<int>(border.size());
        }
        return lengths;
    }

    const Surface& surface_;
    std::vector<int> right_, below_;  ///< for each pixel the crossing towards its neighbour, or -1
    std::vector<Crossing> crossings_;
};

}  // namespace

std::vector<DepthEdge> findDepthEdges(const ImageFrame16& depth, const CameraModel& camera) {
    if (depth.empty()) return {};
    const Surface surface(depth, camera);
    Borders borders(surface);
    borders.smooth();
    return borders.pieces();
}

}  // namespace fieldcal
