#pragma once

#include "engine/SolutionEvidence.h"

#include <QImage>
#include <QString>

namespace fieldcal {

/// The part of the shown still's infrared image, of the given size at most, in which most of its matches lie.
cv::Rect mostDetailedWindow(const vq::SolutionEvidence& evidence, const cv::Size& size);

/// Edges of the infrared image in red and those of the colour image, brought into the infrared geometry by a rotation,
/// in cyan, on white: where both lie on each other, they are dark. Parallax is taken out by the distances of the
/// matches around.
QImage edgeOverlay(const vq::SolutionEvidence& evidence, const Eigen::Matrix3d& rotation, const cv::Rect& window);

/// The infrared image, made smaller until it is no wider than `width`.
QImage smallInfrared(const vq::SolutionEvidence& evidence, int width);

/// The image as PNG in a data URI.
QString dataUri(const QImage& image);

}  // namespace fieldcal
