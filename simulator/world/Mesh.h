#pragma once

#include <opencv2/core.hpp>

#include <array>
#include <cmath>
#include <cstdint>
#include <vector>

namespace fieldcal::world {

/// Index into the materials of a world.
using MaterialId = std::uint16_t;

/// A vertex. Metres, x right, y down, z forward; `texture` is interpreted by the material, usually as metres along the
/// surface.
struct Vertex {
    cv::Vec3f position;
    cv::Vec3f normal;  ///< unit length, on either side
    cv::Vec2f texture;
};

/// Triangles, each with a material. A plain value.
struct Mesh {
    std::vector<Vertex> vertices;
    std::vector<std::array<std::uint32_t, 3>> triangles;
    std::vector<MaterialId> materials;  ///< one for each triangle

    std::uint32_t add(const Vertex& vertex) {
        vertices.push_back(vertex);
        return static_cast<std::uint32_t>(vertices.size() - 1);
    }
    void add(std::uint32_t a, std::uint32_t b, std::uint32_t c, MaterialId material) {
        triangles.push_back({a, b, c});
        materials.push_back(material);
    }
    /// Replaces all normals by the mean of the triangles around each vertex.
    void smoothNormals();
};

void append(Mesh& mesh, const Mesh& more);

inline cv::Vec3f unit(const cv::Vec3f& v) {
    return v * (1.0F / std::sqrt(v.dot(v)));
}

}  // namespace fieldcal::world
