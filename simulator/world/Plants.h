#pragma once

#include "simulator/synthesis/Random.h"
#include "simulator/world/Mesh.h"

namespace fieldcal::world {

struct PlantMaterials {
    MaterialId bark = 0, leaf = 0;
};

/// A broad-leaved tree: a trunk, branches, and a crown of single leaves in clusters. `foot` is on the ground; metres.
struct Tree {
    cv::Vec3f foot;
    float height = 9, crownRadius = 2.6F;
    int leaves = 7000;
    float leafSize = 0.2F;
};
void addTree(Mesh& mesh, const Tree& tree, const PlantMaterials& materials, synthesis::Random& random);

/// Adds a bush, which is a crown without a trunk.
void addBush(Mesh& mesh, const cv::Vec3f& foot, const cv::Vec3f& radii, int leaves, float leafSize, MaterialId leaf,
             synthesis::Random& random);

/// Adds a conifer made of irregular cones, for distances of some hundred metres.
void addConifer(Mesh& mesh, const cv::Vec3f& foot, float height, MaterialId needles, synthesis::Random& random);

}  // namespace fieldcal::world
