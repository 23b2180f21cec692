#include "render/DepthCloud.h"

#include "render/DepthColourMap.h"

namespace fieldcal {
namespace {

constexpr float kMetresPerMillimetre = 0.001F;

}  // namespace

void depthToCloud(const ImageFrame16& depth, const DepthRange& range, std::vector<DepthPoint>* cloud) {
    const DepthColours colours(range);
    cloud->clear();
    cloud->reserve(std::size_t{depth.width()} * depth.height());
    const std::uint16_t* pixel = depth.pixels();
    for (std::uint32_t y = 0; y < depth.height(); ++y) {
        for (std::uint32_t x = 0; x < depth.width(); ++x, ++pixel) {
            if (*pixel == 0) continue;
            const float z = static_cast<float>(*pixel) * kMetresPerMillimetre;
            cloud->push_back({colours(*pixel), {static_cast<float>(x) * z, static_cast<float>(y) * z, z}});
        }
    }
}

void DepthCloudBuffer::upload(FixedFunctionGl& gl, const std::vector<DepthPoint>& cloud) {
    if (name_ == 0) gl.glGenBuffers(1, &name_);
    count_ = static_cast<GLsizei>(cloud.size());
    gl.glBindBuffer(GL_ARRAY_BUFFER, name_);
    gl.glBufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(cloud.size() * sizeof(DepthPoint)), cloud.data(),
                    GL_STREAM_DRAW);
    gl.glBindBuffer(GL_ARRAY_BUFFER, 0);
}

void DepthCloudBuffer::draw(FixedFunctionGl& gl, const Eigen::Matrix4d& clip_point, float pointSize) const {
    if (count_ == 0) return;
    gl.glDisable(GL_TEXTURE_2D);
    gl.glDisable(GL_BLEND);
    gl.glDisable(GL_LIGHTING);
    gl.glEnable(GL_DEPTH_TEST);
    gl.glDepthFunc(GL_LESS);
    gl.glMatrixMode(GL_PROJECTION);
    gl.glLoadMatrixd(clip_point.data());
    gl.glMatrixMode(GL_MODELVIEW);
    gl.glLoadIdentity();
    gl.glPointSize(pointSize);
    gl.glBindBuffer(GL_ARRAY_BUFFER, name_);
    gl.glInterleavedArrays(GL_C4UB_V3F, 0, nullptr);
    gl.glDrawArrays(GL_POINTS, 0, count_);
    gl.glDisableClientState(GL_COLOR_ARRAY);
    gl.glDisableClientState(GL_VERTEX_ARRAY);
    gl.glBindBuffer(GL_ARRAY_BUFFER, 0);
}

void DepthCloudBuffer::release(FixedFunctionGl& gl) {
    if (name_ != 0) gl.glDeleteBuffers(1, &name_);
    name_ = 0;
    count_ = 0;
}

}  // namespace fieldcal
