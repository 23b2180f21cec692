#include "simulator/world/Plants.h"

#include "simulator/world/Shapes.h"

#include <algorithm>
#include <cmath>

namespace fieldcal::world {

using synthesis::Random;

namespace {

cv::Vec3f anyDirection(Random& random) {
    const float up = random.between(-1, 1), turn = random.between(0, 6.2832F), flat = std::sqrt(1 - up * up);
    return {flat * std::cos(turn), up, flat * std::sin(turn)};
}

/// A crown: leaves are clustered around branches that fill an ellipsoid.
struct Crown {
    cv::Vec3f centre, radii;
    int leaves = 1000;
    float leafSize = 0.2F;
};

cv::Vec3f within(const Crown& crown, const cv::Vec3f& d) {
    return crown.centre + cv::Vec3f(d[0] * crown.radii[0], d[1] * crown.radii[1], d[2] * crown.radii[2]);
}

void addLeaf(Mesh& mesh, const cv::Vec3f& at, const cv::Vec3f& normal, float size, float openness, MaterialId material,
             Random& random) {
    const cv::Vec3f along = unit(normal.cross(anyDirection(random))), across = normal.cross(along);
    const cv::Vec3f a = along * size, b = across * (size * random.between(0.3F, 0.5F));
    const cv::Vec2f texture(static_cast<float>(random.index(60000)) + 0.5F, openness);
    const auto tail = mesh.add({at - a, normal, texture}), left = mesh.add({at - b, normal, texture});
    const auto tip = mesh.add({at + a, normal, texture}), right = mesh.add({at + b, normal, texture});
    mesh.add(tail, left, tip, material);
    mesh.add(tail, tip, right, material);
}

void addLeaves(Mesh& mesh, const Crown& crown, const std::vector<cv::Vec3f>& boughs, MaterialId material,
               Random& random) {
    for (int i = 0; i < crown.leaves; ++i) {
        const auto& bough = boughs[static_cast<std::size_t>(random.index(static_cast<int>(boughs.size())))];
        const cv::Vec3f out = anyDirection(random) * (0.26F * std::cbrt(random.between(0.05F, 1.0F)));
        const cv::Vec3f place = bough + out;
        // The sky is visible from the outer and upper parts of a crown; its interior is dark.
        const float outside = std::sqrt(place.dot(place));
        const float open = std::clamp(0.12F + 0.75F * outside * outside - 0.25F * place[1], 0.1F, 1.0F);
        const cv::Vec3f normal = unit(unit(out) + anyDirection(random) * 0.8F + cv::Vec3f(0, -0.4F, 0));
        addLeaf(mesh, within(crown, place), normal, crown.leafSize * random.between(0.3F, 0.7F), open, material,
                random);
    }
}

/// Large leaves in the interior of the clusters, so that the sky is visible only near the outline.
void addHearts(Mesh& mesh, const Crown& crown, const std::vector<cv::Vec3f>& boughs, MaterialId material,
               Random& random) {
    const int leaves = std::clamp(crown.leaves / 100, 20, 110);
    const float size = 0.4F * (crown.radii[0] + crown.radii[1]) / std::sqrt(static_cast<float>(leaves));
    for (const auto& bough : boughs)
        for (int i = 0; i < leaves; ++i) {
            const cv::Vec3f out = anyDirection(random);
            const cv::Vec3f place = within(crown, bough + out * random.between(0.06F, 0.15F));
            const cv::Vec3f normal = unit(out + anyDirection(random) * 0.5F);
            addLeaf(mesh, place, normal, size * random.between(0.7F, 1.2F), random.between(0.2F, 0.4F), material,
                    random);
        }
}

std::vector<cv::Vec3f> placeBoughs(int count, Random& random) {
    std::vector<cv::Vec3f> boughs;
    boughs.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        boughs.push_back(anyDirection(random) * (0.85F * std::sqrt(random.between(0.15F, 1.0F))));
    return boughs;
}

/// A thin four-sided stick.
void addStick(Mesh& mesh, const cv::Vec3f& from, const cv::Vec3f& to, float width, MaterialId material) {
    const cv::Vec3f along = to - from;
    const cv::Vec3f side = unit(along.cross(cv::Vec3f(0.31F, 0.2F, 0.93F))), other = unit(along.cross(side));
    const cv::Vec3f a = side * width, b = other * width;
    addQuad(mesh, {from - a - b, a * 2, along}, material);
    addQuad(mesh, {from - a + b, a * 2, along}, material);
    addQuad(mesh, {from - a - b, b * 2, along}, material);
    addQuad(mesh, {from + a - b, b * 2, along}, material);
}

}  // namespace

void addTree(Mesh& mesh, const Tree& tree, const PlantMaterials& materials, Random& random) {
    Crown crown;
    crown.radii = {tree.crownRadius, tree.height * 0.36F, tree.crownRadius};
    crown.centre = tree.foot + cv::Vec3f(0, -(tree.height - crown.radii[1]), 0);
    crown.leaves = tree.leaves, crown.leafSize = tree.leafSize;
    const float girth = tree.height * 0.013F;
    addPost(mesh, {tree.foot, tree.height * 0.75F, girth * 1.3F, girth * 0.35F, 12}, materials.bark);
    const auto boughs = placeBoughs(18 + random.index(10), random);
    for (const auto& bough : boughs) {
        const cv::Vec3f tip = within(crown, bough);
        const float fork = std::max(tree.height * 0.25F, (tree.foot[1] - tip[1]) * random.between(0.55F, 0.8F));
        addStick(mesh, tree.foot + cv::Vec3f(0, -fork, 0), tip, girth * 0.25F, materials.bark);
    }
    addHearts(mesh, crown, boughs, materials.leaf, random);
    addLeaves(mesh, crown, boughs, materials.leaf, random);
}

void addBush(Mesh& mesh, const cv::Vec3f& foot, const cv::Vec3f& radii, int leaves, float leafSize, MaterialId leaf,
             Random& random) {
    Crown crown{foot + cv::Vec3f(0, -radii[1] * 0.62F, 0), radii, leaves, leafSize};
    const auto boughs = placeBoughs(14 + random.index(8), random);
    addHearts(mesh, crown, boughs, leaf, random);
    addLeaves(mesh, crown, boughs, leaf, random);
}

void addConifer(Mesh& mesh, const cv::Vec3f& foot, float height, MaterialId needles, Random& random) {
    constexpr int tiers = 5, sides = 9;
    for (int tier = 0; tier < tiers; ++tier) {
        const float low = static_cast<float>(tier) / tiers, width = height * 0.17F * (1.05F - low);
        const cv::Vec3f tip = foot + cv::Vec3f(0, -height * std::min(1.0F, low + 0.42F), 0);
        const cv::Vec3f middle = foot + cv::Vec3f(0, -height * (0.08F + 0.9F * low), 0);
        std::array<cv::Vec3f, sides + 1> skirt;
        for (int i = 0; i < sides; ++i) {
            const float angle = 6.2832F * static_cast<float>(i) / sides + low * 9,
                        reach = width * random.between(0.6F, 1.25F);
            skirt[i] = middle +
                       cv::Vec3f(std::cos(angle) * reach, width * random.between(-0.1F, 0.5F), std::sin(angle) * reach);
        }
        skirt[sides] = skirt[0];
        for (int i = 0; i < sides; ++i) {
            const cv::Vec3f normal = unit((skirt[i + 1] - skirt[i]).cross(tip - skirt[i]));
            const cv::Vec2f texture(static_cast<float>(random.index(60000)) + 0.5F, 0.5F + 0.5F * low);
            mesh.add(mesh.add({skirt[i], normal, texture}), mesh.add({skirt[i + 1], normal, texture}),
                     mesh.add({tip, normal, texture}), needles);
        }
    }
}

}  // namespace fieldcal::world
