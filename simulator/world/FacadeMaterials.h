#pragma once

#include "simulator/synthesis/FacadeStyle.h"
#include "simulator/world/Material.h"

namespace fieldcal::world {

/// The surface of a wall with its trims and joints. Texture: metres along the front and above the ground. Windows are
/// part of the mesh.
class Wall : public Material {
public:
    Wall(const synthesis::FacadeStyle& style, const synthesis::Noise& noise, float length, float height)
        : style_(style), noise_(noise), length_(length), height_(height) {}
    Look at(const Place& place) const override;

private:
    synthesis::FacadeStyle style_;
    const synthesis::Noise& noise_;
    float length_, height_;
};

/// The filling of a window opening: frame, bars, glass, blinds and curtains. Texture: metres from the lower left corner
/// of the opening, plus whole multiples of `kStride` that distinguish the windows.
class Window : public Material {
public:
    static constexpr float kStride = 16;
    Window(const synthesis::FacadeStyle& style, const synthesis::Noise& noise) : style_(style), noise_(noise) {}
    Look at(const Place& place) const override;

private:
    synthesis::FacadeStyle style_;
    const synthesis::Noise& noise_;
};

}  // namespace fieldcal::world
