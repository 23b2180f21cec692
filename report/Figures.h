#pragma once

#include "engine/SolutionEvidence.h"
#include "report/Markup.h"

#include <Eigen/Core>

#include <vector>

namespace fieldcal {

/// Returns the lengths of the residuals under a rotation, pixels.
std::vector<double> residualLengthsPx(const vq::SolutionEvidence& evidence, const Eigen::Matrix3d& rotation);
double medianPx(std::vector<double> lengthsPx);

/// Returns the factor by which the residuals are enlarged in the drawing: 1, 2 or 5 times a power of ten.
double exaggeration(const vq::SolutionEvidence& evidence, const Eigen::Matrix3d& rotation);

/// Draws residuals over the infrared image: some of the matches as thin vectors, and the median of each part of the
/// image as a thick one.
void drawResiduals(Markup* out, const vq::SolutionEvidence& evidence, const Eigen::Matrix3d& rotation);
/// Draws histograms of the residuals' lengths with the stored and with the new rotation.
void drawHistogram(Markup* out, const std::vector<double>& storedPx, const std::vector<double>& newPx);
/// Draws the number of matches of all stills in each area of the infrared image.
void drawCoverage(Markup* out, const vq::SolutionEvidence& evidence);

}  // namespace fieldcal
