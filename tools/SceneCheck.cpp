#include "tools/SceneCheck.h"

#include "engine/DistanceMeter.h"
#include "engine/InfraredConversion.h"
#include "engine/Median.h"
#include "engine/PatchAlignment.h"
#include "engine/Rotation.h"
#include "engine/StereoMatcher.h"
#include "tools/CameraComparison.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <utility>

namespace fieldcal {
namespace {

constexpr double kSignificant = 3.0;  ///< in standard deviations
constexpr int kMaxRows = 8;
constexpr double kTolerableRowsPx = 0.5;
constexpr std::size_t kMinPlaces = 60;
constexpr float kNearDisparityPx = 1.0F;
constexpr double kSmallestBaselineM = 0.015, kLargestBaselineM = 0.2;
constexpr double kShortestMm = 5, kLongestMm = 400;
constexpr double kMetresToMillimetres = 1000;
/// An estimate is assigned to one of two candidates when its distance from that candidate is below this share of the
/// distance between the two.
constexpr double kNearShare = 0.25;
constexpr double kLargestMedianPx = 1.0;
/// Additional uncertainty for errors that are correlated within parts of an image, in the camera's own pixels. With it,
/// photographs and rendered squares with known principal point scatter as predicted.
constexpr double kPrincipalPointDoubtPx = 0.05;
constexpr float kOtherSizes[] = {0.97F, 1.03F, 0.94F, 1.06F};
constexpr const char* kNoRotation = "no rotation could be estimated from the scene";

/// A convention about principal points. The shift is in pixels of the camera's own image along both axes.
struct Convention {
    const char* name;
    double shiftPx;
};

cv::Mat asMatrix(const vq::ImagePairRecord& record, int type) {
    if (record.width == 0) return {};
    return {static_cast<int>(record.height), static_cast<int>(record.width), type,
            const_cast<std::uint8_t*>(record.pixels.data())};
}

std::vector<cv::Point2f> placesOf(const cv::Mat& infrared16) {
    cv::Mat infrared8;
    vq::convertInfrared(infrared16, vq::HistogramStretch, &infrared8);
    return vq::texturedPlaces(infrared8);
}

/// Returns the image moved up by `rows` rows.
cv::Mat raised(const cv::Mat& image, int rows) {
    cv::Mat moved = image.clone();
    const int height = image.rows - std::abs(rows);
    const cv::Rect from(0, std::max(rows, 0), image.cols, height), to(0, std::max(-rows, 0), image.cols, height);
    image(from).copyTo(moved(to));
    return moved;
}

/// The comparison of the right image with the left one at the textured points of all stills.
struct StereoEvidence {
    std::vector<double> rows;  ///< offset of each point in rows, positive when it is lower in the right image
    std::size_t inFront = 0;   ///< number of points with the disparity of a near object
};

StereoEvidence stereoEvidence(const std::vector<vq::SelectedImages>& stills, int rows, bool swapped) {
    StereoEvidence found;
    for (const vq::SelectedImages& still : stills) {
        cv::Mat left = asMatrix(still.infrared, CV_16UC1), right = asMatrix(still.right, CV_16UC1);
        if (left.empty() || right.size() != left.size()) continue;
        if (swapped) std::swap(left, right);
        const vq::StereoMatcher matcher(left, raised(right, rows));
        const std::vector<cv::Point2f> places = placesOf(left);
        const std::vector<float> coarse = matcher.findCoarse(places);
        for (const float offset : matcher.refineRows(places, coarse)) {
            if (!std::isnan(offset)) found.rows.push_back(static_cast<double>(offset) + rows);
        }
        found.inFront += static_cast<std::size_t>(
            std::count_if(coarse.begin(), coarse.end(), [](float px) { return px > 2 * kNearDisparityPx; }));
    }
    return found;
}

CheckLine orderLine(const std::vector<vq::SelectedImages>& stills, int rows) {
    CheckLine line{"imagers", "the left imager is on the left", Verdict::CannotTell,
                   "no near object is visible to both imagers"};
    const std::size_t asReported = stereoEvidence(stills, rows, false).inFront;
    const std::size_t swapped = stereoEvidence(stills, -rows, true).inFront;
    if (std::max(asReported, swapped) < kMinPlaces) return line;
    line.text = QString("%1 points have the disparity of a near object as reported, %2 with the imagers exchanged")
                    .arg(asReported)
                    .arg(swapped);
    if (asReported > 2 * swapped) line.verdict = Verdict::Fits;
    if (swapped > 2 * asReported) line.verdict = Verdict::DoesNotFit;
    return line;
}

/// Returns the number of rows by which the right image has to be raised so that most points are found again.
int bestRows(const std::vector<vq::SelectedImages>& stills, bool swapped) {
    const std::vector<vq::SelectedImages> some(
        stills.begin(), stills.begin() + std::min<std::ptrdiff_t>(2, static_cast<std::ptrdiff_t>(stills.size())));
    int best = 0;
    std::size_t most = 0;
    for (int rows = -kMaxRows; rows <= kMaxRows; ++rows) {
        const std::size_t count = stereoEvidence(some, rows, swapped).rows.size();
        if (count > most) {
            most = count;
            best = rows;
        }
    }
    return best;
}

CheckLine rowLine(const StereoEvidence& evidence) {
    CheckLine line{"stereo-rows", "left and right rows are aligned", Verdict::CannotTell,
                   "too few points were matched between the two images"};
    if (evidence.rows.size() < kMinPlaces) return line;
    const double offset = vq::medianOf(evidence.rows);
    line.verdict = verdictOf(std::abs(offset) <= kTolerableRowsPx);
    line.text = QString("the right image is %1 rows lower than the left one (median of %2 points)")
                    .arg(offset, 0, 'f', 2)
                    .arg(evidence.rows.size());
    return line;
}

CheckLine baselineLine(const std::vector<vq::SelectedImages>& stills, const CameraParameters& parameters) {
    CheckLine line{"baseline", "disparities agree with depth", Verdict::CannotTell, ""};
    vq::DistanceMeter meter;
    meter.setup(parameters.infrared, parameters.depth, 0);
    std::size_t both = 0;
    for (const vq::SelectedImages& still : stills) {
        const cv::Mat left = asMatrix(still.infrared, CV_16UC1);
        meter.beginPair(left, asMatrix(still.right, CV_16UC1), asMatrix(still.depth, CV_16UC1));
        std::vector<vq::MeasuredPlace> places = meter.lookUp(placesOf(left));
        meter.refine(&places);
        meter.learnFrom(places);
        both += static_cast<std::size_t>(std::count_if(places.begin(), places.end(), [](const auto& place) {
            return !std::isnan(place.disparityPx) && !std::isnan(place.inverseDepth);
        }));
    }
    line.text = QString("%1 points have both a disparity and a depth").arg(both);
    if (meter.source() != vq::BaselineSource::Depth || !meter.baselineM()) return line;
    const double baselineM = *meter.baselineM();
    line.verdict = verdictOf(baselineM >= kSmallestBaselineM && baselineM <= kLargestBaselineM);
    line.text += QString(": the baseline is %1 ± %2 mm")
                     .arg(baselineM * kMetresToMillimetres, 0, 'f', 1)
                     .arg(baselineM * kMetresToMillimetres * meter.scale()->relativeDeviation, 0, 'f', 1);
    return line;
}

/// Returns whether an estimate agrees with `value` and significantly differs from `-value`.
bool isAbout(double estimate, double deviation, double value) {
    const double otherDeviations = std::abs(estimate + value) / deviation;
    return std::abs(estimate - value) < kNearShare && otherDeviations >= kSignificant;
}

/// Returns the stills without the streams that the lines in `trusted` contradict.
std::vector<vq::SelectedImages> trustedStills(const CameraStills& camera, const CheckLines& trusted) {
    std::vector<vq::SelectedImages> stills = camera.stills;
    const bool noDepth = contradicts(trusted, "baseline");
    const bool noRight = contradicts(trusted, "imagers") || contradicts(trusted, "stereo-rows");
    for (vq::SelectedImages& still : stills) {
        if (noDepth) still.depth = {};
        if (noRight) still.right = {};
    }
    return stills;
}

/// Evaluates one colour camera.
class CameraEvaluator {
public:
    CameraEvaluator(const CameraStills& camera, const CameraParameters& parameters, const CheckLines& trusted)
        : platform_(camera.platformCamera), parameters_(parameters), stills_(trustedStills(camera, trusted)) {}

