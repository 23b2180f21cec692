#pragma once

#include "camera/ImageFrame.h"
#include "render/DepthRange.h"
#include "render/FixedFunctionGl.h"

#include <Eigen/Core>

#include <array>
#include <cstdint>
#include <vector>

namespace fieldcal {

/// One depth pixel (column x, row y, depth z in metres) in OpenGL's layout C4UB_V3F. The position is (x·z, y·z, z),
/// which is linear in the point's position in space for all intrinsics, so that the intrinsics can be part of the
/// matrix.
struct DepthPoint {
    std::array<std::uint8_t, 4> colour;
    std::array<float, 3> position;
};

/// Converts a depth frame in millimetres to points coloured by depth within `range`; pixels of value 0 give no point.
/// Any thread.
void depthToCloud(const ImageFrame16& depth, const DepthRange& range, std::vector<DepthPoint>* cloud);

/// A point cloud in OpenGL's memory. Everything on the render thread, with the context current.
class DepthCloudBuffer {
public:
    void upload(FixedFunctionGl& gl, const std::vector<DepthPoint>& cloud);
    /// Draws each point as a square of `pointSize` pixels, with depth test; the depth buffer must have been cleared.
    /// The caller saves the attributes; the matrices are changed.
    void draw(FixedFunctionGl& gl, const Eigen::Matrix4d& clip_point, float pointSize) const;
    void release(FixedFunctionGl& gl);

private:
    GLuint name_ = 0;
    GLsizei count_ = 0;
};

}  // namespace fieldcal
