#include "simulator/world/Building.h"

#include "simulator/world/FacadeMaterials.h"
#include "simulator/world/Materials.h"
#include "simulator/world/Shapes.h"

#include <algorithm>
#include <cmath>

namespace fieldcal::world {

namespace {

const cv::Vec3f kUp(0, -1, 0);

/// The front of a house: s metres along it, h above the ground, d out of the wall.
class Front {
public:
    Front(Builder& builder, const House& house)
        : b_(builder),
          house_(house),
          style_(house.style),
          out_(house.along.cross(kUp)),
          wall_(b_.material<Wall>(paintedStyle(), *b_.noise, house.length, house.height)),
          window_(b_.material<Window>(style_, *b_.noise)),
          trim_(b_.material<Solid>(style_.trim, *b_.noise, Solid::Finish{0.7F, 0, 0.03F})),
          metal_(b_.material<Solid>(synthesis::materials::kMetal, *b_.noise, Solid::Finish{})) {}

    void build() {
        const int bays = std::max(1, static_cast<int>(house_.length / style_.bay));
        const float margin = (house_.length - static_cast<float>(bays) * style_.bay) * 0.5F;
        face(0, margin, 0, house_.height);
        face(house_.length - margin, house_.length, 0, house_.height);
        for (int bay = 0; bay < bays; ++bay)
            column(bay, margin + static_cast<float>(bay) * style_.bay);
        slab(0, house_.length, house_.height - 0.3F, house_.height, 0.35F);  // cornice
    }

private:
    /// Parts that protrude from the wall are geometry and must not be painted as well.
    synthesis::FacadeStyle paintedStyle() const {
        synthesis::FacadeStyle painted = style_;
        painted.balconies = 0;
        return painted;
    }
    cv::Vec3f at(float s, float h, float d) const { return house_.corner + house_.along * s + kUp * h + out_ * d; }

    void face(float s0, float s1, float h0, float h1) {
        if (s1 - s0 < 1e-3F || h1 - h0 < 1e-3F) return;
        addQuad(b_.mesh, {at(s0, h0, 0), house_.along * (s1 - s0), kUp * (h1 - h0), {s0, h0}}, wall_);
    }

    /// A block that protrudes `out` metres from the wall.
    void slab(float s0, float s1, float h0, float h1, float out) {
        const cv::Vec3f along = house_.along * (s1 - s0), rise = kUp * (h1 - h0), away = out_ * out;
        addQuad(b_.mesh, {at(s0, h0, out), along, rise}, trim_);
        addQuad(b_.mesh, {at(s0, h1, 0), along, away}, trim_);
        addQuad(b_.mesh, {at(s0, h0, 0), along, away}, trim_);
        addQuad(b_.mesh, {at(s0, h0, 0), away, rise}, trim_);
        addQuad(b_.mesh, {at(s1, h0, 0), away, rise}, trim_);
    }

    void column(int bay, float from) {
        float done = 0;
        const float left = from + (style_.bay - style_.windowWidth) * 0.5F, right = left + style_.windowWidth;
        face(from, left, 0, house_.height);
        face(right, from + style_.bay, 0, house_.height);
        for (int floor = style_.shops ? 1 : 0;; ++floor) {
            const float sill = static_cast<float>(floor) * style_.storey + style_.sill;
            if (house_.height - sill <= style_.windowHeight + 0.5F) break;
            face(left, right, done, sill);
            done = sill + style_.windowHeight;
            opening(bay, floor, left, sill);
        }
        face(left, right, done, house_.height);
    }

    void opening(int bay, int floor, float left, float sill) {
        const float w = style_.windowWidth, h = style_.windowHeight, deep = style_.recess;
        const cv::Vec3f inward = out_ * -deep;
        addQuad(b_.mesh, {at(left, sill, 0), inward, kUp * h, {left, sill}}, trim_);
        addQuad(b_.mesh, {at(left + w, sill, 0), inward, kUp * h, {left, sill}}, trim_);
        addQuad(b_.mesh, {at(left, sill + h, 0), house_.along * w, inward, {left, sill}}, trim_);
        addQuad(b_.mesh, {at(left, sill, 0), house_.along * w, inward, {left, sill}}, trim_);
        const cv::Vec2f name(Window::kStride * static_cast<float>(bay), Window::kStride * static_cast<float>(floor));
        addQuad(b_.mesh, {at(left, sill, -deep), house_.along * w, kUp * h, name}, window_);
        slab(left - 0.1F, left + w + 0.1F, sill - 0.1F, sill, 0.12F);
        if (floor > 0 && synthesis::Noise::cell(bay, floor, style_.seed + 40) < style_.balconies)
            balcony(left - 0.3F, left + w + 0.3F, sill - 0.8F * style_.sill);
    }

