#pragma once

#include "simulator/world/Building.h"

namespace fieldcal::world {

/// Where one kind of house stands in a row: from `from` metres along the row to `to`, the fronts `away` from the
/// viewer in the direction of `facing` (radians from +z towards +x), the ground `eye` below the viewer.
struct Row {
    float facing = 0, away = 26, from = -26, to = 26, eye = 1.7F;
    float lanes = 0.25F;                            ///< share of houses with a lane behind them
    const synthesis::FacadeStyle* style = nullptr;  ///< the same for all; null to draw one for each
    float height = 0;                               ///< the same for all; 0 to draw
};
void buildRow(Builder& builder, const Row& row);

/// Taller houses all around, seen through lanes and over roofs.
void buildFarHouses(Builder& builder, float eye, float distance, int count);

/// Leaves of a kind of their own.
MaterialId drawLeaf(Builder& builder);
void plantTree(Builder& builder, const cv::Vec3f& foot, float height, int leaves);
/// The same, swaying in the wind.
void plantSwayingTree(Builder& builder, const cv::Vec3f& foot, float height, int leaves);

/// A place on level ground around the viewer.
inline cv::Vec3f onGround(float eye, float distance, float angle) {
    return {distance * std::sin(angle), eye, distance * std::cos(angle)};
}

}  // namespace fieldcal::world
