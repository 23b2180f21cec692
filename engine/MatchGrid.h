#pragma once

#include <opencv2/core.hpp>

#include <mutex>
#include <vector>

namespace vq {

/// One correspondence. The colour point is in pixels of the colour camera's model.
struct CellCorrespondence {
    float colourX, colourY, infraredX, infraredY;
};

/// Verified correspondences of an attempt, sorted by the area of the infrared image in which they lie, so that no part
/// of the image outweighs the others. Cells keep their correspondences from pair to pair until `clear`. Every operation
/// takes the grid's own lock.
class MatchGrid {
public:
    MatchGrid(int columns, int rows, int cellMinimum);

    /// Zeroes the per-pair counts; the cells stay.
    void beginPair();
    /// Sorts the pairs into the cells of an image of the given size, counts the under-filled cells and reduces each
    /// cell that holds more than three times the minimum to that number, drawn at random. Points beyond the last whole
    /// cell are assigned to the last cell; points outside the image are ignored.
    void add(const std::vector<cv::Point2f>& colourPoints, const std::vector<cv::Point2f>& infraredPoints,
             int infraredWidth, int infraredHeight);
    void clear();

    /// Draws up to `perCell` random correspondences from each cell, row by row.
    void sample(int perCell, std::vector<cv::Point2f>* infraredPoints, std::vector<cv::Point2f>* colourPoints) const;

    int columns() const { return columns_; }
    int rows() const { return rows_; }
    int underfilledCells() const;
    std::vector<int> cellCounts() const;  ///< number of correspondences per cell before the reduction, row by row
    std::vector<CellCorrespondence> cell(int column, int row) const;

private:
    void countAndCut();

    const int columns_;
    const int rows_;
    const int cellMinimum_;
    mutable std::mutex lock_;
    std::vector<std::vector<CellCorrespondence>> cells_;
    std::vector<int> cellCounts_;
    int underfilledCells_ = 0;
};

}  // namespace vq
