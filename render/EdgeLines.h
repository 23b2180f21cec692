#pragma once

#include "render/DepthEdges.h"
#include "render/FixedFunctionGl.h"

#include <Eigen/Core>
#include <QPointF>
#include <QRectF>
#include <QSize>

#include <vector>

namespace fieldcal {

/// A piece of a depth edge in the colour image: (0, 0) is its upper left corner, (1, 1) its lower right one.
struct EdgeLine {
    QPointF from;
    QPointF to;
};

/// Projects the edges with the matrix of `overlayProjection`. Pieces that are partly outside of the range of distances
/// or of the image are left out.
std::vector<EdgeLine> projectEdges(const std::vector<DepthEdge>& edges, const Eigen::Matrix4d& clip_point);

/// Returns the height covered by the lines within `area` that are steeper than 45°, as a multiple of the area's height.
/// Only such lines show an error to the left or right. `aspect`: width over height of the image.
double uprightShare(const std::vector<EdgeLine>& lines, const QRectF& area, double aspect);

/// Draws light lines with a dark casing into the viewport of the given size, so that one of the two differs from every
/// surrounding. The caller saves the attributes; the matrices are changed. Render thread.
void drawEdgeLines(FixedFunctionGl& gl, const std::vector<EdgeLine>& lines, const QSize& viewport, double pixelRatio);

}  // namespace fieldcal
