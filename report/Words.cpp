#include "report/Words.h"

#include <QStringList>

#include <array>

namespace fieldcal {
namespace {

/// In the order of `vq::ModelDeparture`.
constexpr std::array<const char*, vq::kModelDepartureCount> kDepartures{
    "a changed focal length",
    "a shifted principal point",
    "a changed distortion",
    "a camera that has been displaced",
    "rows that are displaced in proportion to their height",
    "another rotation in the upper half of the image than in the lower one"};

const char* nameOf(vq::ModelDeparture departure) {
    return kDepartures[static_cast<std::size_t>(departure)];
}

QString baselineText(const vq::ParallaxReport& parallax) {
    if (!parallax.baselineM) return "stereo baseline unknown";
    QString text = QString("stereo baseline %1 mm").arg(*parallax.baselineM * 1e3, 0, 'f', 1);
    switch (parallax.baselineFrom) {
        case vq::BaselineSource::Depth:
            return text + " (from the depth image)";
        case vq::BaselineSource::Fit:
            return text + " (from the fit)";
        case vq::BaselineSource::Remembered:
            return text + " (from an earlier calibration)";
        case vq::BaselineSource::None:
            break;
    }
    return text;
}

}  // namespace

QString cameraName(const ReportedCamera& camera) {
    return camera.camera == ColourCamera::Platform ? "Rear camera of the tablet" : "Colour camera in the module";
}

QString summaryText(const ReportedCamera& camera) {
    const QString turned =
        QString("turned by %1%2").arg(turnDeg(camera.stored, camera.accepted), 0, 'f', 3).arg(QChar(0xB0));
    if (!camera.quality || !camera.quality->proof) return turned + "; without proof";
    const vq::HoldOutProof& proof = *camera.quality->proof;
    return QString("%1; on photos that took no part, off by %2 px before and %3 px now%4")
        .arg(turned)
        .arg(proof.storedPx, 0, 'f', 1)
        .arg(proof.newPx, 0, 'f', 1)
        .arg(camera.movedByHand() ? " (before it was moved by hand)" : "");
}

QString proofText(const std::optional<vq::SolutionQuality>& quality) {
    if (!quality || !quality->proof) return "None: fewer than two photos could be judged by the others.";
    const vq::HoldOutProof& proof = *quality->proof;
    return QString(
               "%1 px with the stored calibration, %2 px with the new one: median distance of %3 matches in %4 "
               "photos, each judged by the others alone. %5")
        .arg(proof.storedPx, 0, 'f', 2)
        .arg(proof.newPx, 0, 'f', 2)
        .arg(proof.matches)
        .arg(proof.stills)
        .arg(proof.isClear() ? "The new one is clearly better." : "The new one is not clearly better.");
}

QString modelText(const vq::ModelCheck& model) {
    const QString name = nameOf(model.strongest());
    const QString chance = QString::number(model.probability[static_cast<std::size_t>(model.strongest())], 'g', 2);
    if (!model.departure())
        return QString("A rotation alone explains the photos (likeliest other change: %1, p = %2).").arg(name, chance);
    return QString(
               "A rotation alone does not explain the photos: they speak for %1 as well (p = %2). Either the camera "
               "has changed in more than its direction, or the scene misleads this check.")
        .arg(name, chance);
}

QString distancesText(const vq::ParallaxReport& parallax) {
    if (parallax.withDistance == 0)
        return "None measured: everything counted as far away; " + baselineText(parallax) + ".";
    const QString median = parallax.medianDistanceM ? QString("median %1 m").arg(*parallax.medianDistanceM, 0, 'f', 1)
                                                    : QString("most too far to tell");
    return QString("%1 matches with a distance, %2; %3.")
        .arg(parallax.withDistance)
        .arg(median, baselineText(parallax));
}

QString photosText(const vq::SolutionEvidence& evidence) {
    QStringList counts;
    for (const int count : evidence.matchesPerStill)
        counts << (count > 0 ? QString::number(count) : QString("left out"));
    return QString("%1; fitted matches: %2.").arg(evidence.matchesPerStill.size()).arg(counts.join(", "));
}

QString writeText(const ServiceReport& report) {
    if (!report.write) return "Nothing was written into the camera.";
    const ReportedWrite& write = *report.write;
    QString text = write.stored ? QString("Written into the camera and read back. ")
                                : QString("NOT STORED: %1 ").arg(write.reason);
    text += write.flash;
    // If the content of the flash is uncertain, its own text already names the file.
    if (!write.backupFile.isEmpty() && !write.flash.contains(write.backupFile))
        text += " The previous calibration is kept in " + write.backupFile;
    return text;
}

}  // namespace fieldcal
