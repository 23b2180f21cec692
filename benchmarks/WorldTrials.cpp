// Calibrates both colour cameras in worlds nobody has seen: how often it solves, how wrong it is, and how much of that
// is parallax.
//   world-trials [--no-zero-baseline] FIRST_SEED SEEDS WORLD...
// Each run takes the stills where the hand rests, at most 8 to an attempt and two attempts, as a user would; then again
// with all cameras at one place, which leaves no parallax, unless that is unwanted: it takes as long again.

#include "benchmarks/ModuleStills.h"
#include "benchmarks/StillAttempt.h"
#include "diagnostics/Assertions.h"
#include "diagnostics/Logger.h"
#include "simulator/handheld/Studio.h"
#include "simulator/synthesis/Rig.h"

#include <QtGlobal>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

using namespace fieldcal;

constexpr int kPairLimit = 8, kAttempts = 2;
constexpr std::size_t kCameras = 2;

void discard(QtMsgType, const QMessageLogContext&, const QString&) {}

struct Trial {
    bool solved = false;
    int stills = 0;
    double errorDeg = 0;
};

using Trials = std::array<Trial, kCameras>;  ///< of the third and of the platform camera

/// What the hand shows to both cameras; each still is rendered once.
class StillShow {
public:
    StillShow(const std::string& world, unsigned seed, const session::SessionDescription& rig)
        : seed_(seed), studio_(world, seed, rig), converter_(rig) {}

    const CameraParameters& parameters() const { return converter_.parameters(); }
    /// Stills are counted from 0.
    const FrameRecords& still(int number) {
        for (int next = static_cast<int>(made_.size()); next <= number; ++next)
            made_.push_back(converter_.convert(takeStill(*studio_.make(next, true), seed_ + 1000U * next)));
        return made_[static_cast<std::size_t>(number)];
    }

private:
    unsigned seed_;
    handheld::Studio studio_;
    StillConverter converter_;
    std::vector<FrameRecords> made_;
};

Trial tryCamera(const ColourCamera& camera, unsigned seed, StillShow* show) {
    StillAttempt attempt(show->parameters(), camera, kPairLimit);
    std::srand(seed);
    Trial trial;
    for (int i = 0; i < kAttempts && !trial.solved; ++i) {
        attempt.start();
        auto outcome = StillAttempt::Outcome::Continues;
        for (int shown = 0; shown < kPairLimit && outcome == StillAttempt::Outcome::Continues; ++shown)
            outcome = attempt.show(show->still(trial.stills++));
        trial.solved = outcome == StillAttempt::Outcome::Solved;
    }
    if (trial.solved) trial.errorDeg = attempt.errorDeg();
    return trial;
}

Trials tryWorld(const std::string& world, unsigned seed, bool baselines) {
    synthesis::RigWishes wishes;
    wishes.platform = true;
    wishes.baselines = baselines;
    const auto rig = synthesis::drawRig(seed, wishes);
    StillShow show(world, seed, rig);
    const auto cameras = judgedCameras(rig, show.parameters());
    Trials trials;
    for (std::size_t i = 0; i < kCameras; ++i)
        trials[i] = tryCamera(cameras.at(i), seed, &show);
    return trials;
}

std::string told(const Trial& trial) {
    char text[64];
    std::snprintf(text, sizeof text, trial.solved ? "%2d stills %8.4f deg" : "%2d stills not solved", trial.stills,
                  trial.errorDeg);
    return text;
}

void summarize(const std::string& what, std::vector<Trial> trials) {
    const std::size_t all = trials.size();
    trials.erase(std::remove_if(trials.begin(), trials.end(), [](const Trial& t) { return !t.solved; }), trials.end());
    std::sort(trials.begin(), trials.end(), [](const Trial& a, const Trial& b) { return a.errorDeg < b.errorDeg; });
    std::printf("%-37s solved %zu of %zu", what.c_str(), trials.size(), all);
    if (!trials.empty())
        std::printf(", error median %.4f, 90 %% %.4f, worst %.4f degrees", trials[trials.size() / 2].errorDeg,
                    trials[trials.size() * 9 / 10].errorDeg, trials.back().errorDeg);
    std::printf("\n");
}

void tryWorlds(const std::string& world, unsigned first, unsigned count, bool zeroBaseline) {
    constexpr std::array<const char*, kCameras> names{"third", "platform"};
    std::array<std::vector<Trial>, kCameras> real, without;
    for (unsigned seed = first; seed < first + count; ++seed) {
        const Trials seen = tryWorld(world, seed, true);
        const Trials unshifted = zeroBaseline ? tryWorld(world, seed, false) : Trials{};
        for (std::size_t i = 0; i < kCameras; ++i) {
            real[i].push_back(seen[i]);
            without[i].push_back(unshifted[i]);
            std::printf("%-11s seed %4u  %-8s   %s", world.c_str(), seed, names[i], told(seen[i]).c_str());
            if (zeroBaseline) std::printf("   without baselines %s", told(unshifted[i]).c_str());
            std::printf("\n");
        }
        std::fflush(stdout);
    }
    for (std::size_t i = 0; i < kCameras; ++i) {
        const std::string what = world + ", " + names[i];
        summarize(what, real[i]);
        if (zeroBaseline) summarize(what + ", no baselines", without[i]);
    }
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<std::string> arguments(argv + 1, argv + argc);
    const bool zeroBaseline = arguments.empty() || arguments.front() != "--no-zero-baseline";
    if (!zeroBaseline) arguments.erase(arguments.begin());
    if (arguments.size() < 3) fatalFailure("usage: world-trials [--no-zero-baseline] FIRST_SEED SEEDS WORLD...", 2);
    setLogLevel(-1);
    qInstallMessageHandler(discard);
    const auto first = static_cast<unsigned>(std::atoi(arguments[0].c_str()));
    const auto count = static_cast<unsigned>(std::atoi(arguments[1].c_str()));
    for (std::size_t i = 2; i < arguments.size(); ++i)
        tryWorlds(arguments[i], first, count, zeroBaseline);
    return 0;
}
