#include "simulator/world/StreetThings.h"

#include "simulator/world/Materials.h"
#include "simulator/world/Plants.h"
#include "simulator/world/Shapes.h"

#include <cmath>

namespace fieldcal::world {

namespace {

/// Axes of an object that is rotated on the ground.
struct Frame {
    cv::Vec3f foot, x, z;
    Frame(const cv::Vec3f& at, float turn)
        : foot(at), x(std::cos(turn), 0, std::sin(turn)), z(-std::sin(turn), 0, std::cos(turn)) {}
    cv::Vec3f at(float along, float height, float across) const {
        return foot + x * along + z * across + cv::Vec3f(0, -height, 0);
    }
};

synthesis::Material drawPaint(synthesis::Random& random) {
    // Dark paints often transmit the near infrared to a bright primer; carbon black does not.
    static const std::array<synthesis::Spectrum, 7> paints{{{0.62F, 0.62F, 0.60F, 0.60F},
                                                            {0.03F, 0.03F, 0.03F, 0.03F},
                                                            {0.03F, 0.03F, 0.035F, 0.38F},
                                                            {0.40F, 0.05F, 0.04F, 0.50F},
                                                            {0.05F, 0.09F, 0.28F, 0.12F},
                                                            {0.28F, 0.29F, 0.30F, 0.26F},
                                                            {0.10F, 0.18F, 0.12F, 0.45F}}};
    return {paints[random.index(7)], 0.02F, 0.01F, 0.01F};
}

/// Adds a closed outline in the car's side view, extended to both sides; upper corners lean inwards.
void addHull(Mesh& mesh, const Frame& car, const std::vector<cv::Vec2f>& outline, float halfWidth, float lean,
             MaterialId material) {
    const float low = outline.front()[1];
    const auto side = [&](const cv::Vec2f& p, float sign) {
        return car.at(p[0], p[1], sign * (halfWidth - lean * (p[1] - low)));
    };
    const auto count = outline.size();
    for (std::size_t i = 0; i < count; ++i) {
        const auto &p = outline[i], &q = outline[(i + 1) % count];
        const cv::Vec3f a = side(p, -1), b = side(q, -1), c = side(q, 1), d = side(p, 1);
        const cv::Vec3f normal = unit((b - a).cross(d - a));
        const auto v = [&](const cv::Vec3f& at, float s, float t) { return mesh.add({at, normal, {s, t}}); };
        const auto ia = v(a, p[0], p[1]), ib = v(b, q[0], q[1]), ic = v(c, q[0], q[1] + 2), id = v(d, p[0], p[1] + 2);
        mesh.add(ia, ib, ic, material);
        mesh.add(ia, ic, id, material);
    }
    for (const float sign : {-1.0F, 1.0F})
        for (std::size_t i = 1; i + 1 < count; ++i) {
            const auto v = [&](std::size_t k) { return mesh.add({side(outline[k], sign), car.z, outline[k]}); };
            const auto a = v(0), b = v(i), c = v(i + 1);
            mesh.add(a, b, c, material);
        }
}

void addWheels(Builder& b, const Frame& car) {
    const auto rubber = b.material<Solid>(synthesis::Material{{0.03F, 0.03F, 0.03F, 0.035F}, 0.1F, 0, 0}, *b.noise,
                                          Solid::Finish{0.2F, 0, 0});
    const auto rim = b.material<Solid>(synthesis::Material{{0.4F, 0.4F, 0.4F, 0.38F}, 0.05F, 0, 0}, *b.noise,
                                       Solid::Finish{0.1F, 0.1F, 0});
    for (const float along : {-1.3F, 1.3F})
        for (const float across : {-0.82F, 0.82F}) {
            const cv::Vec3f flat = cv::Vec3f(std::abs(car.x[0]), 0, std::abs(car.x[2])) * 0.31F +
                                   cv::Vec3f(std::abs(car.z[0]), 0, std::abs(car.z[2])) * 0.1F;
            addBall(b.mesh, car.at(along, 0.31F, across), {flat[0] + 0.02F, 0.31F, flat[2] + 0.02F}, 8, rubber);
            addBall(b.mesh, car.at(along, 0.31F, across * 1.06F), {0.16F, 0.16F, 0.16F}, 6, rim);
        }
}

}  // namespace

void addCar(Builder& b, const cv::Vec3f& foot, float turn) {
    const Frame car(foot, turn);
    const auto paint = b.material<Solid>(drawPaint(b.random), *b.noise, Solid::Finish{0.5F, 0.05F, 0.004F});
    const auto glass = b.material<Glass>(synthesis::Spectrum{0.03F, 0.03F, 0.03F, 0.02F});
    const auto lamp = b.material<Solid>(synthesis::Material{{0.45F, 0.08F, 0.05F, 0.5F}, 0, 0, 0}, *b.noise,
                                        Solid::Finish{0.2F, 0.06F, 0});
    const float tall = b.random.between(0, 0.25F), tail = b.random.between(-1.9F, -1.2F);
    addHull(
        b.mesh, car,
        {{-2.1F, 0.28F}, {2.1F, 0.28F}, {2.15F, 0.55F}, {2.0F, 0.75F}, {0.9F, 0.92F}, {-1.9F, 0.95F}, {-2.15F, 0.8F}},
        0.86F, 0.06F, paint);
    addHull(b.mesh, car, {{0.95F, 0.9F}, {0.25F, 1.36F + tall}, {tail + 0.5F, 1.38F + tall}, {tail, 0.9F}}, 0.78F,
            0.28F, glass);
    addHull(b.mesh, car,
            {{0.3F, 1.34F + tall}, {0.2F, 1.42F + tall}, {tail + 0.55F, 1.43F + tall}, {tail + 0.4F, 1.33F + tall}},
            0.69F, 0.1F, paint);
    for (const float across : {-0.62F, 0.62F}) {
        addBox(b.mesh, {car.at(-2.13F, 0.62F, across), {0.08F, 0.16F, 0.34F}, turn}, lamp);
        addBox(b.mesh, {car.at(2.07F, 0.55F, across), {0.08F, 0.14F, 0.36F}, turn}, glass);
        addBox(b.mesh, {car.at(-0.35F, 0.3F, across * 1.4F), {0.02F, 0.62F, 0.02F}, turn}, glass);
    }
    addWheels(b, car);
}

void addFountain(Builder& b, const cv::Vec3f& foot, float radius) {
    constexpr int sides = 28;
    constexpr float rim = 0.3F;
    const auto stone = b.material<Solid>(synthesis::materials::kStone, *b.noise, Solid::Finish{0.6F, 0, 0.05F});
    const auto water = b.material<Water>(*b.noise);
    const float height = b.random.between(0.4F, 0.6F);
    const auto at = [&](int side, float reach, float up) {
        const float angle = kFullTurnRad * static_cast<float>(side) / sides;
        return foot + cv::Vec3f(reach * std::sin(angle), -up, reach * std::cos(angle));
    };
    for (int i = 0; i < sides; ++i) {
        const cv::Vec3f outer = at(i, radius, height), inner = at(i, radius - rim, height);
        const cv::Vec3f along = at(i + 1, radius, height) - outer, down(0, height, 0);
        const cv::Vec2f texture(radius * kFullTurnRad * static_cast<float>(i) / sides, 0);
        addQuad(b.mesh, {outer, along, down, texture}, stone);
        addQuad(b.mesh, {inner, at(i + 1, radius - rim, height) - inner, down, texture}, stone);
        addQuad(b.mesh, {outer, along, inner - outer, texture}, stone);
    }
    const float level = foot[1] - height + 0.12F, half = radius - rim * 0.5F;
    for (int i = 0; i < sides; ++i) {
        const auto corner = [&](int side) {
            const cv::Vec3f p = at(side, half, 0);
            return b.mesh.add({{p[0], level, p[2]}, {0, -1, 0}, {p[0], p[2]}});
        };
        const auto middle = b.mesh.add({{foot[0], level, foot[2]}, {0, -1, 0}, {foot[0], foot[2]}});
        const auto first = corner(i), second = corner(i + 1);
        b.mesh.add(middle, first, second, water);
    }
    addPost(b.mesh, {foot, height + 0.9F, 0.25F, 0.18F, 14}, stone);
    addBall(b.mesh, foot + cv::Vec3f(0, -height - 0.95F, 0), {0.6F, 0.16F, 0.6F}, 10, stone);
}

void addLamp(Builder& b, const cv::Vec3f& foot) {
    const auto iron = b.material<Solid>(synthesis::Material{{0.06F, 0.08F, 0.07F, 0.10F}, 0.1F, 0, 0}, *b.noise,
                                        Solid::Finish{0.3F, 0.02F, 0.05F});
    const auto shade =
        b.lampsLit > 0 ? b.material<Glow>(b.lampsLit)
                       : b.material<Solid>(synthesis::materials::kWhitePaint, *b.noise, Solid::Finish{0.2F, 0.06F, 0});
    const float height = b.random.between(3.2F, 4.6F);
    addPost(b.mesh, {foot, 0.5F, 0.11F, 0.08F, 10}, iron);
    addPost(b.mesh, {foot, height, 0.06F, 0.04F, 10}, iron);
    addPost(b.mesh, {foot + cv::Vec3f(0, -height, 0), 0.45F, 0.1F, 0.2F, 8}, shade);
    addPost(b.mesh, {foot + cv::Vec3f(0, -height - 0.45F, 0), 0.2F, 0.24F, 0.01F, 8}, iron);
}

void addSign(Builder& b, const cv::Vec3f& foot, float turn) {
    const Frame sign(foot, turn);
    const float height = b.random.between(0.5F, 0.9F), width = height * b.random.between(1.4F, 3.2F);
    const auto board = b.material<Sign>(static_cast<std::uint32_t>(b.random.bits()), height);
    const auto metal = b.material<Solid>(synthesis::materials::kMetal, *b.noise, Solid::Finish{});
    const float from = b.random.between(0.7F, 1.7F);
    addQuad(b.mesh, {sign.at(-width / 2, from, -0.03F), sign.x * width, cv::Vec3f(0, -height, 0)}, board);
    addBox(b.mesh, {sign.at(0, from - 0.03F, 0.02F), {width + 0.06F, height + 0.06F, 0.06F}, turn}, metal);
    for (const float s : {-0.4F, 0.4F})
        addPost(b.mesh, {sign.at(s * width, 0, 0.08F), from + height, 0.03F, 0.03F, 8}, metal);
}

void addFurniture(Builder& b, const cv::Vec3f& foot, float turn) {
    const Frame thing(foot, turn);
    if (b.random.chance(0.5)) {
        const auto wood = b.material<Solid>(synthesis::materials::kWood, *b.noise, Solid::Finish{0.3F, 0, 0.04F});
        for (int slat = 0; slat < 4; ++slat) {
            const float k = static_cast<float>(slat);
            addBox(b.mesh, {thing.at(0, 0.43F, -0.2F + 0.13F * k), {1.7F, 0.03F, 0.1F}, turn}, wood);
            if (slat < 3) addBox(b.mesh, {thing.at(0, 0.55F + 0.14F * k, 0.27F), {1.7F, 0.1F, 0.03F}, turn}, wood);
        }
        for (const float s : {-0.7F, 0.7F})
            addBox(b.mesh, {thing.at(s, 0, 0.05F), {0.06F, 0.43F, 0.45F}, turn}, wood);
        return;
    }
    const auto tub = b.material<Solid>(synthesis::materials::kConcrete, *b.noise, Solid::Finish{0.5F, 0, 0.06F});
    const auto leaf = b.material<Leaf>(synthesis::materials::kLeaf.reflectance);
    addBox(b.mesh, {foot, {0.9F, 0.55F, 0.9F}, turn}, tub);
    addBush(b.mesh, foot + cv::Vec3f(0, -0.5F, 0), {0.55F, 0.5F, 0.55F}, 900, 0.11F, leaf, b.random);
}

}  // namespace fieldcal::world
