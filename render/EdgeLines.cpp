#include "render/EdgeLines.h"

#include <array>
#include <cmath>

namespace fieldcal {
namespace {

constexpr double kLinePx = 3;
constexpr double kCasingPx = 2;  ///< on either side
constexpr std::array<float, 3> kLight{1, 1, 1};
constexpr std::array<float, 3> kDark{0.05F, 0.06F, 0.08F};

bool project(const std::array<float, 3>& point, const Eigen::Matrix4d& clip_point, QPointF* at) {
    const Eigen::Vector4d clip = clip_point * Eigen::Vector4d(point[0], point[1], point[2], 1);
    if (clip.w() <= 0 || std::abs(clip.z()) > clip.w()) return false;
    *at = {(clip.x() / clip.w() + 1) / 2, (1 - clip.y() / clip.w()) / 2};
    return QRectF(0, 0, 1, 1).contains(*at);
}

/// Four corners for each line, which extends by half its width beyond both ends, so that bends have no gaps.
std::vector<float> quads(const std::vector<EdgeLine>& lines, const QSize& viewport, double width) {
    std::vector<float> corners;
    corners.reserve(8 * lines.size());
    for (const EdgeLine& line : lines) {
        const Eigen::Vector2d from(line.from.x() * viewport.width(), line.from.y() * viewport.height());
        const Eigen::Vector2d to(line.to.x() * viewport.width(), line.to.y() * viewport.height());
        const Eigen::Vector2d along = (to - from).stableNormalized() * (width / 2);
        const Eigen::Vector2d across(-along.y(), along.x());
        const Eigen::Vector2d start = from - along / 2, end = to + along / 2;
        const Eigen::Vector2d quad[] = {start - across, start + across, end + across, end - across};
        for (const Eigen::Vector2d& corner : quad) {
            corners.push_back(static_cast<float>(corner.x()));
            corners.push_back(static_cast<float>(corner.y()));
        }
    }
    return corners;
}

void drawQuads(FixedFunctionGl& gl, const std::vector<float>& corners, const std::array<float, 3>& colour) {
    gl.glColor3fv(colour.data());
    gl.glVertexPointer(2, GL_FLOAT, 0, corners.data());
    gl.glDrawArrays(GL_QUADS, 0, static_cast<GLsizei>(corners.size() / 2));
}

}  // namespace

std::vector<EdgeLine> projectEdges(const std::vector<DepthEdge>& edges, const Eigen::Matrix4d& clip_point) {
    std::vector<EdgeLine> lines;
    lines.reserve(edges.size());
    EdgeLine line;
    for (const DepthEdge& edge : edges)
        if (project(edge.from, clip_point, &line.from) && project(edge.to, clip_point, &line.to)) lines.push_back(line);
    return lines;
}

double uprightShare(const std::vector<EdgeLine>& lines, const QRectF& area, double aspect) {
    if (area.isEmpty()) return 0;
    double height = 0;
    for (const EdgeLine& line : lines) {
        const QPointF way = line.to - line.from;
        const bool upright = std::abs(way.y()) > aspect * std::abs(way.x());
        if (upright && area.contains((line.from + line.to) / 2)) height += std::abs(way.y());
    }
    return height / area.height();
}

void drawEdgeLines(FixedFunctionGl& gl, const std::vector<EdgeLine>& lines, const QSize& viewport, double pixelRatio) {
    if (lines.empty()) return;
    gl.glDisable(GL_TEXTURE_2D);
    gl.glDisable(GL_BLEND);
    gl.glDisable(GL_LIGHTING);
    gl.glDisable(GL_DEPTH_TEST);
    gl.glMatrixMode(GL_PROJECTION);
    gl.glLoadIdentity();
    gl.glOrtho(0, viewport.width(), viewport.height(), 0, -1, 1);
    gl.glMatrixMode(GL_MODELVIEW);
    gl.glLoadIdentity();
    gl.glBindBuffer(GL_ARRAY_BUFFER, 0);
    gl.glEnableClientState(GL_VERTEX_ARRAY);
    drawQuads(gl, quads(lines, viewport, pixelRatio * (kLinePx + 2 * kCasingPx)), kDark);
    drawQuads(gl, quads(lines, viewport, pixelRatio * kLinePx), kLight);
    gl.glDisableClientState(GL_VERTEX_ARRAY);
}

}  // namespace fieldcal
