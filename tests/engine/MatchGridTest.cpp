#include "engine/MatchGrid.h"
#include "engine/RandomIndices.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <set>

namespace vq::testing {
namespace {

class Grid : public ::testing::Test {
protected:
    /// Adds distinct points inside a cell of an image of 628 x 468; the colour point's x identifies each of them.
    void prepare(int column, int row, int count) {
        for (int i = 0; i < count; ++i) {
            infrared_.emplace_back(cv::Point(column * 157 + i % 10, row * 156 + i / 10));
            colour_.emplace_back(static_cast<float>(nextId_++), static_cast<float>(row * 4 + column));
        }
    }
    void addPair() {
        grid_.beginPair();
        grid_.add(colour_, infrared_, 628, 468);
    }
    std::vector<cv::Point2f> colour_, infrared_;
    int nextId_ = 0;
    MatchGrid grid_{4, 3, 10};
};

TEST(RandomIndices, AreDistinctUniformAndComeFromRand) {
    std::vector<int> drawn, hits(6);
    for (unsigned seed = 0; seed < 3000; ++seed) {
        std::srand(seed);
        drawDistinctIndices(4, 6, &drawn);
        EXPECT_EQ(std::set<int>(drawn.begin(), drawn.end()).size(), 4U);
        for (const int index : drawn)
            ++hits.at(static_cast<std::size_t>(index));
        std::srand(seed);
        EXPECT_EQ(drawn.front(), std::rand() % 6);
    }
    EXPECT_GT(*std::min_element(hits.begin(), hits.end()), 1850) << "of 2000 expected";
}

TEST_F(Grid, CutsACellOnlyBeyondThirtyAndCountsBefore) {
    int held = 0;
    // The number of matches that each pair adds to the cell, and the number in the cell afterwards.
    for (const auto& [added, kept] : {std::pair{9, 9}, {1, 10}, {20, 30}, {1, 30}, {200, 30}}) {
        colour_.clear(), infrared_.clear();
        prepare(2, 1, added);
        addPair();
        held += added;
        const auto cell = grid_.cell(2, 1);
        EXPECT_EQ(static_cast<int>(cell.size()), kept);
        EXPECT_EQ(grid_.cellCounts(), (std::vector<int>{0, 0, 0, 0, 0, 0, held, 0, 0, 0, 0, 0}));
        EXPECT_EQ(grid_.underfilledCells(), held < 10 ? 12 : 11);
        held = kept;
    }
    std::set<float> originals;
    for (const CellCorrespondence& pair : grid_.cell(2, 1))
        originals.insert(pair.colourX);
    EXPECT_EQ(originals.size(), 30U);
    grid_.clear();
    EXPECT_TRUE(grid_.cell(2, 1).empty());
}

TEST_F(Grid, PutsPointsIntoTheirCellAndTheRestIntoTheLast) {
    struct Case {
        cv::Point2f point;
        int column, row;
    };
    // 630 x 470 in 4 x 3 gives cells of 157 x 156, with a remainder of two pixels in each direction.
    const Case cases[] = {{{0, 0}, 0, 0},   {{156.9F, 155.9F}, 0, 0}, {{157, 156}, 1, 1}, {{627.9F, 467.9F}, 3, 2},
                          {{628, 0}, 3, 0}, {{629.9F, 469.9F}, 3, 2}, {{0, 469}, 0, 2}};
    for (const Case& test : cases) {
        grid_.clear();
        grid_.add({{1, 2}}, {test.point}, 630, 470);
        ASSERT_EQ(grid_.cell(test.column, test.row).size(), 1U) << test.point;
        const CellCorrespondence pair = grid_.cell(test.column, test.row)[0];
        EXPECT_TRUE(pair.colourX == 1 && pair.colourY == 2) << "colour first";
        EXPECT_EQ(cv::Point2f(pair.infraredX, pair.infraredY), test.point);
    }
}

TEST_F(Grid, SamplesDistinctPairsOfEachCellRowByRow) {
    prepare(1, 0, 20), prepare(3, 0, 7), prepare(0, 2, 3);
    addPair();
    std::vector<cv::Point2f> infrared(5), colour(5);
    std::set<float> everDrawn;
    for (unsigned seed = 1; seed <= 50; ++seed) {
        std::srand(seed);
        grid_.sample(7, &infrared, &colour);
        ASSERT_TRUE(infrared.size() == 17 && colour.size() == 17) << "7 + 7 + 3, replacing what was there";
        std::set<float> drawn;
        for (std::size_t i = 0; i < 17; ++i) {
            EXPECT_EQ(colour[i].y, i < 7 ? 1 : i < 14 ? 3 : 8);
            EXPECT_EQ(infrared[i], infrared_[static_cast<std::size_t>(colour[i].x)]) << "points stay together";
            drawn.insert(colour[i].x);
        }
        EXPECT_EQ(drawn.size(), 17U);
        everDrawn.insert(drawn.begin(), drawn.end());
    }
    EXPECT_EQ(everDrawn.size(), 30U);
}

}  // namespace
}  // namespace vq::testing
