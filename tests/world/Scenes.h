#pragma once

#include "simulator/synthesis/Rotation.h"
#include "simulator/world/Materials.h"
#include "simulator/world/RenderedImage.h"
#include "simulator/world/Shapes.h"

namespace fieldcal::world {

/// A world made of one mesh with its materials, under a clear sky with the sun high on the left.
struct TestScene {
    std::unique_ptr<synthesis::Noise> noise = std::make_unique<synthesis::Noise>(5);
    Mesh mesh;
    Materials materials;
    Daylight daylight;

    TestScene() {
        daylight.light.toSun = {-0.5F, -0.8F, -0.33F};
        daylight.cloudiness = 0;
    }
    template <typename Kind, typename... Arguments>
    MaterialId material(Arguments&&... arguments) {
        materials.push_back(std::make_unique<Kind>(std::forward<Arguments>(arguments)...));
        return static_cast<MaterialId>(materials.size() - 1);
    }
    MaterialId even(const synthesis::Spectrum& reflectance) {
        return material<Solid>(synthesis::Material{reflectance, 0, 0, 0}, *noise, Solid::Finish{});
    }
    World finish() { return {std::move(mesh), std::move(materials), daylight, std::move(noise)}; }
};

inline Pose poseOf(const std::array<double, 3>& anglesDeg, const cv::Vec3d& centre) {
    return {synthesis::rotationFromAngles(anglesDeg), centre};
}

}  // namespace fieldcal::world
