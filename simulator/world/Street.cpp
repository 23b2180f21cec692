#include "simulator/world/GroundMaterials.h"
#include "simulator/world/Materials.h"
#include "simulator/world/Neighbourhood.h"
#include "simulator/world/Shapes.h"
#include "simulator/world/StreetThings.h"

namespace fieldcal::world {

namespace {

constexpr float kQuarterTurnRad = 1.5707963F, kEndMetres = 110;

struct Lane {
    float eye = 1.7F, carriageway = 3.5F, fronts = 8;  ///< half widths
};

/// Asphalt between two raised pavements.
void layGround(Builder& b, const Lane& lane) {
    const auto asphalt = b.material<Solid>(synthesis::materials::kAsphalt, *b.noise, Solid::Finish{4, 0, 0.10F});
    const auto slabs = b.material<Paving>(Paving::Stones{}, *b.noise);
    const auto kerb = b.material<Solid>(synthesis::materials::kStone, *b.noise, Solid::Finish{0.6F, 0, 0.06F});
    const auto paint = b.material<Solid>(synthesis::materials::kWhitePaint, *b.noise, Solid::Finish{0.3F, 0, 0.05F});
    addQuad(b.mesh, {{-40, lane.eye, -kEndMetres * 2}, {80, 0, 0}, {0, 0, kEndMetres * 4}}, asphalt);
    for (const float side : {-1.0F, 1.0F}) {
        const float width = lane.fronts + 2 - lane.carriageway;
        const float middle = side * (lane.carriageway + width / 2);
        addBox(b.mesh, {{middle, lane.eye, 0}, {width, 0.13F, 2 * kEndMetres}, 0}, slabs);
        addBox(b.mesh, {{side * lane.carriageway, lane.eye, 0}, {0.14F, 0.134F, 2 * kEndMetres}, 0}, kerb);
    }
    for (int dash = -30; dash < 30; ++dash)
        addQuad(b.mesh, {{-0.06F, lane.eye - 0.004F, static_cast<float>(dash) * 4}, {0.12F, 0, 0}, {0, 0, 2}}, paint);
}

void standThings(Builder& b, const Lane& lane) {
    const float raised = lane.eye - 0.13F;
    for (const float side : {-1.0F, 1.0F}) {
        for (float z = -70; z < 75;) {
            if (b.random.chance(0.65) && std::abs(z) > 3)
                addCar(b, {side * (lane.carriageway - 1.0F), lane.eye, z},
                       kQuarterTurnRad * (b.random.chance(0.5) ? 1.0F : -1.0F));
            if (b.random.chance(0.35))
                plantTree(b, {side * (lane.carriageway + 0.9F), raised, z + 3}, b.random.between(4.5F, 8), 6000);
            else if (b.random.chance(0.4))
                addLamp(b, {side * (lane.carriageway + 0.5F), raised, z + 3});
            else if (b.random.chance(0.4))
                addSign(b, {side * (lane.carriageway + 0.8F), raised, z + 3}, z > 0 ? 0 : 3.1416F);
            z += b.random.between(5, 8);
        }
    }
}

}  // namespace

std::unique_ptr<Stage> buildStreet(std::uint64_t seed) {
    Builder b(seed, "street");
    b.drawDaylight();
    Lane lane;
    lane.eye = b.random.between(1.6F, 2.2F), lane.carriageway = b.random.between(3.6F, 5.5F);
    lane.fronts = lane.carriageway + b.random.between(3, 6);
    layGround(b, lane);
    const float ground = lane.eye - 0.13F;
    for (const float side : {-1.0F, 1.0F})
        buildRow(b, {kQuarterTurnRad * side, lane.fronts, -kEndMetres, kEndMetres, ground, 0.12F});
    for (const float facing : {0.0F, 2 * kQuarterTurnRad})
        buildRow(b, {facing, kEndMetres * b.random.between(0.9F, 1.05F), -30, 30, ground, 0});
    standThings(b, lane);
    return b.finish();
}

}  // namespace fieldcal::world
