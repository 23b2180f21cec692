#pragma once

#include "camera/Rotation.h"
#include "simulator/world/Mesh.h"

#include <functional>

/// Functions that append shapes to a mesh. Metres; angles in radians.
namespace fieldcal::world {

constexpr auto kFullTurnRad = static_cast<float>(2 * kPi);

/// A flat parallelogram. Texture coordinates start at `texture` and grow in metres along both sides.
struct Quad {
    cv::Vec3f corner, along, up;
    cv::Vec2f texture{0, 0};
};
void addQuad(Mesh& mesh, const Quad& quad, MaterialId material);

/// An upright box: `foot` is the centre of its lower face, `size` its width, height and depth.
struct Box {
    cv::Vec3f foot, size;
    float turn = 0;  ///< about the vertical
};
void addBox(Mesh& mesh, const Box& box, MaterialId material);

/// An upright post or cone of circular section between two heights.
struct Post {
    cv::Vec3f foot;
    float height = 1, lowerRadius = 0.1F, upperRadius = 0.1F;
    int sides = 10;
};
void addPost(Mesh& mesh, const Post& post, MaterialId material);

/// Adds a sphere whose radius is multiplied by `bump` (of the unit direction from the centre). Texture: metres around.
void addBall(Mesh& mesh, const cv::Vec3f& centre, const cv::Vec3f& radii, int rings, MaterialId material,
             const std::function<float(const cv::Vec3f&)>& bump = {});

/// The ground at (x, z) has y = −height(x, z).
using HeightFunction = std::function<float(float x, float z)>;

/// Ground around the origin, in rings whose width grows with distance. Texture: x and z.
struct PolarField {
    float nearest = 30, farthest = 9000;
    int sectors = 1080, rings = 320;
};
void addHeightField(Mesh& mesh, const PolarField& field, const HeightFunction& height, MaterialId material);

}  // namespace fieldcal::world
