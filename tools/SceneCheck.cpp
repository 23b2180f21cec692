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
#include <functional>

namespace fieldcal {
namespace {

constexpr double kSignificant = 3.0;  ///< deviations
constexpr int kMostRows = 8;
constexpr double kTolerableRowsPx = 0.5;
constexpr std::size_t kLeastPlaces = 60;
constexpr float kNearDisparityPx = 1.0F;
constexpr double kSmallestBaselineM = 0.015, kLargestBaselineM = 0.2;
constexpr double kShortestMm = 5, kLongestMm = 400;
constexpr double kMetresToMillimetres = 1000;
/// A rotation is one of two when it is nearer to it than this share of what lies between them.
constexpr double kNearShare = 0.25;
constexpr double kLargestMedianPx = 1.0;

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

/// The image so many rows higher.
cv::Mat raised(const cv::Mat& image, int rows) {
    cv::Mat moved = image.clone();
    const int height = image.rows - std::abs(rows);
    const cv::Rect from(0, std::max(rows, 0), image.cols, height), to(0, std::max(-rows, 0), image.cols, height);
    image(from).copyTo(moved(to));
    return moved;
}

/// What the textured places of all stills tell about the right image against the left one.
struct StereoEvidence {
    std::vector<double> rows;  ///< by which the right image shows places lower
    std::size_t inFront = 0;   ///< places whose disparity is that of something near
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
    CheckLine line{"imagers", "the left imager stands to the left", Verdict::CannotTell, "nothing near was seen by both"};
    const std::size_t asTold = stereoEvidence(stills, rows, false).inFront;
    const std::size_t swapped = stereoEvidence(stills, -rows, true).inFront;
    if (std::max(asTold, swapped) < kLeastPlaces) return line;
    line.text = QString("%1 places are nearer as they are told, %2 with both exchanged").arg(asTold).arg(swapped);
    if (asTold > 2 * swapped) line.verdict = Verdict::Fits;
    if (swapped > 2 * asTold) line.verdict = Verdict::DoesNotFit;
    return line;
}

/// The rows by which the right image has to be raised for most places to be found again.
int bestRows(const std::vector<vq::SelectedImages>& stills, bool swapped) {
    const std::vector<vq::SelectedImages> some(stills.begin(), stills.begin() + std::min<std::ptrdiff_t>(2, static_cast<std::ptrdiff_t>(stills.size())));
    int best = 0;
    std::size_t most = 0;
    for (int rows = -kMostRows; rows <= kMostRows; ++rows) {
        const std::size_t count = stereoEvidence(some, rows, swapped).rows.size();
        if (count > most) {
            most = count;
            best = rows;
        }
    }
    return best;
}

CheckLine rowLine(const StereoEvidence& evidence) {
    CheckLine line{"stereo-rows", "left and right see the same rows", Verdict::CannotTell,
                   "too few places were found in both images"};
    if (evidence.rows.size() < kLeastPlaces) return line;
    const double offset = vq::medianOf(evidence.rows);
    line.verdict = verdictOf(std::abs(offset) <= kTolerableRowsPx);
    line.text = QString("the right image shows everything %1 rows lower (median of %2 places)")
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
    line.text = QString("%1 places have a disparity and a depth").arg(both);
    if (meter.source() != vq::BaselineSource::Depth || !meter.baselineM()) return line;
    const double baselineM = *meter.baselineM();
    line.verdict = verdictOf(baselineM >= kSmallestBaselineM && baselineM <= kLargestBaselineM);
    line.text += QString(": a baseline of %1 ± %2 mm")
                     .arg(baselineM * kMetresToMillimetres, 0, 'f', 1)
                     .arg(baselineM * kMetresToMillimetres * meter.scale()->relativeDeviation, 0, 'f', 1);
    return line;
}

Eigen::Matrix3d rotationOf(const CameraExtrinsics& extrinsics) {
    return Eigen::Map<const Eigen::Matrix<float, 3, 3, Eigen::RowMajor>>(extrinsics.rotation.data()).cast<double>();
}

double angleDeg(const Eigen::Matrix3d& a, const Eigen::Matrix3d& b) {
    const Eigen::Matrix3d turn = a * b.transpose();
    const Eigen::Vector3d axis(turn(2, 1) - turn(1, 2), turn(0, 2) - turn(2, 0), turn(1, 0) - turn(0, 1));
    return std::atan2(axis.norm(), turn.trace() - 1) * kDegreesPerRadian;
}

/// Pictures without the streams that are not to be trusted.
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

/// The judgement of one colour camera.
class CameraJudge {
public:
    CameraJudge(const CameraStills& camera, const CameraParameters& parameters, const CheckLines& trusted)
        : platform_(camera.platformCamera), parameters_(parameters), stills_(trustedStills(camera, trusted)) {}

