#pragma once

#include "report/ServiceReport.h"

namespace fieldcal {

QString cameraName(const ReportedCamera& camera);
/// How far the camera has turned, and the proof in short.
QString summaryText(const ReportedCamera& camera);
/// What the proof came to.
QString proofText(const std::optional<vq::SolutionQuality>& quality);
/// Whether a rotation explains the photos.
QString modelText(const vq::ModelCheck& model);
QString distancesText(const vq::ParallaxReport& parallax);
QString photosText(const vq::SolutionEvidence& evidence);
QString writeText(const ServiceReport& report);

}  // namespace fieldcal
