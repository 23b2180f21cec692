#include "engine/MatchGrid.h"
#include "engine/RandomIndices.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <set>

namespace vq::testing {
namespace {

constexpr int kWidth = 628, kHeight = 468;

/// The i-th of many distinct points inside a cell; its colour point tells it apart from all others.
struct Lists {
    std::vector<cv::Point2f> colour, infrared;

    void fill(int column, int row, int count) {
        for (int i = 0; i < count; ++i) {
            infrared.emplace_back(static_cast<float>(column * (kWidth / 4) + i % 10),
                                  static_cast<float>(row * (kHeight / 3) + i / 10));
            colour.emplace_back(static_cast<float>(colour.size()), static_cast<float>(row * 4 + column));
        }
    }
    void addTo(MatchGrid* grid) const {
        grid->beginPair();
        grid->add(colour, infrared, kWidth, kHeight);
    }
};

std::set<float> identities(const std::vector<CellCorrespondence>& cell) {
    std::set<float> all;
    for (const CellCorrespondence& pair : cell)
        all.insert(pair.colourX);
    return all;
}

TEST(RandomIndices, AreDistinctUniformAndComeFromRand) {
    std::vector<int> drawn, again;
    std::vector<int> hits(6);
    for (unsigned seed = 0; seed < 3000; ++seed) {
        std::srand(seed);
        drawDistinctIndices(4, 6, &drawn);
        ASSERT_EQ(std::set<int>(drawn.begin(), drawn.end()).size(), 4U);
        for (const int index : drawn)
            ++hits.at(static_cast<std::size_t>(index));
        std::srand(seed);
        EXPECT_EQ(drawn.front(), std::rand() % 6);
    }
    for (const int count : hits)
        EXPECT_NEAR(count, 2000, 150);
    for (const auto& [count, size, expected] : {std::tuple{5, 3, 3U}, {3, 0, 0U}, {0, 3, 0U}}) {
        drawDistinctIndices(count, size, &drawn);
        EXPECT_EQ(drawn.size(), expected);
    }
}

TEST(MatchGrid, CutsACellOnlyBeyondThirty) {
    for (const auto& [count, kept] : {std::pair{9, 9U}, {10, 10U}, {30, 30U}, {31, 30U}, {200, 30U}}) {
        MatchGrid grid(4, 3, 10);
        Lists lists;
        lists.fill(2, 1, count);
        lists.addTo(&grid);
        EXPECT_EQ(grid.cell(2, 1).size(), kept);
        EXPECT_EQ(identities(grid.cell(2, 1)).size(), kept) << "distinct originals";
        EXPECT_EQ(grid.cellCounts()[1 * 4 + 2], count) << "counted before the cut";
        EXPECT_EQ(grid.underfilledCells(), count < 10 ? 12 : 11);
    }
}

TEST(MatchGrid, KeepsRecordsBetweenPairsUntilCleared) {
    MatchGrid grid(4, 3, 10);
    Lists six;
    six.fill(0, 0, 6);
    six.addTo(&grid);
    EXPECT_EQ(grid.underfilledCells(), 12);
    six.addTo(&grid);
    EXPECT_EQ(grid.cell(0, 0).size(), 12U);
    EXPECT_EQ(grid.underfilledCells(), 11) << "counts every pair anew, over what the cells hold";
    EXPECT_EQ(grid.cellCounts().size(), 12U);
    grid.clear();
    EXPECT_TRUE(grid.cell(0, 0).empty());
}

TEST(MatchGrid, PutsPointsIntoTheirCellAndTheRestIntoTheLast) {
    struct Case {
        float x, y;
        int column, row;
    };
    // 630 x 470 in 4 x 3 gives cells of 157 x 156, and a rest of two pixels each way.
    for (const Case& test : {Case{0, 0, 0, 0},
                             {156.9F, 155.9F, 0, 0},
                             {157, 156, 1, 1},
                             {627.9F, 467.9F, 3, 2},
                             {628, 0, 3, 0},
                             {629.9F, 469.9F, 3, 2},
                             {0, 469, 0, 2}}) {
        MatchGrid grid(4, 3, 10);
        grid.add({{1, 2}}, {{test.x, test.y}}, 630, 470);
        ASSERT_EQ(grid.cell(test.column, test.row).size(), 1U) << test.x << ", " << test.y;
        const CellCorrespondence pair = grid.cell(test.column, test.row)[0];
        EXPECT_EQ(pair.colourX, 1);
        EXPECT_EQ(pair.colourY, 2);
        EXPECT_EQ(pair.infraredX, test.x);
        EXPECT_EQ(pair.infraredY, test.y);
    }
}

TEST(MatchGrid, SamplesDistinctPairsOfEachCellRowByRow) {
    MatchGrid grid(4, 3, 10);
    Lists lists;
    lists.fill(1, 0, 20);
    lists.fill(3, 0, 7);
    lists.fill(0, 2, 3);
    lists.addTo(&grid);
    std::vector<cv::Point2f> infrared(5), colour(5);
    std::set<float> everDrawn;
    for (unsigned seed = 1; seed <= 50; ++seed) {
        std::srand(seed);
        grid.sample(7, &infrared, &colour);
        ASSERT_EQ(infrared.size(), 17U) << "7 + 7 + 3, replacing what was there";
        ASSERT_EQ(colour.size(), 17U);
        std::set<float> drawn;
        for (std::size_t i = 0; i < 17; ++i) {
            const int cell = i < 7 ? 1 : i < 14 ? 3 : 8;
            EXPECT_EQ(static_cast<int>(colour[i].y), cell);
            EXPECT_EQ(infrared[i], lists.infrared[static_cast<std::size_t>(colour[i].x)]) << "points stay together";
            drawn.insert(colour[i].x);
        }
        EXPECT_EQ(drawn.size(), 17U);
        everDrawn.insert(drawn.begin(), drawn.end());
    }
    EXPECT_EQ(everDrawn.size(), 30U);
}

}  // namespace
}  // namespace vq::testing