    CheckLines lines(Direction* direction) {
        solution_ = solveStills(stills_, parameters_, platform_);
        CheckLines all{translationLine()};
        all.push_back(rotationLine(direction));
        all.push_back(principalPointLine());
        all.push_back(modelLine());
        return all;
    }

    CheckLines untold(const QString& why) const {
        CheckLines all;
        for (const char* id : {"translation", "rotation", "principal-point", "model"})
            all.push_back(line(id, Verdict::CannotTell, why));
        return all;
    }

private:
    CheckLine line(const QString& id, Verdict verdict, const QString& text) const {
        const QString camera = platform_ ? "rear" : "third";
        const QString what = id == "translation"      ? "direction of the translation, %1 camera"
                             : id == "rotation"       ? "direction of the rotation, %1 camera"
                             : id == "principal-point" ? "principal point, %1 camera"
                                                       : "pictures are as calibrated, %1 camera";
        return {id + '-' + camera, what.arg(camera), verdict, text};
    }

    CameraExtrinsics& pose(CameraParameters& parameters) const {
        return platform_ ? parameters.depthToOutOfModule : parameters.depthToInModule;
    }
    CameraModel& model(CameraParameters& parameters) const {
        return platform_ ? parameters.outOfModuleColour : parameters.inModuleColour;
    }

    /// Compares the solution with one under other parameters. Positive speaks for those that were told.
    std::optional<double> against(const CameraParameters& other, std::optional<StillSolution>* otherSolution) const {
        *otherSolution = solveStills(stills_, other, platform_);
        if (!solution_ || !*otherSolution) return std::nullopt;
        return deviationsFor(*solution_, **otherSolution);
    }

    /// The opposite direction is taken from here on where the scene shows it, so that nothing else is blamed for it.
    CheckLine translationLine() {
        CameraParameters other = parameters_;
        for (float& metres : pose(other).translation)
            metres = -metres;
        std::optional<StillSolution> opposite;
        const auto deviations = against(other, &opposite);
        if (!deviations) {
            return line("translation", Verdict::CannotTell, "the scene gave no rotation to compare with");
        }
        const QString text = QString("%1 deviations for the one that is told").arg(*deviations, 0, 'f', 1);
        if (std::abs(*deviations) < kSignificant) {
            return line("translation", Verdict::CannotTell, text + ": nothing near enough was seen");
        }
        if (*deviations > 0) return line("translation", Verdict::Fits, text);
        parameters_ = other;
        solution_ = opposite;
        return line("translation", Verdict::DoesNotFit, text + ": the opposite one fits the scene");
    }

    CheckLine rotationLine(Direction* direction) {
        *direction = Direction::Unknown;
        if (!solution_ || !solution_->quality) return line("rotation", Verdict::CannotTell, "the scene gave no rotation");
        const Eigen::Matrix3d told = rotationOf(pose(parameters_));
        const double asTold = angleDeg(solution_->rotation, told);
        const double transposed = angleDeg(solution_->rotation, told.transpose());
        const double between = angleDeg(told, told.transpose());
        const auto& deviation = solution_->quality->deviationDeg;
        const double deviationDeg = std::sqrt(deviation[0] * deviation[0] + deviation[1] * deviation[1] + deviation[2] * deviation[2]);
        const double deviations = (transposed - asTold) / deviationDeg;
        const QString text = QString("the scene shows it %1° from the one that is told and %2° from its transpose "
                                     "(%3 deviations)")
                                 .arg(asTold, 0, 'f', 3)
                                 .arg(transposed, 0, 'f', 3)
                                 .arg(deviations, 0, 'f', 1);
        const bool isNear = std::min(asTold, transposed) < kNearShare * between;
        if (!isNear || std::abs(deviations) < kSignificant) {
            return line("rotation", Verdict::CannotTell, text + ": the module has drifted too much to tell");
        }
        *direction = deviations > 0 ? Direction::AsTold : Direction::Transposed;
        return line("rotation", verdictOf(deviations > 0), text);
    }

