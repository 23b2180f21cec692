#include "simulator/synthesis/Rig.h"
#include "simulator/world/Cameras.h"
#include "simulator/world/World.h"
#include "simulator/world/Worlds.h"
#include "tests/world/Scenes.h"

#include <gmock/gmock.h>

#include <cmath>

namespace fieldcal::world {
namespace {

using synthesis::Spectrum;

float visible(const Spectrum& s) {
    return 0.3F * s.red + 0.59F * s.green + 0.11F * s.blue;
}

TEST(WorldLight, SidesAwayFromTheSunAndShadowsAreDarkerAndBluer) {
    TestScene scene;
    const auto grey = scene.even({0.4F, 0.4F, 0.4F, 0.4F});
    addQuad(scene.mesh, {{-50, 0, -50}, {100, 0, 0}, {0, 0, 100}}, grey);
    addBox(scene.mesh, {{0, 0, 5}, {2, 2, 2}}, grey);
    const World world = scene.finish();
    const auto seen = [&](const cv::Vec3f& from, const cv::Vec3f& to) {
        const Sample s = world.trace(from, unit(to - from));
        EXPECT_NEAR(s.distance, cv::norm(to - from), 1e-3);
        return s.radiance;
    };
    const Spectrum ground = seen({0, -4, 0}, {-3, 0, 5}), shadow = seen({4, -4, 0}, {1.3F, 0, 5.2F});
    const Spectrum litSide = seen({-6, -2, 5}, {-1, -1, 5}), darkSide = seen({6, -2, 5}, {1, -1, 5});
    EXPECT_LT(visible(shadow), 0.4F * visible(ground));
    EXPECT_LT(visible(darkSide), 0.5F * visible(litSide));
    EXPECT_GT(shadow.blue / shadow.red, 1.2F * ground.blue / ground.red);
}

TEST(WorldLight, GlassMirrorsWhatStandsBeforeIt) {
    TestScene scene;
    const auto glass = scene.material<Glass>(Spectrum{0.02F, 0.02F, 0.02F, 0.02F});
    const auto lamp = scene.material<Glow>(2.0F);
    addQuad(scene.mesh, {{-5, -5, 4}, {10, 0, 0}, {0, 10, 0}}, glass);
    addBall(scene.mesh, {2, 0, 0}, {0.2F, 0.2F, 0.2F}, 8, lamp);
    const World world = scene.finish();
    const float lampSeen = visible(world.trace({0, 0, 0}, unit({1, 0, 4})).radiance);
    const float besides = world.trace({0, 0, 0}, unit({-1, 0, 4})).radiance.infrared;
    EXPECT_GT(lampSeen, 0.3F);
    EXPECT_LT(besides, 0.3F);
}

TEST(WorldBands, FoliageIsBrightAndTheSkyDarkInTheNearInfrared) {
    TestScene scene;
    const auto leaf = scene.material<Leaf>(synthesis::materials::kLeaf.reflectance);
    const auto plaster = scene.even(synthesis::materials::kPlasterWhite.reflectance);
    addQuad(scene.mesh, {{-2, -1, 3}, {2, 0, 0}, {0, 2, 0}, {0, 0.9F}}, leaf);
    addQuad(scene.mesh, {{0, -1, 3}, {2, 0, 0}, {0, 2, 0}}, plaster);
    const World world = scene.finish();
    const auto ratio = [&](const cv::Vec3f& direction) {
        const Spectrum s = world.trace({0, 0, 0}, unit(direction)).radiance;
        return s.infrared / visible(s);
    };
    EXPECT_GT(ratio({-1, 0, 3}), 3);
    EXPECT_THAT(ratio({1, 0, 3}), testing::AllOf(testing::Gt(0.7F), testing::Lt(1.4F)));
    EXPECT_LT(ratio({0, -1, 1}), 0.5F);
    EXPECT_TRUE(std::isinf(world.trace({0, 0, 0}, unit({0, -1, 1})).distance));
}

TEST(Worlds, EachIsBuiltAndTheSameSeedGivesTheSameBytes) {
    const auto rig = synthesis::drawRig(3, {});
    const Cameras cameras(rig, {1, 1, 1});
    for (const auto& name : worldNames()) {
        SCOPED_TRACE(name);
        const auto take = [&](std::uint64_t seed) {
            const auto stage = buildWorld(name, seed);
            return cameras.take(*stage->world, {}, {}, {}, 1);
        };
        const auto once = take(7), again = take(7), other = take(8);
        const auto bytes = [](const ImageFrame& f) {
            return std::vector<std::uint8_t>(f.bytes(), f.bytes() + f.byteCount());
        };
        EXPECT_EQ(bytes(once.infrared), bytes(again.infrared));
        EXPECT_EQ(bytes(once.third), bytes(again.third));
        EXPECT_EQ(bytes(once.depth), bytes(again.depth));
        EXPECT_NE(bytes(once.third), bytes(other.third));
    }
    EXPECT_EQ(buildWorld("nowhere", 1), nullptr);
}

TEST(Worlds, FoliageSwaysByDecimetresAndComesBackWhileTheGroundRests) {
    const auto stage = buildWorld("moving", 2);
    const auto depthAt = [&](float seconds) {
        const auto rays = synthesis::infraredRays(synthesis::drawRig(3, {}).infrared, 1);
        return renderImage(*stage->world, rays, {{}, seconds, true, 0}).depth;
    };
    const cv::Mat_<float> start = depthAt(0), later = depthAt(1.1F), period = depthAt(Sway::kPeriodSeconds);
    EXPECT_LT(cv::countNonZero(cv::abs(start - period) > 0.01), 50);
    EXPECT_GT(cv::countNonZero(cv::abs(start - later) > 0.01), 3000);
    const cv::Rect ground(0, start.rows - 60, start.cols, 60);
    EXPECT_LT(cv::countNonZero(cv::abs(start(ground) - later(ground)) > 0.01), ground.area() / 10);
}

TEST(Worlds, MountainsAreNeverNearerThanAHundredMetres) {
    for (std::uint64_t seed : {1U, 2U, 3U}) {
        const auto stage = buildWorld("mountains", seed);
        synthesis::Random random(seed, "looking");
        for (int i = 0; i < 20000; ++i) {
            const cv::Vec3f direction(random.between(-1, 1), random.between(-1, 1), random.between(-1, 1));
            ASSERT_GT(stage->world->trace({0, 0, 0}, unit(direction)).distance, 100) << direction;
        }
    }
}

}  // namespace
}  // namespace fieldcal::world
