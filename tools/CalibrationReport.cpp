#include "tools/CalibrationReport.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

#include <cmath>

namespace fieldcal {
namespace {

template <typename Numbers>
QJsonArray jsonNumbers(const Numbers& numbers) {
    QJsonArray array;
    for (const double number : numbers)
        array.append(number);
    return array;
}

QJsonObject jsonPair(const PairReport& pair) {
    return {{"detected", QJsonArray{pair.statistics.infraredCorners, pair.statistics.colourCorners}},
            {"matched", pair.statistics.matched},
            {"verified", pair.statistics.verified},
            {"code", pair.code},
            {"seconds", pair.seconds}};
}

/// Returns the time of all stages from the images to the descriptor matches.
double matchingSeconds(const CalibrationReport& report) {
    using Statistics = vq::PairStatistics;
    return report.stageSeconds(&Statistics::conversionSeconds) + report.stageSeconds(&Statistics::detectionSeconds) +
           report.stageSeconds(&Statistics::descriptionSeconds) + report.stageSeconds(&Statistics::matchingSeconds);
}

QJsonObject jsonSeconds(const CalibrationReport& report) {
    return {{"total", report.totalSeconds},
            {"frames", report.frameSeconds},
            {"matching", matchingSeconds(report)},
            {"verification", report.stageSeconds(&vq::PairStatistics::verificationSeconds)},
            {"estimation", report.stageSeconds(&vq::PairStatistics::estimationSeconds)}};
}

QString nameOf(vq::BaselineSource source) {
    switch (source) {
        case vq::BaselineSource::Depth:
            return "depth";
        case vq::BaselineSource::Fit:
            return "fit";
        case vq::BaselineSource::Remembered:
            return "remembered";
        case vq::BaselineSource::None:
            break;
    }
    return "none";
}

QJsonObject jsonParallax(const vq::ParallaxReport& parallax) {
    return {{"withDistance", parallax.withDistance},
            {"baselineMm", parallax.baselineM ? QJsonValue(*parallax.baselineM * 1e3) : QJsonValue()},
            {"baselineFrom", nameOf(parallax.baselineFrom)},
            {"medianDistanceM", parallax.medianDistanceM ? QJsonValue(*parallax.medianDistanceM) : QJsonValue()}};
}

QJsonObject jsonRegistration(const std::map<int, double>& registrationPx) {
    QJsonObject object;
    for (const auto& [metres, px] : registrationPx)
        object.insert(QString::number(metres), px);
    return object;
}

/// In the order of `vq::ModelDeparture`.
constexpr std::array<const char*, vq::kModelDepartureCount> kDepartureNames{
    "focal", "principal-point", "distortion", "translation", "part-of-the-picture", "part-of-the-picture"};

const char* verdictOf(const vq::ModelCheck& model) {
    const auto departure = model.departure();
    return departure ? kDepartureNames[static_cast<std::size_t>(*departure)] : "rotation";
}

QJsonObject jsonProof(const vq::HoldOutProof& proof) {
    return {{"beforePx", proof.storedPx}, {"afterPx", proof.newPx}, {"matches", proof.matches}};
}

QJsonObject jsonModel(const vq::ModelCheck& model) {
    return {{"verdict", verdictOf(model)}, {"p", model.probability[static_cast<std::size_t>(model.strongest())]}};
}

QString qualityText(const vq::SolutionQuality& quality) {
    QString text = QString("uncertainty (one deviation): %1 %2 %3 degrees\n")
                       .arg(quality.deviationDeg[0], 0, 'f', 4)
                       .arg(quality.deviationDeg[1], 0, 'f', 4)
                       .arg(quality.deviationDeg[2], 0, 'f', 4);
    if (quality.proof) {
        text += QString("%1 px with the stored calibration, %2 px with the new one, on photos that took no part\n")
                    .arg(quality.proof->storedPx, 0, 'f', 1)
                    .arg(quality.proof->newPx, 0, 'f', 1);
    }
    if (quality.model.departure())
        text += QString("a rotation alone does not explain the photos: %1\n").arg(verdictOf(quality.model));
    return text;
}

QString distancesText(const vq::ParallaxReport& parallax) {
    if (parallax.withDistance == 0) return "no distances were measured\n";
    const QString median = parallax.medianDistanceM ? QString("median %1 m").arg(*parallax.medianDistanceM, 0, 'g', 2)
                                                    : QString("most too far to tell");
    const QString baseline = parallax.baselineM ? QString("stereo baseline %1 mm (%2)")
                                                      .arg(*parallax.baselineM * 1e3, 0, 'f', 1)
                                                      .arg(nameOf(parallax.baselineFrom))
                                                : QString("stereo baseline unknown");
    return QString("distances: %1 matches, %2; %3\n").arg(parallax.withDistance).arg(median, baseline);
}

QString registrationText(const std::map<int, double>& registrationPx) {
    QStringList parts;
    for (const auto& [metres, px] : registrationPx)
        parts.append(QString("%1 px at %2 m").arg(px, 0, 'f', 2).arg(metres));
    return parts.isEmpty() ? QString() : "colour off its surface by " + parts.join(", ") + "\n";
}

}  // namespace

double CalibrationReport::stageSeconds(double vq::PairStatistics::*stage) const {
    double sum = 0;
    for (const PairReport& pair : pairs)
        sum += pair.statistics.*stage;
    return sum;
}

QJsonObject reportJson(const CalibrationReport& report) {
    QJsonArray perPair;
    for (const PairReport& pair : report.pairs)
        perPair.append(jsonPair(pair));
    QJsonObject object{
        {"solved", report.solved},
        {"camera", nameOf(report.camera)},
        {"pairs", static_cast<int>(report.pairs.size())},
        {"framesUsed", report.framesUsed},
        {"anglesDeg", jsonNumbers(report.anglesDeg)},
        {"rotation", jsonNumbers(report.rotation)},
        {"factoryRotation", jsonNumbers(report.factoryRotation)},
        {"errorDeg", report.errorDeg ? QJsonValue(*report.errorDeg) : QJsonValue()},
        {"uncertaintyDeg", report.quality ? QJsonValue(jsonNumbers(report.quality->deviationDeg)) : QJsonValue()},
        {"parallax", jsonParallax(report.parallax)},
        {"perPair", perPair},
        {"seconds", jsonSeconds(report)}};
    if (!report.registrationPx.empty()) object.insert("registrationPx", jsonRegistration(report.registrationPx));
    if (report.quality && report.quality->proof) object.insert("proof", jsonProof(*report.quality->proof));
    if (report.quality) object.insert("model", jsonModel(report.quality->model));
    if (!report.lastSave.isEmpty()) object.insert("lastSave", report.lastSave);
    if (report.written) object.insert("written", *report.written);
    return object;
}

QString reportText(const CalibrationReport& report) {
    const QString took = QString("%1 pairs from %2 frames in %3 s")
                             .arg(report.pairs.size())
                             .arg(report.framesUsed)
                             .arg(report.totalSeconds, 0, 'f', 2);
    if (!report.solved) return "not solved: " + took + "\n" + distancesText(report.parallax);
    QString text = QString("solved: %1\n").arg(took);
    text += QString("angles about X, Y, Z: %1 %2 %3 degrees\n")
                .arg(report.anglesDeg[0], 0, 'f', 4)
                .arg(report.anglesDeg[1], 0, 'f', 4)
                .arg(report.anglesDeg[2], 0, 'f', 4);
    if (report.quality) text += qualityText(*report.quality);
    text += QString("changed from the factory rotation by %1 degrees\n")
                .arg(angleBetweenDeg(report.rotation, report.factoryRotation), 0, 'f', 4);
    text += distancesText(report.parallax);
    if (report.errorDeg) text += QString("off the truth by %1 degrees\n").arg(*report.errorDeg, 0, 'f', 4);
    return text + registrationText(report.registrationPx);
}

}  // namespace fieldcal
