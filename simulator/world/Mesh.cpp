#include "simulator/world/Mesh.h"

namespace fieldcal::world {

void Mesh::smoothNormals() {
    for (auto& v : vertices)
        v.normal = {0, 0, 0};
    for (const auto& t : triangles) {
        const auto &a = vertices[t[0]].position, &b = vertices[t[1]].position, &c = vertices[t[2]].position;
        const cv::Vec3f weighted = (b - a).cross(c - a);
        for (const auto corner : t)
            vertices[corner].normal += weighted;
    }
    for (auto& v : vertices)
        v.normal = v.normal.dot(v.normal) > 0 ? unit(v.normal) : cv::Vec3f(0, -1, 0);
}

void append(Mesh& mesh, const Mesh& more) {
    const auto first = static_cast<std::uint32_t>(mesh.vertices.size());
    mesh.vertices.insert(mesh.vertices.end(), more.vertices.begin(), more.vertices.end());
    mesh.materials.insert(mesh.materials.end(), more.materials.begin(), more.materials.end());
    for (const auto& t : more.triangles)
        mesh.triangles.push_back({t[0] + first, t[1] + first, t[2] + first});
}

}  // namespace fieldcal::world