    CheckLines lines(Direction* direction) {
        solve();
        CheckLines all{translationLine()};
        all.push_back(rotationLine(direction));
        all.push_back(principalPointLine());
        all.push_back(modelLine());
        return all;
    }

    CheckLines undetermined(const QString& why) const {
        CheckLines all;
        for (const char* id : {"translation", "rotation", "principal-point", "model"})
            all.push_back(line(id, Verdict::CannotTell, why));
        return all;
    }

private:
    CheckLine line(const QString& id, Verdict verdict, const QString& text) const {
        const QString camera = platform_ ? "rear" : "third";
        const QString what = id == "translation"       ? "direction of the translation, %1 camera"
                             : id == "rotation"        ? "direction of the rotation, %1 camera"
                             : id == "principal-point" ? "principal point, %1 camera"
                                                       : "images match the calibration, %1 camera";
        return {id + '-' + camera, what.arg(camera), verdict, text};
    }

    /// Estimates the rotation. If there is no solution with the cameras as reported, the search starts from the
    /// transposed rotation, and after that assumes other focal lengths, as of smaller or larger images.
    void solve() {
        solution_ = solveStills(stills_, parameters_, platform_);
        if (solution_ || stills_.empty()) return;
        CameraParameters other = parameters_;
        std::array<float, 9>& rotation = pose(other).rotation;
        for (const auto& [upper, lower] : {std::pair<std::size_t, std::size_t>{1, 3}, {2, 6}, {5, 7}})
            std::swap(rotation[upper], rotation[lower]);
        solution_ = solveStills(stills_, other, platform_);
        for (const float factor : kOtherSizes) {
            if (solution_ || otherSize_) return;
            other = parameters_;
            model(other).fx *= factor;
            model(other).fy *= factor;
            if (solveStills(stills_, other, platform_)) otherSize_ = factor;
        }
    }