    void balcony(float s0, float s1, float h) {
        constexpr float reach = 0.9F, rail = 1.0F, pitch = 0.14F;
        slab(s0, s1, h - 0.18F, h, reach);
        const auto bar = [&](float s, float d, const cv::Vec3f& along, const cv::Vec3f& tall) {
            addQuad(b_.mesh, {at(s, h, d), along, tall}, metal_);
        };
        for (int i = 0; static_cast<float>(i) * pitch < s1 - s0; ++i)
            bar(s0 + static_cast<float>(i) * pitch, reach - 0.03F, house_.along * 0.025F, kUp * rail);
        for (int i = 0; i < 6; ++i) {
            const float d = 0.05F + static_cast<float>(i) * pitch;
            bar(s0 + 0.01F, d, out_ * 0.025F, kUp * rail);
            bar(s1 - 0.01F, d, out_ * 0.025F, kUp * rail);
        }
        addQuad(b_.mesh, {at(s0, h + rail, reach - 0.05F), house_.along * (s1 - s0), out_ * 0.06F}, metal_);
        addQuad(b_.mesh, {at(s0, h + rail, reach), house_.along * (s1 - s0), kUp * 0.05F}, metal_);
    }

    Builder& b_;
    const House& house_;
    const synthesis::FacadeStyle& style_;
    cv::Vec3f out_;
    MaterialId wall_, window_, trim_, metal_;
};

/// Sides, back and roof, which have no windows.
void addShell(Builder& b, const House& house) {
    synthesis::FacadeStyle plain = house.style;
    plain.windows = false;
    const auto wall = b.material<Wall>(plain, *b.noise, house.depth, house.height);
    const bool tiled = house.style.seed % 4U != 0U;
    const auto roof = b.material<Solid>(tiled ? synthesis::materials::kRoofTile : synthesis::materials::kSlate,
                                        *b.noise, Solid::Finish{1.2F, 0, 0.12F});
    const cv::Vec3f inward = house.along.cross(kUp) * -house.depth, along = house.along * house.length;
    const cv::Vec3f tall = kUp * house.height, eave = house.corner + tall;
    addQuad(b.mesh, {house.corner, inward, tall}, wall);
    addQuad(b.mesh, {house.corner + along, inward, tall}, wall);
    addQuad(b.mesh, {house.corner + inward, along, tall}, wall);
    const cv::Vec3f ridge = inward * 0.5F + kUp * std::max(0.05F, house.roofRise);
    const cv::Vec3f over = ridge * -0.06F;
    addQuad(b.mesh, {eave + over, along, ridge - over}, roof);
    addQuad(b.mesh, {eave + inward, along, ridge - inward}, roof);
    for (const auto& foot : {eave, eave + along}) {
        const cv::Vec3f normal = house.along;
        const auto a = b.mesh.add({foot, normal, {0, house.height}});
        const auto c = b.mesh.add({foot + inward, normal, {house.depth, house.height}});
        const auto tip = b.mesh.add({foot + ridge, normal, {house.depth / 2, house.height + house.roofRise}});
        b.mesh.add(a, c, tip, wall);
    }
    const auto brick = b.material<Solid>(synthesis::materials::kBrick, *b.noise, Solid::Finish{0.5F, 0, 0.1F});
    for (int i = 0; i < 2; ++i)
        addBox(b.mesh,
               {eave + along * b.random.between(0.1F, 0.9F) + inward * 0.45F, {0.7F, house.roofRise + 1.1F, 0.7F}},
               brick);
}

}  // namespace

void addHouse(Builder& builder, const House& house) {
    Front(builder, house).build();
    addShell(builder, house);
}

}  // namespace fieldcal::world
