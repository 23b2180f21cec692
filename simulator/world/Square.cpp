#include "simulator/world/Building.h"
#include "simulator/world/GroundMaterials.h"
#include "simulator/world/Materials.h"
#include "simulator/world/Plants.h"
#include "simulator/world/Shapes.h"
#include "simulator/world/StreetThings.h"

#include <cmath>

namespace fieldcal::world {

namespace {

constexpr float quarter = 1.5707963F;

struct Plan {
    float eye = 1.7F;    ///< height above the paving
    float half = 26.0F;  ///< from the viewer to the fronts
};

cv::Vec3f onGround(const Plan& plan, float distance, float angle) {
    return {distance * std::sin(angle), plan.eye, distance * std::cos(angle)};
}

/// Houses along one side of the square, with a lane between some.
void buildSide(Builder& b, const Plan& plan, int side) {
    const float angle = quarter * static_cast<float>(side);
    const cv::Vec3f along(std::cos(angle), 0, -std::sin(angle)), away(std::sin(angle), 0, std::cos(angle));
    const float half = plan.half * b.random.between(0.85F, 1.3F);
    float from = -half;
    while (from < half) {
        House house;
        house.style = synthesis::drawFacadeStyle(b.random);
        house.length = b.random.between(8, 18);
        house.height = house.style.storey * static_cast<float>(2 + b.random.index(4)) + 0.8F;
        house.roofRise = b.random.between(1.5F, 4.5F);
        house.along = along;
        house.corner = away * (half + b.random.between(0, 0.8F)) + along * from + cv::Vec3f(0, plan.eye, 0);
        addHouse(b, house);
        from += house.length + (b.random.chance(0.25) ? b.random.between(2, 6) : 0);
    }
}

/// Taller houses behind, seen through the lanes and over the roofs.
void buildBehind(Builder& b, const Plan& plan) {
    for (int i = 0; i < 16; ++i) {
        const float angle = 0.39F * static_cast<float>(i) + b.random.between(-0.1F, 0.1F);
        House house;
        house.style = synthesis::drawFacadeStyle(b.random);
        house.length = b.random.between(12, 26);
        house.height = b.random.between(12, 26);
        house.along = {std::cos(angle), 0, -std::sin(angle)};
        house.corner =
            onGround(plan, plan.half * b.random.between(2.2F, 3.5F), angle) - house.along * (house.length / 2);
        addHouse(b, house);
    }
}

void plantTrees(Builder& b, const Plan& plan, int count) {
    for (int i = 0; i < count; ++i) {
        const auto bark = b.material<Solid>(synthesis::materials::bark, *b.noise, Solid::Finish{0.2F, 0, 0.4F});
        synthesis::Spectrum green = synthesis::materials::leaf.reflectance;
        green.red *= b.random.between(0.7F, 1.7F);
        const auto leaf = b.material<Leaf>(green.scaled(b.random.between(0.8F, 1.3F), b.random.between(0.85F, 1.1F)));
        Tree tree;
        tree.height = b.random.between(5, 10);
        tree.crownRadius = tree.height * b.random.between(0.24F, 0.36F);
        tree.leaves = 9000;
        tree.leafSize = b.random.between(0.15F, 0.24F);
        const float angle = 6.2832F * (static_cast<float>(i) + b.random.between(0, 0.9F)) / static_cast<float>(count);
        tree.foot = onGround(plan, b.random.between(8.5F, plan.half * 0.85F), angle);
        addTree(b.mesh, tree, {bark, leaf}, b.random);
    }
}

void standThings(Builder& b, const Plan& plan) {
    const auto somewhere = [&](float nearest, float farthest) {
        return onGround(plan, b.random.between(nearest, farthest), b.random.between(0, 6.2832F));
    };
    const auto anyTurn = [&] { return b.random.between(0, 6.2832F); };
    for (int i = 0; i < 11; ++i)
        addCar(b, somewhere(plan.half * 0.55F, plan.half * 0.9F),
               quarter * static_cast<float>(b.random.index(4)) + b.random.between(-0.05F, 0.05F));
    for (int i = 0; i < 8; ++i)
        addLamp(b, somewhere(7, 22));
    for (int i = 0; i < 6; ++i) {
        const float angle = anyTurn();
        addSign(b, onGround(plan, b.random.between(6, 18), angle), -angle + b.random.between(-0.6F, 0.6F));
    }
    for (int i = 0; i < 12; ++i)
        addFurniture(b, somewhere(5, 16), anyTurn());
}

Paving::Stones drawStones(synthesis::Random& random) {
    Paving::Stones stones;
    const bool cobbles = random.chance(0.4);
    if (cobbles) stones = {synthesis::materials::stone, 0.12F, 0.14F, 0.012F, 0.16F};
    if (!cobbles) stones.width = random.between(0.3F, 0.7F), stones.length = stones.width * random.between(1, 1.8F);
    return stones;
}

}  // namespace

std::unique_ptr<Stage> buildSquare(std::uint64_t seed) {
    Builder b(seed, "square");
    b.drawDaylight();
    b.daylight.ridgeHeight = 0.09F;
    Plan plan;
    plan.eye = b.random.between(1.6F, 2.6F);
    plan.half = b.random.between(20, 30);
    const auto paving = b.material<Paving>(drawStones(b.random), *b.noise);
    addHeightField(
        b.mesh, {0.05F, 300, 64, 24}, [&](float, float) { return -plan.eye; }, paving);
    for (int side = 0; side < 4; ++side)
        buildSide(b, plan, side);
    buildBehind(b, plan);
    plantTrees(b, plan, 14);
    standThings(b, plan);
    return b.finish();
}

}  // namespace fieldcal::world
