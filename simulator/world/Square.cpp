#include "simulator/world/GroundMaterials.h"
#include "simulator/world/Materials.h"
#include "simulator/world/Neighbourhood.h"
#include "simulator/world/Shapes.h"
#include "simulator/world/StreetThings.h"

namespace fieldcal::world {

namespace {

constexpr float kQuarterTurnRad = 1.5707963F;

void standThings(Builder& b, float eye, float half) {
    const auto anyAngle = [&] { return b.random.between(0, kFullTurnRad); };
    for (int i = 0; i < 11; ++i)
        addCar(b, onGround(eye, half * b.random.between(0.55F, 0.9F), anyAngle()),
               kQuarterTurnRad * static_cast<float>(b.random.index(4)) + b.random.between(-0.05F, 0.05F));
    for (int i = 0; i < 8; ++i)
        addLamp(b, onGround(eye, b.random.between(7, 22), anyAngle()));
    for (int i = 0; i < 6; ++i) {
        const float angle = anyAngle();
        addSign(b, onGround(eye, b.random.between(6, 18), angle), -angle + b.random.between(-0.6F, 0.6F));
    }
    for (int i = 0; i < 12; ++i)
        addFurniture(b, onGround(eye, b.random.between(5, 16), anyAngle()), anyAngle());
    addFountain(b, onGround(eye, b.random.between(6, 10), anyAngle()), b.random.between(1.6F, 2.6F));
}

Paving::Stones drawStones(synthesis::Random& random) {
    Paving::Stones stones;
    const bool cobbles = random.chance(0.4);
    if (cobbles) stones = {synthesis::materials::kStone, 0.12F, 0.14F, 0.012F, 0.16F};
    if (!cobbles) stones.width = random.between(0.3F, 0.7F), stones.length = stones.width * random.between(1, 1.8F);
    return stones;
}

void pave(Builder& b, float eye, const Paving::Stones& stones) {
    const auto paving = b.material<Paving>(stones, *b.noise);
    addHeightField(
        b.mesh, {0.05F, 300, 64, 24}, [&](float, float) { return -eye; }, paving);
}

}  // namespace

namespace {

std::unique_ptr<Stage> build(std::uint64_t seed, float lampsLit) {
    Builder b(seed, "square");
    b.lampsLit = lampsLit;
    b.drawDaylight();
    b.daylight.ridgeHeight = 0.09F;
    const float eye = b.random.between(1.6F, 2.6F), half = b.random.between(20, 30);
    pave(b, eye, drawStones(b.random));
    for (int side = 0; side < 4; ++side) {
        const float away = half * b.random.between(0.85F, 1.3F);
        buildRow(b, {kQuarterTurnRad * static_cast<float>(side), away, -away, away, eye});
    }
    buildFarHouses(b, eye, half * 2.8F, 16);
    for (int i = 0; i < 14; ++i) {
        const float angle = kFullTurnRad * (static_cast<float>(i) + b.random.between(0, 0.9F)) / 14;
        plantTree(b, onGround(eye, b.random.between(8.5F, half * 0.85F), angle), b.random.between(5, 10), 9000);
    }
    standThings(b, eye, half);
    return b.finish();
}

}  // namespace

std::unique_ptr<Stage> buildSquare(std::uint64_t seed) {
    return build(seed, 0);
}

/// All windows on all four sides are equal.
std::unique_ptr<Stage> buildRepetitive(std::uint64_t seed) {
    Builder b(seed, "repetitive");
    b.drawDaylight();
    constexpr float eye = 2;
    pave(b, eye, {});
    synthesis::FacadeStyle style = synthesis::drawFacadeStyle(b.random);
    style.variety = 0, style.balconies = 0, style.shops = false, style.shutters = false;
    // The distance between windows is such that the next window lies within the search areas of the matcher.
    style.bay = 2.0F, style.windowWidth = 0.9F, style.windowHeight = 1.3F, style.storey = 2.8F, style.sill = 0.8F;
    const float side = 48 * style.bay, height = style.storey * 14 + 0.8F;
    for (int i = 0; i < 4; ++i)
        buildRow(b,
                 {kQuarterTurnRad * static_cast<float>(i), side / 2, -side / 2, side / 2 - 1, eye, 0, &style, height});
    auto stage = b.finish();
    if (stage) stage->lowestPitchDeg = 8, stage->highestPitchDeg = 16;
    return stage;
}

/// The square with too little light for the cameras, which see little more than the lamps.
std::unique_ptr<Stage> buildNight(std::uint64_t seed) {
    auto stage = build(seed, 60);
    if (stage) stage->darkness = 0.004;
    return stage;
}

}  // namespace fieldcal::world
