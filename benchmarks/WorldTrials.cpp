// Calibrates both colour cameras in rendered worlds and prints how many attempts are solved, their errors, and the part
// of the errors that is due to parallax.
//   world-trials [--no-zero-baseline] [--misaligned] [--no-right] [--no-depth] FIRST_SEED SEEDS WORLD...
// Each run takes the stills of the keyframes, at most 8 per attempt and two attempts, as a user would. It is repeated
// with all cameras at one place, so that there is no parallax, which doubles the time; --no-zero-baseline omits this.
// Registration: distance in pixels between the position of a surface in the colour image computed from its measured
// depth and its actual position, at 1, 2, 5 and 20 m. With --misaligned, the infrared imagers of each rig are
// misaligned by up to half a pixel of disparity, which also affects the module's depth; the error is then the angle to
// the rotation that places this depth on the colour image.

#include "benchmarks/ModuleStills.h"
#include "benchmarks/StillAttempt.h"
#include "diagnostics/Assertions.h"
#include "diagnostics/Logger.h"
#include "engine/RegistrationError.h"
#include "simulator/handheld/KeyframeRenderer.h"
#include "simulator/synthesis/Random.h"
#include "simulator/synthesis/Rig.h"
#include "simulator/world/Depth.h"

#include <Eigen/Geometry>
#include <QtGlobal>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

namespace {

using namespace fieldcal;

constexpr int kPairLimit = 8, kAttempts = 2;
constexpr std::size_t kCameras = 2;

void discard(QtMsgType, const QMessageLogContext&, const QString&) {}

constexpr std::array<int, 4> kDistancesM{1, 2, 5, 20};
constexpr double kLargestMisalignmentPx = 0.5;

struct Options {
    bool zeroBaseline = true, misaligned = false, right = true, depth = true;
};

struct Trial {
    bool solved = false;
    int stills = 0;
    double errorDeg = 0;
    Eigen::Vector3d turnDeg = Eigen::Vector3d::Zero();  ///< the error about each axis of the colour camera
    std::array<double, kDistancesM.size()> registrationPx{};
    vq::ParallaxReport parallax;
    std::optional<vq::SolutionQuality> quality;
};

using Trials = std::array<Trial, kCameras>;  ///< of the third and of the platform camera

/// The stills of both cameras; each is rendered only once.
class StillSource {
public:
    StillSource(const std::string& world, unsigned seed, const synthesis::Rig& rig, const Options& options)
        : seed_(seed), options_(options), renderer_(world, seed, rig), converter_(rig) {}

