// Compares the program's calibration with a reference built from OpenCV, on the same images in the same run.
//   compare-peer [--subsets N]          (recordings: see README.md; default: 10 choices of three stills each)

#include "benchmarks/ModuleStills.h"
#include "benchmarks/SiftCalibration.h"
#include "benchmarks/StillAttempt.h"
#include "diagnostics/Assertions.h"
#include "diagnostics/Logger.h"
#include "engine/Rotation.h"

#include <QtGlobal>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <numeric>
#include <random>

namespace {

using namespace fieldcal;

constexpr int kStills = 3;
constexpr double kPeerFailureDeg = 0.5;

using Choice = std::array<std::size_t, kStills>;

void discard(QtMsgType, const QMessageLogContext&, const QString&) {}

/// Different selections of three stills, in ascending order; reproducible for the same arguments.
std::vector<Choice> chooseStills(std::size_t stills, std::size_t count) {
    std::vector<Choice> all;
    for (std::size_t a = 0; a < stills; ++a)
        for (std::size_t b = a + 1; b < stills; ++b)
            for (std::size_t c = b + 1; c < stills; ++c)
                all.push_back({a, b, c});
    std::mt19937 random(1);
    for (std::size_t i = 0; i < std::min(count, all.size()); ++i)
        std::swap(all[i], all[i + random() % (all.size() - i)]);
    if (all.size() > count) all.resize(count);
    return all;
}

struct Answer {
    bool found = false;
    double errorDeg = 0;
    int pairs = 0;
    double msPerPair = 0;
};

using Stills = std::vector<const FrameRecords*>;

Answer calibrateOurs(const ModuleStills& module, const JudgedCamera& camera, const Stills& stills, unsigned seed) {
    StillAttempt attempt(module.parameters, camera, kStills);
    std::srand(seed);
    attempt.start();
    auto outcome = StillAttempt::Outcome::Continues;
    for (std::size_t i = 0; i < stills.size() && outcome == StillAttempt::Outcome::Continues; ++i)
        outcome = attempt.show(*stills[i]);
    if (outcome == StillAttempt::Outcome::Continues) outcome = attempt.finish();
    Answer answer;
    answer.pairs = attempt.pairs();
    answer.msPerPair = attempt.pairSeconds() * 1e3 / std::max(1, answer.pairs);
    answer.found = outcome == StillAttempt::Outcome::Solved;
    if (answer.found) answer.errorDeg = attempt.errorDeg();
    return answer;
}

Answer calibratePeer(const JudgedCamera& camera, const Stills& stills) {
    Answer answer;
    answer.pairs = kStills;
    vq::Stopwatch watch;
    const auto rotation = calibrateWithSift(stills, camera);
    answer.msPerPair = watch.lap() * 1e3 / answer.pairs;
    answer.found = rotation.has_value();
    if (rotation) answer.errorDeg = vq::angleBetweenDeg(*rotation, camera.truth);
    return answer;
}

double median(std::vector<double> values) {
    if (values.empty()) return 0;
    std::sort(values.begin(), values.end());
    return (values[(values.size() - 1) / 2] + values[values.size() / 2]) / 2;
}

template <typename Value>
std::vector<double> of(const std::vector<Answer>& answers, Value&& value) {
    std::vector<double> values;
    values.reserve(answers.size());
    for (const Answer& answer : answers)
        values.push_back(value(answer));
    return values;
}

/// Prints the median and the largest error of the solved cases, and the number of failures.
void printErrors(const std::vector<Answer>& answers, std::size_t failed) {
    std::vector<double> errors;
    for (const Answer& answer : answers)
        if (answer.found) errors.push_back(answer.errorDeg);
    if (errors.empty()) {
        std::printf(" | %8s %8s", "-", "-");
    } else {
        std::printf(" | %8.4f %8.4f", median(errors), *std::max_element(errors.begin(), errors.end()));
    }
    std::printf(" %3zu/%-3zu", failed, answers.size());
}

void printRow(const std::string& recording, const JudgedCamera& camera, const std::vector<Answer>& ours,
              const std::vector<Answer>& peer) {
    const auto milliseconds = [](const Answer& answer) { return answer.msPerPair; };
    std::vector<double> ratios;
    int notWorse = 0;
    for (std::size_t i = 0; i < ours.size(); ++i) {
        if (ours[i].msPerPair > 0) ratios.push_back(peer[i].msPerPair / ours[i].msPerPair);
        notWorse += ours[i].found && (!peer[i].found || ours[i].errorDeg <= peer[i].errorDeg) ? 1 : 0;
    }
    const auto pairs = of(ours, [](const Answer& answer) { return answer.pairs; });
    const auto unsolved = std::count_if(ours.begin(), ours.end(), [](const Answer& a) { return !a.found; });
    const auto failed = std::count_if(peer.begin(), peer.end(),
                                      [](const Answer& a) { return !a.found || a.errorDeg > kPeerFailureDeg; });
    std::printf("%-16s %-9s", recording.c_str(), camera.name());
    printErrors(ours, static_cast<std::size_t>(unsolved));
    std::printf(" %6.1f %7.0f", std::accumulate(pairs.begin(), pairs.end(), 0.0) / static_cast<double>(pairs.size()),
                median(of(ours, milliseconds)));
    printErrors(peer, static_cast<std::size_t>(failed));
    std::printf(" %7.0f | %6.2f %5d/%zu\n", median(of(peer, milliseconds)), median(ratios), notWorse, ours.size());
    std::fflush(stdout);
}

void compare(const std::string& folder, std::size_t subsets) {
    const ModuleStills module = playStills(folder);
    if (module.stills.size() < kStills) fatalFailure((folder + ": fewer than three stills").c_str(), 1);
    const std::string name = folder.substr(0, folder.find_last_not_of('/') + 1);
    for (const JudgedCamera& camera : judgedCameras(module.session, module.parameters)) {
        std::vector<Answer> ours, peer;
        for (const Choice& choice : chooseStills(module.stills.size(), subsets)) {
            Stills stills;
            for (std::size_t still : choice)
                stills.push_back(&module.stills[still]);
            ours.push_back(calibrateOurs(module, camera, stills, static_cast<unsigned>(ours.size()) + 1));
            peer.push_back(calibratePeer(camera, stills));
        }
        printRow(name.substr(name.find_last_of('/') + 1), camera, ours, peer);
    }
}

void printHead() {
    std::printf(
        "Ours: the program's calibration, which ends as soon as it is solved; unsolved: three stills were not enough.\n"
        "Peer: OpenCV's SIFT, ratio test, a MAGSAC homography a still, and a joint robust fit of the three angles;\n"
        "failed: no answer, or wrong by more than %.1f degrees. Both see the same stills, from the factory rotation "
        "on.\n"
        "Errors in degrees against the truth, of those that gave an answer. Time: wall milliseconds a pair from its\n"
        "pictures to the answer, median. Ratio: the peer's time over ours, median. At least as accurate: choices of\n"
        "three stills where ours is solved and no more wrong than the peer.\n\n",
        kPeerFailureDeg);
    std::printf("%-26s | %-41s | %-33s |\n", "", "ours", "peer");
    std::printf("%-16s %-9s | %8s %8s %-7s %6s %7s | %8s %8s %-7s %7s | %6s  at least as accurate\n", "recording",
                "camera", "median", "worst", "unsolv.", "stills", "ms/pair", "median", "worst", "failed", "ms/pair",
                "ratio");
}

}  // namespace

int main(int argc, char** argv) {
    const bool withSubsets = argc == 3 && std::strcmp(argv[1], "--subsets") == 0;
    const int subsets = withSubsets ? std::atoi(argv[2]) : 10;
    if ((argc != 1 && !withSubsets) || subsets < 1) fatalFailure("usage: compare-peer [--subsets N]", 2);
    setLogLevel(-1);
    qInstallMessageHandler(discard);
    printHead();
    for (const std::string& folder : recordingFolders())
        compare(folder, static_cast<std::size_t>(subsets));
    return 0;
}
