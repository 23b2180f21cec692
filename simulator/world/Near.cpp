#include "simulator/world/FacadeMaterials.h"
#include "simulator/world/GroundMaterials.h"
#include "simulator/world/Materials.h"
#include "simulator/world/Neighbourhood.h"
#include "simulator/world/Plants.h"
#include "simulator/world/Shapes.h"
#include "simulator/world/StreetThings.h"

namespace fieldcal::world {

/// A small walled yard with many objects. Everything except the sky is within 4 m of the viewer.
std::unique_ptr<Stage> buildNear(std::uint64_t seed) {
    Builder b(seed, "near");
    b.drawDaylight();
    constexpr float eye = 1.5F, half = 2.5F;
    const auto slabs = b.material<Paving>(Paving::Stones{synthesis::materials::kStone, 0.25F, 0.3F}, *b.noise);
    addQuad(b.mesh, {{-4, eye, -4}, {8, 0, 0}, {0, 0, 8}}, slabs);
    synthesis::FacadeStyle style = synthesis::drawFacadeStyle(b.random);
    style.windows = false, style.masonry = synthesis::Masonry::brick, style.wall = synthesis::materials::kBrick;
    const auto wall = b.material<Wall>(style, *b.noise, 2 * half, 3.0F);
    addQuad(b.mesh, {{-half, eye, half}, {2 * half, 0, 0}, {0, -3, 0}}, wall);
    addQuad(b.mesh, {{half, eye, -half}, {-2 * half, 0, 0}, {0, -3, 0}}, wall);
    addQuad(b.mesh, {{half, eye, half}, {0, 0, -2 * half}, {0, -3, 0}}, wall);
    addQuad(b.mesh, {{-half, eye, -half}, {0, 0, 2 * half}, {0, -3, 0}}, wall);
    const auto ivy = drawLeaf(b);
    for (int i = 0; i < 5; ++i) {
        const float angle = b.random.between(0, 6.2832F);
        addBush(b.mesh, onGround(eye - b.random.between(0.8F, 2.2F), 2.4F, angle), {0.8F, 0.6F, 0.8F}, 1500, 0.07F, ivy,
                b.random);
    }
    for (int i = 0; i < 26; ++i) {
        const float angle = 0.2417F * static_cast<float>(i) + b.random.between(-0.1F, 0.1F);
        const cv::Vec3f foot = onGround(eye, b.random.between(1.3F, 2.2F), angle);
        const float size = b.random.between(0.25F, 0.6F);
        switch (b.random.index(3)) {
            case 0:
                addBush(b.mesh, foot, {size, size * 1.4F, size}, 1200, 0.07F, drawLeaf(b), b.random);
                break;
            case 1:
                addFurniture(b, foot, -angle);
                break;
            default:
                addBox(b.mesh, {foot, {size, size * b.random.between(1, 3), size}, angle},
                       b.material<Solid>(synthesis::materials::kWood, *b.noise, Solid::Finish{0.3F, 0, 0.08F}));
        }
    }
    return b.finish();
}

}  // namespace fieldcal::world