    CameraExtrinsics& pose(CameraParameters& parameters) const {
        return platform_ ? parameters.colour[ColourCamera::Platform].fromDepth
                         : parameters.colour[ColourCamera::Third].fromDepth;
    }
    CameraModel& model(CameraParameters& parameters) const {
        return platform_ ? parameters.colour[ColourCamera::Platform].model
                         : parameters.colour[ColourCamera::Third].model;
    }

    vq::Projection withPose(const CameraExtrinsics& other) const {
        vq::Projection projection = solution_->projection;
        projection.translationM = Eigen::Map<const Eigen::Vector3f>(other.translation.data()).cast<double>();
        return projection;
    }

    /// If the scene shows the opposite translation, the later lines use it, so that they are not affected by this
    /// fault.
    CheckLine translationLine() {
        CameraParameters other = parameters_;
        for (float& metres : pose(other).translation)
            metres = -metres;
        std::optional<StillSolution> opposite;
        if (!otherSize_) opposite = solveStills(stills_, other, platform_);
        if (!solution_ && !opposite) return line("translation", Verdict::CannotTell, kNoRotation);
        std::vector<vq::EvidenceMatch> matches;
        for (const auto& solved : {solution_, opposite}) {
            if (solved) matches.insert(matches.end(), solved->matches.begin(), solved->matches.end());
        }
        const bool startedAsReported = solution_.has_value();
        if (!startedAsReported) solution_ = opposite;
        const auto found =
            preferenceBetween(matches, *solution_, withPose(startedAsReported ? pose(other) : pose(parameters_)));
        if (!found) return line("translation", Verdict::CannotTell, "no object is near enough");
        // +1: the reported translation; -1: the opposite one.
        const double along = (startedAsReported ? 1 : -1) * (1 - 2 * found->share), deviation = 2 * found->deviation;
        const QString text = QString("the estimated translation is %1 ± %2 of the reported one")
                                 .arg(along, 0, 'f', 2)
                                 .arg(deviation, 0, 'f', 2);
        const bool isReported = isAbout(along, deviation, 1), isOpposite = isAbout(along, deviation, -1);
        if (!isReported && !isOpposite) {
            return line("translation", Verdict::CannotTell, text + ": no object is near enough");
        }
        if (isOpposite) {
            parameters_ = other;
            solution_ = opposite;
        }
        return line("translation", verdictOf(isReported), text);
    }

