#include "engine/MatchGrid.h"

#include "engine/RandomIndices.h"

#include <algorithm>

namespace vq {

MatchGrid::MatchGrid(int columns, int rows, int cellMinimum)
    : columns_(columns), rows_(rows), cellMinimum_(cellMinimum), cells_(static_cast<std::size_t>(columns) * rows) {}

void MatchGrid::beginPair() {
    const std::lock_guard guard(lock_);
    cellCounts_.clear();
    underfilledCells_ = 0;
}

void MatchGrid::add(const std::vector<cv::Point2f>& colourPoints, const std::vector<cv::Point2f>& infraredPoints,
                    int infraredWidth, int infraredHeight) {
    const std::lock_guard guard(lock_);
    const int cellWidth = std::max(infraredWidth / columns_, 1);
    const int cellHeight = std::max(infraredHeight / rows_, 1);
    for (std::size_t i = 0; i < infraredPoints.size(); ++i) {
        const cv::Point2f& p = infraredPoints[i];
        const cv::Point2f& q = colourPoints[i];
        const bool inside =
            p.x >= 0 && p.y >= 0 && p.x < static_cast<float>(infraredWidth) && p.y < static_cast<float>(infraredHeight);
        if (!inside) continue;
        const int column = std::min(static_cast<int>(p.x) / cellWidth, columns_ - 1);
        const int row = std::min(static_cast<int>(p.y) / cellHeight, rows_ - 1);
        cells_[static_cast<std::size_t>(row) * columns_ + column].push_back({q.x, q.y, p.x, p.y});
    }
    countAndCut();
}

void MatchGrid::countAndCut() {
    const int limit = 3 * cellMinimum_;
    std::vector<int> kept;
    for (auto& cell : cells_) {
        const int size = static_cast<int>(cell.size());
        cellCounts_.push_back(size);
        if (size < cellMinimum_) ++underfilledCells_;
        if (size <= limit) continue;
        drawDistinctIndices(limit, size, &kept);
        std::vector<CellCorrespondence> cut;
        cut.reserve(kept.size());
        for (const int index : kept)
            cut.push_back(cell[static_cast<std::size_t>(index)]);
        cell = std::move(cut);
    }
}

void MatchGrid::clear() {
    const std::lock_guard guard(lock_);
    for (auto& cell : cells_)
        cell.clear();
}

void MatchGrid::sample(int perCell, std::vector<cv::Point2f>* infraredPoints,
                       std::vector<cv::Point2f>* colourPoints) const {
    const std::lock_guard guard(lock_);
    infraredPoints->clear();
    colourPoints->clear();
    std::vector<int> drawn;
    for (const auto& cell : cells_) {
        drawDistinctIndices(perCell, static_cast<int>(cell.size()), &drawn);
        for (const int index : drawn) {
            const CellCorrespondence& pair = cell[static_cast<std::size_t>(index)];
            infraredPoints->emplace_back(pair.infraredX, pair.infraredY);
            colourPoints->emplace_back(pair.colourX, pair.colourY);
        }
    }
}

int MatchGrid::underfilledCells() const {
    const std::lock_guard guard(lock_);
    return underfilledCells_;
}

std::vector<int> MatchGrid::cellCounts() const {
    const std::lock_guard guard(lock_);
    return cellCounts_;
}

std::vector<CellCorrespondence> MatchGrid::cell(int column, int row) const {
    const std::lock_guard guard(lock_);
    return cells_[static_cast<std::size_t>(row) * columns_ + column];
}

}  // namespace vq
