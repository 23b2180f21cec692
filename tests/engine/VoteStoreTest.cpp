#include "engine/RotationVoteStore.h"
#include "tests/engine/Matchers.h"

#include <gtest/gtest.h>

namespace vq::testing {
namespace {

class VoteStore : public ::testing::Test {
protected:
    void add(const Eigen::Vector3d& anglesDeg, float score = 0.5F, int weight = 84) {
        store_.add(anglesDeg * kDeg, score, 0.1F, weight);
    }
    RotationVoteStore store_{3, {0.25, 0.25, 0.25}};
};

TEST_F(VoteStore, CandidatesMatchByTwoAnglesAndTheScore) {
    struct Case {
        Eigen::Vector3d offsetDeg;
        float score;
        bool joins;
    };
    // The scores may differ by a hundredth of their sum: about 0.5 from 0.495 / 1.01 to 0.505 / 0.99.
    const Case cases[] = {{{0, 0, 0}, 0.5F, true},      {{0, 100, 0}, 0.5F, true},     {{0.249, 0, -0.249}, 0.5F, true},
                          {{0.251, 0, 0}, 0.5F, false}, {{0, 0, -0.251}, 0.5F, false}, {{0, 0, 0}, 0.5101F, true},
                          {{0, 0, 0}, 0.5102F, false},  {{0, 0, 0}, 0.49012F, true},   {{0, 0, 0}, 0.49F, false}};
    const Eigen::Vector3d headDeg(1.0, 2.0, -1.0);
    for (const Case& test : cases) {
        store_.clear();
        add(headDeg);
        add(headDeg + test.offsetDeg, test.score);
        EXPECT_EQ(store_.best()->votes, test.joins ? 2 : 1) << test.offsetDeg.transpose() << ", " << test.score;
        EXPECT_EQ(store_.best()->anglesRad, headDeg * kDeg);
    }
    // The bound is inclusive: 0 for two scores of 0. Two of −1 can never match.
    for (const auto& [score, votes] : {std::pair{0.0F, 2}, {-1.0F, 1}}) {
        store_.clear();
        add(headDeg, score);
        add(headDeg, score);
        EXPECT_EQ(store_.best()->votes, votes) << score;
    }
}

TEST_F(VoteStore, LightCandidatesNeitherHeadNorJoin) {
    add({0, 0, 0}, 0.5F, 2);
    EXPECT_EQ(store_.best(), nullptr);
    for (const int weight : {3, 2, 0})
        add({0, 0, 0}, 0.5F, weight);
    EXPECT_EQ(store_.best()->votes, 1);
}

TEST_F(VoteStore, BestIsTheFirstOfEquals) {
    for (const double firstDeg : {0.0, 3.0, 6.0, 6.0, 3.0})
        add({firstDeg, 0, 0});
    EXPECT_EQ(store_.best()->votes, 2);
    EXPECT_DOUBLE_EQ(store_.best()->anglesRad[0], 3.0 * kDeg);
}

TEST_F(VoteStore, AnglesAboutTheReferenceDoNotWrap) {
    store_.setReference(Eigen::Vector3d(0, 0, 180) * kDeg);
    add({0, 0, 179.95});
    add({0, 0, -179.95});
    EXPECT_EQ(store_.best()->votes, 2);
}

}  // namespace
}  // namespace vq::testing