    CheckLine rotationLine(Direction* direction) {
        *direction = Direction::Unknown;
        if (!solution_ || !solution_->quality) return line("rotation", Verdict::CannotTell, kNoRotation);
        const Eigen::Matrix3d reported = vq::matrixOf(pose(parameters_).rotation);
        const double asReported = vq::angleBetweenDeg(solution_->rotation, reported);
        const double transposed = vq::angleBetweenDeg(solution_->rotation, reported.transpose());
        const double between = vq::angleBetweenDeg(reported, reported.transpose());
        const auto& deviation = solution_->quality->deviationDeg;
        const double deviationDeg =
            std::sqrt(deviation[0] * deviation[0] + deviation[1] * deviation[1] + deviation[2] * deviation[2]);
        const double deviations = (transposed - asReported) / deviationDeg;
        const QString text = QString(
                                 "the estimated rotation is %1° from the reported one and %2° from its transpose "
                                 "(%3 standard deviations)")
                                 .arg(asReported, 0, 'f', 3)
                                 .arg(transposed, 0, 'f', 3)
                                 .arg(deviations, 0, 'f', 1);
        const bool isNear = std::min(asReported, transposed) < kNearShare * between;
        if (!isNear || std::abs(deviations) < kSignificant) {
            return line("rotation", Verdict::CannotTell, text + ": the drift of the module is too large for a verdict");
        }
        *direction = deviations > 0 ? Direction::AsReported : Direction::Transposed;
        return line("rotation", verdictOf(deviations > 0), text);
    }

    CheckLine principalPointLine() {
        if (!solution_) return line("principal-point", Verdict::CannotTell, kNoRotation);
        const float scale = pixelScale();
        vq::Projection other = solution_->projection;
        other.cameras.colour.cx += scale;
        other.cameras.colour.cy += scale;
        const auto found = preferenceBetween(solution_->matches, *solution_, other);
        if (!found) return line("principal-point", Verdict::CannotTell, kNoRotation);
        const double deviationPx = std::hypot(found->deviation, kPrincipalPointDoubtPx);
        QString text = QString("the principal point is %1 ± %2 px from the reported one")
                           .arg(found->share, 0, 'f', 3)
                           .arg(deviationPx, 0, 'f', 3);
        const Convention conventions[] = {
            {"as reported", 0},
            {"reported relative to the corner of the first pixel", -0.5},
            {"reported half a pixel too small", 0.5},
            {"reported for the unscaled image", 0.5 * (static_cast<double>(scale) - 1) / static_cast<double>(scale)}};
        std::array<bool, std::size(conventions)> isPossible{};
        for (std::size_t i = 0; i < isPossible.size(); ++i) {
            const double deviations = std::abs(found->share - conventions[i].shiftPx) / deviationPx;
            isPossible[i] = deviations < kSignificant;
            text +=
                QString("; '%1' is %2 standard deviations away").arg(conventions[i].name).arg(deviations, 0, 'f', 1);
        }
        // The last convention differs so little that it is reported but has no influence on the verdict.
        if (!isPossible[0]) return line("principal-point", Verdict::DoesNotFit, text);
        const bool isOther = isPossible[1] || isPossible[2];
        return line("principal-point", isOther ? Verdict::CannotTell : Verdict::Fits, text);
    }

    /// Returns the number of scaled pixels per pixel of the camera's own image.
    float pixelScale() const {
        const CameraModel& scaled = platform_ ? parameters_.colour[ColourCamera::Platform].model
                                              : parameters_.colour[ColourCamera::Third].model;
        const ColourScaling& rest = platform_ ? parameters_.colour[ColourCamera::Platform].scaling
                                              : parameters_.colour[ColourCamera::Third].scaling;
        const float ownWidth = platform_ ? 1280.0F : 640.0F;
        return static_cast<float>(scaled.width) * rest.x / ownWidth;
    }

