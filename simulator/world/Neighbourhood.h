#pragma once

#include "simulator/world/Building.h"

namespace fieldcal::world {

/// A row of houses of one style: from `from` to `to` metres along the row, with the fronts `away` from the viewer in
/// the direction `facing` (radians from +z towards +x), and the ground `eye` below the viewer.
struct Row {
    float facing = 0, away = 26, from = -26, to = 26, eye = 1.7F;
    float lanes = 0.25F;                            ///< share of houses with a lane behind them
    const synthesis::FacadeStyle* style = nullptr;  ///< the same for all houses; null to draw one for each
    float height = 0;                               ///< the same for all houses; 0 to draw one for each
};
void buildRow(Builder& builder, const Row& row);

/// Adds taller houses all around, visible through lanes and above roofs.
void buildFarHouses(Builder& builder, float eye, float distance, int count);

/// Draws a new leaf material.
MaterialId drawLeaf(Builder& builder);
void plantTree(Builder& builder, const cv::Vec3f& foot, float height, int leaves);
/// The same for a tree that sways in the wind.
void plantSwayingTree(Builder& builder, const cv::Vec3f& foot, float height, int leaves);

/// Returns a position on level ground around the viewer.
inline cv::Vec3f onGround(float eye, float distance, float angle) {
    return {distance * std::sin(angle), eye, distance * std::cos(angle)};
}

}  // namespace fieldcal::world
