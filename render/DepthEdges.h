#pragma once

#include "camera/CameraParameters.h"
#include "camera/ImageFrame.h"

#include <array>
#include <vector>

namespace fieldcal {

/// A short piece of the border of a surface in front of a farther one. Both ends have the form of `DepthPoint`: (x·z,
/// y·z, z), with z the depth of the nearer surface, to which the border belongs.
struct DepthEdge {
    std::array<float, 3> from;
    std::array<float, 3> to;
};

/// Finds the borders of surfaces in front of others: where depth increases by a fifth or more from one pixel to the
/// next, or where it ends. A narrow gap without depth, as stereo leaves beside near objects, belongs to the farther
/// surface. Where depth ends, only a surface that stands upright and has dense depth has a border, because depth also
/// ends where the ground is too bright and where anything is too far away. Borders shorter than about 24 pixels are
/// left out as noise. `camera`: the depth camera. Any thread.
std::vector<DepthEdge> findDepthEdges(const ImageFrame16& depth, const CameraModel& camera);

}  // namespace fieldcal
