#pragma once

#include "camera/ImageFrame.h"
#include "render/FixedFunctionGl.h"

#include <Eigen/Core>

#include <array>
#include <cstdint>
#include <vector>

namespace fieldcal {

/// One depth pixel (column x, row y, depth z in metres) in OpenGL's layout C4UB_V3F. The position is (x·z, y·z, z):
/// linear in the point in space whatever the intrinsics are, so that these stay in the matrix.
struct DepthPoint {
    std::array<std::uint8_t, 4> colour;
    std::array<float, 3> position;
};

/// The points of a depth frame in millimetres, colourised by their depth; 0 is no point. Any thread.
void depthToCloud(const ImageFrame16& depth, std::vector<DepthPoint>* cloud);

/// A cloud in OpenGL's memory. Everything on the render thread, with the context current.
class DepthCloudBuffer {
public:
    void upload(FixedFunctionGl& gl, const std::vector<DepthPoint>& cloud);
    /// Each point a square of `pointSize` pixels, the nearest before the others. Needs a cleared depth buffer.
    /// Attributes are the caller's to keep; the matrices are changed.
    void draw(FixedFunctionGl& gl, const Eigen::Matrix4d& clip_point, float pointSize) const;
    void release(FixedFunctionGl& gl);

private:
    GLuint name_ = 0;
    GLsizei count_ = 0;
};

}  // namespace fieldcal