    CheckLine principalPointLine() {
        if (!solution_) return line("principal-point", Verdict::CannotTell, "the scene gave no rotation to compare with");
        const float scale = pixelScale();
        struct Convention {
            const char* name;
            float shift;  ///< of the principal point in the scaled image
        };
        const Convention others[] = {{"counted from the corner of the first pixel", -0.5F * scale},
                                     {"half a pixel smaller than it is", 0.5F * scale},
                                     {"that of the picture before it is scaled", 0.5F * (scale - 1)}};
        QStringList told;
        double least = 1e9;
        QString best;
        for (const Convention& convention : others) {
            CameraParameters other = parameters_;
            model(other).cx += convention.shift;
            model(other).cy += convention.shift;
            std::optional<StillSolution> solved;
            const auto deviations = against(other, &solved);
            if (!deviations) continue;
            told << QString("%1 against '%2'").arg(*deviations, 0, 'f', 1).arg(convention.name);
            if (*deviations < least) {
                least = *deviations;
                best = convention.name;
            }
        }
        const QString text = "deviations for the one that is told: " + told.join(", ");
        if (least <= -kSignificant) return line("principal-point", Verdict::DoesNotFit, text + ": it is " + best);
        const bool tells = told.size() == 3 && least >= kSignificant;
        return line("principal-point", tells ? Verdict::Fits : Verdict::CannotTell, text);
    }

    /// Scaled pixels per pixel of the camera's own picture.
    float pixelScale() const {
        const CameraModel& scaled = platform_ ? parameters_.outOfModuleColour : parameters_.inModuleColour;
        const ColourScaling& rest = platform_ ? parameters_.outOfModuleScaling : parameters_.inModuleScaling;
        const float ownWidth = platform_ ? 1280.0F : 640.0F;
        return static_cast<float>(scaled.width) * rest.x / ownWidth;
    }

    CheckLine modelLine() const {
        if (!solution_) return line("model", Verdict::CannotTell, "the scene gave no rotation");
        QString text = QString("%1 matches, residual %2 px in the median")
                           .arg(solution_->matches.size())
                           .arg(solution_->medianPx, 0, 'f', 2);
        if (!solution_->quality) return line("model", Verdict::CannotTell, text);
        const vq::ModelCheck& check = solution_->quality->model;
        const auto departure = check.departure();
        bool fits = solution_->medianPx <= kLargestMedianPx;
        if (departure) {
            const char* names[] = {"focal length", "principal point", "distortion", "translation", "rolling shear", "two halves"};
            const auto index = static_cast<std::size_t>(*departure);
            text += QString("; departs in %1 (probability of chance %2)").arg(names[index]).arg(check.probability[index], 0, 'g', 2);
            const bool judgedElsewhere = *departure == vq::ModelDeparture::PrincipalPoint || *departure == vq::ModelDeparture::Translation;
            fits = fits && judgedElsewhere;
        }
        return line("model", verdictOf(fits), text);
    }

    const bool platform_;
    CameraParameters parameters_;
    const std::vector<vq::SelectedImages> stills_;
    std::optional<StillSolution> solution_;
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
        baseline = {baseline.id, baseline.name, Verdict::CannotTell, "the rows do not fit"};
    }
    return {order, row, baseline};
}

CheckLine checkTranslations(const CameraParameters& parameters, bool withPlatform) {
    CheckLine line{"translation-unit", "translations in millimetres", Verdict::Fits, ""};
    QStringList lengths;
    for (const auto& [name, pose] : {std::pair{"third", parameters.depthToInModule}, {"rear", parameters.depthToOutOfModule}}) {
        if (QString(name) == "rear" && !withPlatform) continue;
        const double lengthMm = Eigen::Map<const Eigen::Vector3f>(pose.translation.data()).cast<double>().norm() * kMetresToMillimetres;
        lengths << QString("%1 %2 mm").arg(name).arg(lengthMm, 0, 'f', 2);
        if (!(lengthMm >= kShortestMm && lengthMm <= kLongestMm)) line.verdict = Verdict::DoesNotFit;
    }
    line.text = lengths.join(", ");
    return line;
}

CheckLines checkCamera(const CameraStills& camera, const CameraParameters& parameters, const CheckLines& trusted,
                       Direction* direction) {
    *direction = Direction::Unknown;
    CameraJudge judge(camera, parameters, trusted);
    if (contradicts(trusted, "translation-unit")) return judge.untold("the translations do not fit");
    return judge.lines(direction);
}

}  // namespace fieldcal
