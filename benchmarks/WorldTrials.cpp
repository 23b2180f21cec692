// Calibrates in worlds nobody has seen: how often it solves, how wrong it is, and how much of that is parallax.
//   world-trials FIRST_SEED SEEDS WORLD...
// Each run takes the stills where the hand rests, at most 8 to an attempt and two attempts, as a user would; then again
// with all cameras at one place, which leaves no parallax.

#include "benchmarks/BenchmarkData.h"
#include "diagnostics/Assertions.h"
#include "diagnostics/Logger.h"
#include "engine/CalibratorInterface.h"
#include "simulator/handheld/Studio.h"
#include "simulator/synthesis/Rig.h"
#include "workflow/CalibrationAttempt.h"

#include <QtGlobal>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <optional>

namespace {

using namespace fieldcal;

constexpr int kPairLimit = 8, kAttempts = 2, kGrabsPerStill = 20;

void discard(QtMsgType, const QMessageLogContext&, const QString&) {}

struct Trial {
    bool solved = false;
    int stills = 0;
    double errorDeg = 0;
};

ImageFrame32 frameOf(const vq::ImagePairRecord& colour) {
    ImageFrame32 frame;
    frame.resize(colour.width, colour.height);
    std::memcpy(frame.bytes(), colour.pixels.data(), colour.pixels.size());
    return frame;
}

/// Shows the still until it is taken or has been looked at long enough.
CalibrationAttempt::Outcome show(CalibrationAttempt* attempt, const session::FramePictures& pictures,
                                 BenchmarkData* data) {
    addPair(pictures, data);
    const ImageFrame32 colour = frameOf(data->colour.back());
    auto outcome = CalibrationAttempt::Outcome::Continues;
    for (int i = 0; i < kGrabsPerStill && outcome == CalibrationAttempt::Outcome::Continues; ++i)
        outcome = attempt->processFrame(pictures.infrared, colour);
    return outcome;
}

Trial tryWorld(const std::string& world, unsigned seed, bool baselines) {
    synthesis::RigWishes wishes;
    wishes.baselines = baselines;
    const auto rig = synthesis::drawRig(seed, wishes);
    BenchmarkData data = camerasOf(rig);
    handheld::Studio studio(world, seed, rig);
    vq::RegistrationContext context;
    vq::CalibratorInterface engine(context, data.parameters);
    AttemptListener listener;
    const LightGate light;
    CalibrationAttempt attempt(engine, listener, light, kPairLimit);
    std::srand(seed);
    Trial trial;
    for (int i = 0; i < kAttempts && !trial.solved; ++i) {
        attempt.start(false);
        auto outcome = CalibrationAttempt::Outcome::Continues;
        for (int still = 0; still < kPairLimit && outcome == CalibrationAttempt::Outcome::Continues; ++still)
            outcome = show(&attempt, takeStill(*studio.make(trial.stills++, false), seed + 1000U * still), &data);
        trial.solved = outcome == CalibrationAttempt::Outcome::Solved;
    }
    if (!trial.solved) return trial;
    Eigen::Matrix<float, 3, 3, Eigen::RowMajor> rotation;
    engine.getRotationMatrix(rotation.data());
    trial.errorDeg = differenceDeg(rotation.cast<double>(), data.truth);
    return trial;
}

std::string told(const Trial& trial) {
    char text[64];
    std::snprintf(text, sizeof text, trial.solved ? "%2d stills %8.4f deg" : "%2d stills not solved", trial.stills,
                  trial.errorDeg);
    return text;
}

void summarize(const char* what, std::vector<Trial> trials) {
    const std::size_t all = trials.size();
    trials.erase(std::remove_if(trials.begin(), trials.end(), [](const Trial& t) { return !t.solved; }), trials.end());
    std::sort(trials.begin(), trials.end(), [](const Trial& a, const Trial& b) { return a.errorDeg < b.errorDeg; });
    std::printf("%-28s solved %zu of %zu", what, trials.size(), all);
    if (!trials.empty())
        std::printf(", error median %.4f, 90 %% %.4f, worst %.4f degrees", trials[trials.size() / 2].errorDeg,
                    trials[trials.size() * 9 / 10].errorDeg, trials.back().errorDeg);
    std::printf("\n");
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 4) fatalFailure("usage: world-trials FIRST_SEED SEEDS WORLD...", 2);
    setLogLevel(-1);
    qInstallMessageHandler(discard);
    const auto first = static_cast<unsigned>(std::atoi(argv[1])), count = static_cast<unsigned>(std::atoi(argv[2]));
    for (int i = 3; i < argc; ++i) {
        const std::string world = argv[i];
        std::vector<Trial> real, without;
        for (unsigned seed = first; seed < first + count; ++seed) {
            real.push_back(tryWorld(world, seed, true));
            without.push_back(tryWorld(world, seed, false));
            std::printf("%-11s seed %4u   %s   without baselines %s\n", world.c_str(), seed, told(real.back()).c_str(),
                        told(without.back()).c_str());
            std::fflush(stdout);
        }
        summarize(world.c_str(), real);
        summarize((world + ", no baselines").c_str(), without);
    }
    return 0;
}
