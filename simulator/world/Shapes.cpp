#include "simulator/world/Shapes.h"

#include <cmath>

namespace fieldcal::world {

namespace {

/// Two triangles between four vertices in order around the quad.
void addFace(Mesh& mesh, std::array<std::uint32_t, 4> corners, MaterialId material) {
    mesh.add(corners[0], corners[1], corners[2], material);
    mesh.add(corners[0], corners[2], corners[3], material);
}

}  // namespace

void addQuad(Mesh& mesh, const Quad& quad, MaterialId material) {
    const cv::Vec3f normal = unit(quad.along.cross(quad.up));
    const auto width = static_cast<float>(cv::norm(quad.along)), height = static_cast<float>(cv::norm(quad.up));
    const auto vertex = [&](float s, float t) {
        return mesh.add(
            {quad.corner + quad.along * s + quad.up * t, normal, quad.texture + cv::Vec2f(s * width, t * height)});
    };
    const auto a = vertex(0, 0), b = vertex(1, 0), c = vertex(1, 1), d = vertex(0, 1);
    addFace(mesh, {a, b, c, d}, material);
}

void addBox(Mesh& mesh, const Box& box, MaterialId material) {
    const cv::Vec3f x = cv::Vec3f(std::cos(box.turn), 0, std::sin(box.turn)) * box.size[0];
    const cv::Vec3f z = cv::Vec3f(-std::sin(box.turn), 0, std::cos(box.turn)) * box.size[2];
    const cv::Vec3f up(0, -box.size[1], 0);
    const cv::Vec3f corner = box.foot - x * 0.5F - z * 0.5F;
    addQuad(mesh, {corner, x, up}, material);
    addQuad(mesh, {corner + x, z, up}, material);
    addQuad(mesh, {corner + x + z, -x, up}, material);
    addQuad(mesh, {corner + z, -z, up}, material);
    addQuad(mesh, {corner + up, x, z}, material);
    addQuad(mesh, {corner, x, z}, material);
}

void addPost(Mesh& mesh, const Post& post, MaterialId material) {
    const auto first = static_cast<std::uint32_t>(mesh.vertices.size());
    for (int i = 0; i <= post.sides; ++i) {
        const float angle = kFullTurnRad * static_cast<float>(i) / static_cast<float>(post.sides);
        const cv::Vec3f out(std::cos(angle), 0, std::sin(angle));
        const cv::Vec3f normal = unit(out + cv::Vec3f(0, (post.upperRadius - post.lowerRadius) / post.height, 0));
        mesh.add({post.foot + out * post.lowerRadius, normal, {angle * post.lowerRadius, 0}});
        mesh.add({post.foot + out * post.upperRadius + cv::Vec3f(0, -post.height, 0),
                  normal,
                  {angle * post.lowerRadius, post.height}});
    }
    for (std::uint32_t i = 0; i < static_cast<std::uint32_t>(post.sides); ++i) {
        const std::uint32_t a = first + 2 * i;
        addFace(mesh, {a, a + 2, a + 3, a + 1}, material);
    }
}

void addBall(Mesh& mesh, const cv::Vec3f& centre, const cv::Vec3f& radii, int rings, MaterialId material,
             const std::function<float(const cv::Vec3f&)>& bump) {
    Mesh ball;
    const int sectors = 2 * rings;
    for (int ring = 0; ring <= rings; ++ring)
        for (int sector = 0; sector <= sectors; ++sector) {
            const float polar = 0.5F * kFullTurnRad * static_cast<float>(ring) / static_cast<float>(rings);
            // The last sector repeats the first one exactly, so that there is no seam.
            const float around = kFullTurnRad * static_cast<float>(sector % sectors) / static_cast<float>(sectors);
            const cv::Vec3f d(std::sin(polar) * std::cos(around), -std::cos(polar), std::sin(polar) * std::sin(around));
            const float r = bump ? bump(d) : 1.0F;
            const cv::Vec3f out(d[0] * radii[0] * r, d[1] * radii[1] * r, d[2] * radii[2] * r);
            const float run = kFullTurnRad * static_cast<float>(sector) / static_cast<float>(sectors);
            ball.add({centre + out, d, {run * radii[0], polar * radii[1]}});
        }
    const auto row = static_cast<std::uint32_t>(sectors + 1);
    for (std::uint32_t ring = 0; ring < static_cast<std::uint32_t>(rings); ++ring)
        for (std::uint32_t sector = 0; sector < row - 1; ++sector) {
            const std::uint32_t a = ring * row + sector;
            addFace(ball, {a, a + 1, a + row + 1, a + row}, material);
        }
    if (bump) ball.smoothNormals();
    append(mesh, ball);
}

void addHeightField(Mesh& mesh, const PolarField& field, const HeightFunction& height, MaterialId material) {
    Mesh ground;
    for (int ring = 0; ring <= field.rings; ++ring) {
        const float share = static_cast<float>(ring) / static_cast<float>(field.rings);
        const float radius = field.nearest * std::pow(field.farthest / field.nearest, share);
        for (int sector = 0; sector < field.sectors; ++sector) {
            const float angle = kFullTurnRad * static_cast<float>(sector) / static_cast<float>(field.sectors);
            const float x = radius * std::sin(angle), z = radius * std::cos(angle);
            ground.add({{x, -height(x, z), z}, {0, -1, 0}, {x, z}});
        }
    }
    const auto row = static_cast<std::uint32_t>(field.sectors);
    for (std::uint32_t ring = 0; ring < static_cast<std::uint32_t>(field.rings); ++ring)
        for (std::uint32_t sector = 0; sector < row; ++sector) {
            const std::uint32_t a = ring * row + sector, b = ring * row + (sector + 1) % row;
            addFace(ground, {a, b, b + row, a + row}, material);
        }
    ground.smoothNormals();
    append(mesh, ground);
}

}  // namespace fieldcal::world
