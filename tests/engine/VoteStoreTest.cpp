#include "engine/RotationVoteStore.h"
#include "tests/engine/Matchers.h"

#include <gtest/gtest.h>

namespace vq::testing {
namespace {

const Eigen::Vector3d kToleranceDeg(0.25, 0.25, 0.25);
const Eigen::Vector3d kHeadDeg(1.0, 2.0, -1.0);
constexpr float kHeadScore = 0.5F;

TEST(VoteStore, CandidatesMatchByTwoAnglesAndTheScore) {
    struct Case {
        Eigen::Vector3d offsetDeg;
        float score;
        bool joins;
        const char* what;
    };
    const Case cases[] = {
        {{0, 0, 0}, kHeadScore, true, "the same"},
        {{0, 100, 0}, kHeadScore, true, "the second angle is not compared"},
        {{0.249, 0, -0.249}, kHeadScore, true, "within both tolerances"},
        {{0.251, 0, 0}, kHeadScore, false, "first angle"},
        {{0, 0, -0.251}, kHeadScore, false, "third angle"},
        // |0.5 - s| <= (0.5 + s) * 0.01 holds up to s = 0.505 / 0.99 and down to 0.495 / 1.01.
        {{0, 0, 0}, 0.5101F, true, "score nearly too high"},
        {{0, 0, 0}, 0.5102F, false, "score too high"},
        {{0, 0, 0}, 0.49012F, true, "score nearly too low"},
        {{0, 0, 0}, 0.49F, false, "score too low"},
    };
    for (const Case& test : cases) {
        RotationVoteStore store(1, kToleranceDeg);
        store.add(kHeadDeg * kDeg, kHeadScore, 0.1F, 84);
        store.add((kHeadDeg + test.offsetDeg) * kDeg, test.score, 0.2F, 80);
        ASSERT_NE(store.best(), nullptr);
        EXPECT_EQ(store.best()->votes, test.joins ? 2 : 1) << test.what;
        EXPECT_EQ(store.best()->anglesRad, kHeadDeg * kDeg) << test.what;
    }
}

TEST(VoteStore, ScoreBoundIsInclusive) {
    // With both scores 0 the bound is 0, and so is the difference; with one negative nothing can match.
    RotationVoteStore store(1, kToleranceDeg);
    store.add(kHeadDeg * kDeg, 0.0F, 0.1F, 84);
    store.add(kHeadDeg * kDeg, 0.0F, 0.1F, 84);
    EXPECT_EQ(store.best()->votes, 2);
    store.clear();
    store.add(kHeadDeg * kDeg, -1.0F, 0.1F, 84);
    store.add(kHeadDeg * kDeg, -1.0F, 0.1F, 84);
    EXPECT_EQ(store.best()->votes, 1);
}

TEST(VoteStore, LightCandidatesNeitherHeadNorJoin) {
    RotationVoteStore store(3, kToleranceDeg);
    store.add(kHeadDeg * kDeg, kHeadScore, 0.1F, 2);
    EXPECT_EQ(store.best(), nullptr);
    store.add(kHeadDeg * kDeg, kHeadScore, 0.1F, 3);
    store.add(kHeadDeg * kDeg, kHeadScore, 0.1F, 2);
    store.add(kHeadDeg * kDeg, kHeadScore, 0.1F, 0);
    EXPECT_EQ(store.best()->votes, 1);
    EXPECT_EQ(store.best()->weight, 3);
}

TEST(VoteStore, BestIsTheFirstOfEquals) {
    RotationVoteStore store(1, kToleranceDeg);
    for (const double firstDeg : {0.0, 3.0, 6.0, 6.0, 3.0})
        store.add(Eigen::Vector3d(firstDeg, 0, 0) * kDeg, kHeadScore, 0.1F, 10);
    EXPECT_EQ(store.best()->votes, 2);
    EXPECT_DOUBLE_EQ(store.best()->anglesRad[0], 3.0 * kDeg);
    store.clear();
    EXPECT_EQ(store.best(), nullptr);
}

TEST(VoteStore, AnglesAboutTheReferenceDoNotWrap) {
    RotationVoteStore store(1, kToleranceDeg);
    store.setReference(Eigen::Vector3d(0, 0, 180) * kDeg);
    store.add(Eigen::Vector3d(0, 0, 179.95) * kDeg, kHeadScore, 0.1F, 10);
    store.add(Eigen::Vector3d(0, 0, -179.95) * kDeg, kHeadScore, 0.1F, 10);
    EXPECT_EQ(store.best()->votes, 2);
}

TEST(VoteStore, UnsetAnglesMatchNothing) {
    RotationVoteStore store(1, kToleranceDeg);
    const Eigen::Vector3d unset = Eigen::Vector3d::Constant(std::nan(""));
    store.add(unset, kHeadScore, 0.1F, 10);
    store.add(unset, kHeadScore, 0.1F, 10);
    EXPECT_EQ(store.best()->votes, 1);
}

}  // namespace
}  // namespace vq::testing