    CheckLine modelLine() const {
        if (otherSize_) {
            const double percent = 100 * (static_cast<double>(*otherSize_) - 1);
            return line("model", Verdict::DoesNotFit,
                        QString("a rotation could be estimated only with focal lengths that differ by about %1 %")
                            .arg(percent, 0, 'f', 0));
        }
        if (!solution_) return line("model", Verdict::CannotTell, kNoRotation);
        QString text = QString("%1 matches, median residual %2 px")
                           .arg(solution_->matches.size())
                           .arg(solution_->medianPx, 0, 'f', 2);
        if (!solution_->quality) return line("model", Verdict::CannotTell, text);
        const vq::ModelCheck& check = solution_->quality->model;
        const auto departure = check.departure();
        bool fits = solution_->medianPx <= kLargestMedianPx;
        if (departure) {
            const char* names[] = {"focal length", "principal point", "distortion",
                                   "translation",  "rolling shear",   "two halves"};
            const auto index = static_cast<std::size_t>(*departure);
            text += QString("; the model departs in %1 (p = %2)")
                        .arg(names[index])
                        .arg(check.probability[index], 0, 'g', 2);
            const bool hasOwnLine =
                *departure == vq::ModelDeparture::PrincipalPoint || *departure == vq::ModelDeparture::Translation;
            fits = fits && hasOwnLine;
        }
        return line("model", verdictOf(fits), text);
    }

    const bool platform_;
    CameraParameters parameters_;
    const std::vector<vq::SelectedImages> stills_;
    std::optional<StillSolution> solution_;
    std::optional<float> otherSize_;  ///< factor of the focal length under which alone the scene gives a rotation
};

}  // namespace

CheckLines checkStereo(const std::vector<vq::SelectedImages>& stills, const CameraParameters& parameters) {
    const int rows = bestRows(stills, false);
    const CheckLine order = orderLine(stills, rows);
    CheckLine row = rowLine(stereoEvidence(stills, rows, false));
    CheckLine baseline = baselineLine(stills, parameters);
    if (order.verdict == Verdict::DoesNotFit) {
        row = {row.id, row.name, Verdict::CannotTell, "the imagers are exchanged"};
        baseline = {baseline.id, baseline.name, Verdict::CannotTell, "the imagers are exchanged"};
    } else if (row.verdict == Verdict::DoesNotFit) {
        baseline = {baseline.id, baseline.name, Verdict::CannotTell, "the rows are not aligned"};
    }
    return {order, row, baseline};
}

CheckLine checkTranslations(const CameraParameters& parameters, bool withPlatform) {
    CheckLine line{"translation-unit", "translations are in millimetres", Verdict::Fits, ""};
    QStringList lengths;
    for (const auto& [name, pose] : {std::pair{"third", parameters.colour[ColourCamera::Third].fromDepth},
                                     {"rear", parameters.colour[ColourCamera::Platform].fromDepth}}) {
        if (QString(name) == "rear" && !withPlatform) continue;
        const double lengthMm =
            Eigen::Map<const Eigen::Vector3f>(pose.translation.data()).cast<double>().norm() * kMetresToMillimetres;
        lengths << QString("%1 %2 mm").arg(name).arg(lengthMm, 0, 'f', 2);
        if (!(lengthMm >= kShortestMm && lengthMm <= kLongestMm)) line.verdict = Verdict::DoesNotFit;
    }
    line.text = lengths.join(", ");
    return line;
}

CheckLines checkCamera(const CameraStills& camera, const CameraParameters& parameters, const CheckLines& trusted,
                       Direction* direction) {
    *direction = Direction::Unknown;
    CameraEvaluator evaluator(camera, parameters, trusted);
    if (contradicts(trusted, "translation-unit")) return evaluator.undetermined("the translations are not plausible");
    return evaluator.lines(direction);
}

}  // namespace fieldcal
