#pragma once

#include "report/ServiceReport.h"

namespace fieldcal {

QString cameraName(const ReportedCamera& camera);
/// Describes the rotation of the camera and the hold-out proof in short.
QString summaryText(const ReportedCamera& camera);
/// Describes the result of the hold-out proof.
QString proofText(const std::optional<vq::SolutionQuality>& quality);
/// Describes whether a rotation alone explains the photos.
QString modelText(const vq::ModelCheck& model);
QString distancesText(const vq::ParallaxReport& parallax);
QString photosText(const vq::SolutionEvidence& evidence);
QString writeText(const ServiceReport& report);

}  // namespace fieldcal
