#include "simulator/world/Builder.h"
#include "simulator/world/Materials.h"
#include "simulator/world/Shapes.h"

namespace fieldcal::world {

/// Four plain walls without any texture, each 2 m from the viewer.
std::unique_ptr<Stage> buildWall(std::uint64_t seed) {
    Builder b(seed, "wall");
    b.drawDaylight();
    auto plaster = synthesis::materials::kPlasterWhite;
    plaster.shared = 0.01F, plaster.visible = 0.003F, plaster.infrared = 0.003F;
    const auto wall = b.material<Solid>(plaster, *b.noise, Solid::Finish{3, 0, 0});
    addBox(b.mesh, {{0, 6, 0}, {4, 12, 4}, b.random.between(0, 1)}, wall);
    return b.finish();
}

}  // namespace fieldcal::world
