#include "simulator/world/Neighbourhood.h"

#include "simulator/world/Materials.h"
#include "simulator/world/Plants.h"

namespace fieldcal::world {

void buildRow(Builder& b, const Row& row) {
    const cv::Vec3f along(std::cos(row.facing), 0, -std::sin(row.facing));
    const cv::Vec3f away(std::sin(row.facing), 0, std::cos(row.facing));
    float from = row.from;
    while (from < row.to) {
        House house;
        house.style = row.style != nullptr ? *row.style : synthesis::drawFacadeStyle(b.random);
        house.length = row.style != nullptr ? 8 * house.style.bay : b.random.between(8, 18);
        house.height =
            row.height > 0 ? row.height : house.style.storey * static_cast<float>(2 + b.random.index(4)) + 0.8F;
        house.roofRise = row.height > 0 ? 0 : b.random.between(1.5F, 4.5F);
        house.along = along;
        const float back = row.style != nullptr ? 0 : b.random.between(0, 0.8F);
        house.corner = away * (row.away + back) + along * from + cv::Vec3f(0, row.eye, 0);
        addHouse(b, house);
        from += house.length + (b.random.chance(row.lanes) ? b.random.between(2, 6) : 0);
    }
}

void buildFarHouses(Builder& b, float eye, float distance, int count) {
    for (int i = 0; i < count; ++i) {
        const float angle =
            6.2832F * (static_cast<float>(i) + b.random.between(-0.3F, 0.3F)) / static_cast<float>(count);
        House house;
        house.style = synthesis::drawFacadeStyle(b.random);
        house.length = b.random.between(12, 26);
        house.height = b.random.between(12, 26);
        house.along = {std::cos(angle), 0, -std::sin(angle)};
        house.corner = onGround(eye, distance * b.random.between(0.8F, 1.3F), angle) - house.along * (house.length / 2);
        addHouse(b, house);
    }
}

MaterialId drawLeaf(Builder& b) {
    synthesis::Spectrum green = synthesis::materials::kLeaf.reflectance;
    green.red *= b.random.between(0.7F, 1.7F);
    return b.material<Leaf>(green.scaled(b.random.between(0.8F, 1.3F), b.random.between(0.85F, 1.1F)));
}

namespace {

void plantInto(Mesh& mesh, Builder& b, const cv::Vec3f& foot, float height, int leaves) {
    const auto bark = b.material<Solid>(synthesis::materials::kBark, *b.noise, Solid::Finish{0.2F, 0, 0.4F});
    const auto leaf = drawLeaf(b);
    // Fewer leaves are larger, so that distant crowns are as dense as near ones.
    const float size = b.random.between(0.12F, 0.18F) * std::sqrt(9000.0F / static_cast<float>(leaves)) * height / 9;
    addTree(mesh, {foot, height, height * b.random.between(0.24F, 0.36F), leaves, size}, {bark, leaf}, b.random);
}

}  // namespace

void plantTree(Builder& b, const cv::Vec3f& foot, float height, int leaves) {
    plantInto(b.mesh, b, foot, height, leaves);
}

void plantSwayingTree(Builder& b, const cv::Vec3f& foot, float height, int leaves) {
    const std::size_t first = b.sway.mesh.vertices.size();
    plantInto(b.sway.mesh, b, foot, height, leaves);
    b.sway.plant(first, foot, height, height * b.random.between(0.02F, 0.04F));
}

}  // namespace fieldcal::world