    const CameraParameters& parameters() const { return converter_.parameters(); }
    /// Stills are counted from 0.
    const FrameRecords& still(int number) {
        for (int next = static_cast<int>(made_.size()); next <= number; ++next) {
            made_.push_back(converter_.convert(takeStill(*renderer_.render(next, true), seed_ + 1000U * next)));
            if (!options_.right) made_.back().rightInfrared = {};
            if (!options_.depth) made_.back().depth = {};
        }
        return made_[static_cast<std::size_t>(number)];
    }

private:
    unsigned seed_;
    Options options_;
    handheld::KeyframeRenderer renderer_;
    StillConverter converter_;
    std::vector<FrameRecords> made_;
};

/// Returns the inverse depth that a module with misaligned imagers measures for a surface.
double ownInverseDepth(double inverseDepth, double misalignmentPx, double focalPx) {
    return inverseDepth + misalignmentPx / (focalPx * world::kStereoBaselineM);
}

/// Returns the rotation that places the module's own depth on its own colour, which is what a calibration is for. With
/// misaligned imagers it differs from the true rotation: a constant error of all disparities displaces every surface in
/// the colour image by the same amount. Least squares over the infrared image at 5 m, by Gauss-Newton steps with
/// differences of 1e-4 rad.
Eigen::Matrix3d registeringRotation(const vq::Projection& projection, const Eigen::Matrix3d& truth,
                                    double misalignmentPx) {
    constexpr double kInverseDistance = 1.0 / 5, kStepRad = 1e-4;
    constexpr int kSteps = 5, kSpacingPx = 32;
    const fieldcal::CameraModel& infrared = projection.cameras.infrared;
    const double measured = ownInverseDepth(kInverseDistance, misalignmentPx, static_cast<double>(infrared.fx));
    Eigen::Matrix3d rotation = truth;
    for (int step = 0; step < kSteps; ++step) {
        Eigen::Matrix3d curvature = Eigen::Matrix3d::Zero();
        Eigen::Vector3d gradient = Eigen::Vector3d::Zero();
        for (int y = kSpacingPx / 2; y < infrared.height; y += kSpacingPx) {
            for (int x = kSpacingPx / 2; x < infrared.width; x += kSpacingPx) {
                const cv::Point2f place(static_cast<float>(x), static_cast<float>(y));
                const Eigen::Vector2d predicted = projection.colourPoint(rotation, place, measured);
                const Eigen::Vector2d residual = predicted - projection.colourPoint(truth, place, kInverseDistance);
                Eigen::Matrix<double, 2, 3> jacobian;
                for (int axis = 0; axis < 3; ++axis) {
                    const Eigen::Matrix3d turned =
                        Eigen::AngleAxisd(kStepRad, Eigen::Vector3d::Unit(axis)).toRotationMatrix() * rotation;
                    jacobian.col(axis) = (projection.colourPoint(turned, place, measured) - predicted) / kStepRad;
                }
                curvature += jacobian.transpose() * jacobian;
                gradient += jacobian.transpose() * residual;
            }
        }
        const Eigen::Vector3d turn = -curvature.ldlt().solve(gradient);
        if (turn.norm() > 0) rotation = Eigen::AngleAxisd(turn.norm(), turn.normalized()).toRotationMatrix() * rotation;
    }
    return rotation;
}

Trial tryCamera(const JudgedCamera& camera, unsigned seed, double misalignmentPx, StillSource* source) {
    StillAttempt attempt(source->parameters(), camera, kPairLimit);
    std::srand(seed);
    Trial trial;
    for (int i = 0; i < kAttempts && !trial.solved; ++i) {
        attempt.start();
        auto outcome = StillAttempt::Outcome::Continues;
        for (int shown = 0; shown < kPairLimit && outcome == StillAttempt::Outcome::Continues; ++shown)
            outcome = attempt.show(source->still(trial.stills++));
        if (outcome == StillAttempt::Outcome::Continues) outcome = attempt.finish();
        trial.solved = outcome == StillAttempt::Outcome::Solved;
    }
    trial.parallax = attempt.parallax();
    if (!trial.solved) return trial;
    trial.quality = attempt.quality();
    const auto& extrinsics = source->parameters().colour[camera.camera].fromDepth;
    const vq::Projection projection{camera.cameras,
                                    Eigen::Map<const Eigen::Vector3f>(extrinsics.translation.data()).cast<double>()};
    const Eigen::Matrix3d wanted = registeringRotation(projection, camera.truth, misalignmentPx);
    const Eigen::AngleAxisd turn(attempt.rotation() * wanted.transpose());
    trial.turnDeg = turn.axis() * turn.angle() * kDegreesPerRadian;
    trial.errorDeg = turn.angle() * kDegreesPerRadian;
    for (std::size_t i = 0; i < kDistancesM.size(); ++i) {
        const double inverseDepth = 1.0 / kDistancesM[i];
        trial.registrationPx[i] = vq::registrationErrorPx(
            projection, attempt.rotation(), camera.truth,
            ownInverseDepth(inverseDepth, misalignmentPx, static_cast<double>(camera.cameras.infrared.fx)),
            inverseDepth);
    }
    return trial;
}

Trials tryWorld(const std::string& world, unsigned seed, bool baselines, const Options& options) {
    synthesis::RigOptions rigOptions;
    rigOptions.platform = true;
    rigOptions.baselines = baselines;
    double misalignmentPx = 0;
    if (options.misaligned) {
        synthesis::Random random(seed, "misalignment");
        misalignmentPx = random.uniform(-kLargestMisalignmentPx, kLargestMisalignmentPx);
        rigOptions.misalignmentPx = misalignmentPx;
    }
    const auto rig = synthesis::drawRig(seed, rigOptions);
    StillSource source(world, seed, rig, options);
    const auto cameras = judgedCameras(rig, source.parameters());
    Trials trials;
    for (std::size_t i = 0; i < kCameras; ++i)
        trials[i] = tryCamera(cameras.at(i), seed, misalignmentPx, &source);
    return trials;
}

/// Formats error and stated deviation about each axis in thousandths of a degree, hold-out proof and model check.
std::string qualityText(const Trial& trial) {
    if (!trial.quality) return "";
    const vq::SolutionQuality& quality = *trial.quality;
    char text[240];
    std::snprintf(text, sizeof text, "; about X %+.1f (%.1f), Y %+.1f (%.1f), Z %+.1f (%.1f) mdeg",
                  trial.turnDeg[0] * 1e3, quality.deviationDeg[0] * 1e3, trial.turnDeg[1] * 1e3,
                  quality.deviationDeg[1] * 1e3, trial.turnDeg[2] * 1e3, quality.deviationDeg[2] * 1e3);
    std::string line = text;
    if (quality.proof) {
        std::snprintf(text, sizeof text, "; proof %.2f -> %.2f px", quality.proof->storedPx, quality.proof->newPx);
        line += text;
    }
    const auto departure = static_cast<std::size_t>(quality.model.strongest());
    std::snprintf(text, sizeof text, "; model %zu p %.1g%s", departure, quality.model.probability[departure],
                  quality.model.departure() ? " departs" : "");
    return line + text;
}

std::string summary(const Trial& trial) {
    char text[160];
    if (!trial.solved) {
        std::snprintf(text, sizeof text, "%2d stills not solved", trial.stills);
        return text;
    }
    constexpr std::array<const char*, 4> sources{"none", "depth", "fit", "remembered"};
    std::snprintf(text, sizeof text, "%2d stills %8.4f deg, %5.2f %5.2f %5.2f %5.2f px, baseline %5.1f mm (%s)",
                  trial.stills, trial.errorDeg, trial.registrationPx[0], trial.registrationPx[1],
                  trial.registrationPx[2], trial.registrationPx[3], trial.parallax.baselineM.value_or(0) * 1e3,
                  sources[static_cast<std::size_t>(trial.parallax.baselineFrom)]);
    return text + qualityText(trial);
}

/// Prints how well the stated deviations agree with the actual errors.
void summarizeDeviations(const std::vector<Trial>& trials) {
    std::array<double, 3> squares{};
    int judged = 0, beyondThree = 0;
    for (const Trial& trial : trials) {
        if (!trial.quality) continue;
        ++judged;
        double largest = 0;
        for (std::size_t axis = 0; axis < 3; ++axis) {
            const double ratio = trial.turnDeg[static_cast<Eigen::Index>(axis)] / trial.quality->deviationDeg[axis];
            squares[axis] += ratio * ratio;
            largest = std::max(largest, std::abs(ratio));
        }
        if (largest > 3) ++beyondThree;
    }
    if (judged == 0) return;
    std::printf("; error over deviation, rms: X %.2f, Y %.2f, Z %.2f, above 3: %d of %d",
                std::sqrt(squares[0] / judged), std::sqrt(squares[1] / judged), std::sqrt(squares[2] / judged),
                beyondThree, judged);
}

void summarize(const std::string& what, std::vector<Trial> trials) {
    const std::size_t all = trials.size();
    trials.erase(std::remove_if(trials.begin(), trials.end(), [](const Trial& t) { return !t.solved; }), trials.end());
    std::sort(trials.begin(), trials.end(), [](const Trial& a, const Trial& b) { return a.errorDeg < b.errorDeg; });
    std::printf("%-37s solved %zu of %zu", what.c_str(), trials.size(), all);
    if (!trials.empty())
        std::printf(", error median %.4f, 90 %% %.4f, worst %.4f degrees", trials[trials.size() / 2].errorDeg,
                    trials[trials.size() * 9 / 10].errorDeg, trials.back().errorDeg);
    for (int axis = 0; axis < 3 && trials.size() > 1; ++axis) {
        double sum = 0, squares = 0;
        const auto count = static_cast<double>(trials.size());
        for (const Trial& trial : trials)
            sum += trial.turnDeg[axis], squares += trial.turnDeg[axis] * trial.turnDeg[axis];
        const double mean = sum / count,
                     deviation = std::sqrt(std::max(squares / count - mean * mean, 0.0) / (count - 1));
        std::printf("%s%+.4f ± %.4f", axis == 0 ? "; mean about X, Y, Z " : ", ", mean, deviation);
    }
    summarizeDeviations(trials);
    for (std::size_t i = 0; i < kDistancesM.size() && !trials.empty(); ++i) {
        std::vector<double> registration;
        registration.reserve(trials.size());
        for (const Trial& trial : trials)
            registration.push_back(trial.registrationPx[i]);
        std::sort(registration.begin(), registration.end());
        std::printf("%s%d m %.2f (%.2f)", i == 0 ? "; registration median (worst) px: " : ", ", kDistancesM[i],
                    registration[registration.size() / 2], registration.back());
    }
    std::printf("\n");
}

void tryWorlds(const std::string& world, unsigned first, unsigned count, const Options& options) {
    constexpr std::array<const char*, kCameras> names{"third", "platform"};
    std::array<std::vector<Trial>, kCameras> real, without;
    for (unsigned seed = first; seed < first + count; ++seed) {
        const Trials seen = tryWorld(world, seed, true, options);
        const Trials unshifted = options.zeroBaseline ? tryWorld(world, seed, false, options) : Trials{};
        for (std::size_t i = 0; i < kCameras; ++i) {
            real[i].push_back(seen[i]);
            without[i].push_back(unshifted[i]);
            std::printf("%-11s seed %4u  %-8s   %s", world.c_str(), seed, names[i], summary(seen[i]).c_str());
            if (options.zeroBaseline) std::printf("   without baselines %s", summary(unshifted[i]).c_str());
            std::printf("\n");
        }
        std::fflush(stdout);
    }
    for (std::size_t i = 0; i < kCameras; ++i) {
        const std::string what = world + ", " + names[i];
        summarize(what, real[i]);
        if (options.zeroBaseline) summarize(what + ", no baselines", without[i]);
    }
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<std::string> arguments(argv + 1, argv + argc);
    Options options;
    const std::array<std::pair<const char*, bool Options::*>, 4> switches{
        {{"--no-zero-baseline", &Options::zeroBaseline},
         {"--misaligned", &Options::misaligned},
         {"--no-right", &Options::right},
         {"--no-depth", &Options::depth}}};
    for (const auto& [name, member] : switches) {
        const auto found = std::find(arguments.begin(), arguments.end(), name);
        if (found == arguments.end()) continue;
        options.*member = !(options.*member);
        arguments.erase(found);
    }
    if (arguments.size() < 3) fatalFailure("usage: world-trials [OPTION...] FIRST_SEED SEEDS WORLD...", 2);
    setLogLevel(-1);
    qInstallMessageHandler(discard);
    const auto first = static_cast<unsigned>(std::atoi(arguments[0].c_str()));
    const auto count = static_cast<unsigned>(std::atoi(arguments[1].c_str()));
    for (std::size_t i = 2; i < arguments.size(); ++i)
        tryWorlds(arguments[i], first, count, options);
    return 0;
}
