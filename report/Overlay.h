#pragma once

#include "engine/SolutionEvidence.h"

#include <QImage>
#include <QString>

namespace fieldcal {

/// Returns the part of the displayed still's infrared image, at most of the given size, that contains most of its
/// matches.
cv::Rect mostDetailedWindow(const vq::SolutionEvidence& evidence, const cv::Size& size);

/// Draws on white the edges of the infrared image in red, and those of the colour image, projected into the infrared
/// geometry with a rotation, in cyan. Coinciding edges appear dark. Parallax is removed with the distances of the
/// matches nearby.
QImage edgeOverlay(const vq::SolutionEvidence& evidence, const Eigen::Matrix3d& rotation, const cv::Rect& window);

/// Returns the infrared image, reduced if it is wider than `width`.
QImage smallInfrared(const vq::SolutionEvidence& evidence, int width);

/// Returns the image as PNG in a data URI.
QString dataUri(const QImage& image);

}  // namespace fieldcal
