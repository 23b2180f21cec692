// Tests cases that a calibration has to refuse, and how far outside the searched ranges its results are correct.
//   refusal-trials [pairings] [shifted] [half-wrong] [drift]       (recordings: see README.md; default: all four)
// pairings: the infrared images of each still with the colour image of each other one, eight times in a row.
// shifted: all stills of an attempt, the infrared images of each with the colour image of the previous still.
// half-wrong: all stills in random order, half of them with the infrared images of another still.
// drift: all stills in random order, the drift about one axis in steps of 0.1 degrees across each edge of the range.
// The stills of a recording must show different scenes, because a rotation may explain two that overlap.

#include "benchmarks/ModuleStills.h"
#include "benchmarks/StillAttempt.h"
#include "diagnostics/Assertions.h"
#include "diagnostics/Logger.h"
#include "engine/Rotation.h"
#include "engine/SearchRange.h"

#include <QtGlobal>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <numeric>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace {

using namespace fieldcal;

constexpr int kPairLimit = 8;
constexpr double kWrongDeg = 0.1;
constexpr unsigned kShiftedSeeds = 10, kHalfWrongOrders = 60;
/// Distance from the edge of the range in tenths of a degree, and the limits of the bands in the table.
constexpr int kFirstTenth = -5, kLastTenth = 14;
constexpr std::array<int, 4> kBandEnds{0, 5, 10, kLastTenth};

void discard(QtMsgType, const QMessageLogContext&, const QString&) {}

/// The stills whose infrared and colour images are combined.
struct StillCombination {
    std::size_t infrared, colour;
};

/// One camera of a recording, possibly with a different factory rotation.
struct TestedCamera {
    const ModuleStills& module;
    CameraParameters parameters;
    JudgedCamera camera;
};

struct Tally {
    int attempts = 0, pairs = 0, solved = 0, wrong = 0;
    std::vector<double> errorsDeg;

    void add(const Tally& other) {
        attempts += other.attempts;
        pairs += other.pairs;
        solved += other.solved;
        wrong += other.wrong;
        errorsDeg.insert(errorsDeg.end(), other.errorsDeg.begin(), other.errorsDeg.end());
    }
};

FrameRecords recordsOf(const ModuleStills& module, const StillCombination& combination) {
    FrameRecords records = module.stills[combination.infrared];
    records.colour[ColourCamera::Third] = module.stills[combination.colour].colour[ColourCamera::Third];
    records.colour[ColourCamera::Platform] = module.stills[combination.colour].colour[ColourCamera::Platform];
    return records;
}

Tally attempt(const TestedCamera& tested, const std::vector<StillCombination>& combinations, unsigned seed) {
    StillAttempt attempt(tested.parameters, tested.camera, kPairLimit);
    std::srand(seed);
    attempt.start();
    auto outcome = StillAttempt::Outcome::Continues;
    for (std::size_t i = 0; i < combinations.size() && outcome == StillAttempt::Outcome::Continues; ++i)
        outcome = attempt.show(recordsOf(tested.module, combinations[i]));
    Tally tally;
    tally.attempts = 1;
    tally.pairs = attempt.pairs();
    if (outcome != StillAttempt::Outcome::Solved) return tally;
    tally.solved = 1;
    tally.errorsDeg = {attempt.errorDeg()};
    tally.wrong = tally.errorsDeg.front() > kWrongDeg ? 1 : 0;
    return tally;
}

/// Rows of the table, for one camera or for all of them.
using Rows = std::vector<std::pair<std::string, Tally>>;

std::vector<std::size_t> shuffledStills(std::size_t count, std::mt19937* random) {
    std::vector<std::size_t> order(count);
    std::iota(order.begin(), order.end(), 0U);
    for (std::size_t i = count; i > 1; --i)
        std::swap(order[i - 1], order[(*random)() % i]);
    return order;
}

Rows tryPairings(const TestedCamera& tested) {
    Tally tally;
    const std::size_t stills = tested.module.stills.size();
    for (std::size_t infrared = 0; infrared < stills; ++infrared) {
        for (std::size_t colour = 0; colour < stills; ++colour) {
            if (infrared == colour) continue;
            const std::vector<StillCombination> combinations(kPairLimit, {infrared, colour});
            tally.add(attempt(tested, combinations, static_cast<unsigned>(infrared * stills + colour)));
        }
    }
    return {{"wrong pairing, eight times", tally}};
}

Rows tryShifted(const TestedCamera& tested) {
    Tally tally;
    const std::size_t stills = tested.module.stills.size();
    std::vector<StillCombination> combinations;
    for (std::size_t colour = 0; colour < stills; ++colour)
        combinations.push_back({(colour + 1) % stills, colour});
    for (unsigned seed = 1; seed <= kShiftedSeeds; ++seed)
        tally.add(attempt(tested, combinations, seed));
    return {{"infrared of the next still", tally}};
}

Rows tryHalfWrong(const TestedCamera& tested) {
    Tally tally;
    const std::size_t stills = tested.module.stills.size();
    for (unsigned seed = 1; seed <= kHalfWrongOrders; ++seed) {
        std::mt19937 random(seed);
        std::vector<StillCombination> combinations;
        for (const std::size_t colour : shuffledStills(stills, &random))
            combinations.push_back({colour, colour});
        const auto positions = shuffledStills(stills, &random);
        for (std::size_t i = 0; i < stills / 2; ++i) {
            StillCombination& wrong = combinations[positions[i]];
            wrong.infrared = (wrong.colour + 1 + random() % (stills - 1)) % stills;
        }
        tally.add(attempt(tested, combinations, seed));
    }
    return {{"half of the stills wrong", tally}};
}

/// Returns the same camera with a factory rotation from which the true one has drifted by the given angles.
TestedCamera drifted(const TestedCamera& tested, const Eigen::Vector3d& driftDeg) {
    TestedCamera moved = tested;
    const Eigen::Vector3d anglesRad = vq::anglesFromRotation(tested.camera.truth) - driftDeg / vq::kDegreesPerRadian;
    moved.camera.factory = vq::rotationFromAngles(anglesRad);
    auto& extrinsics = moved.parameters.colour[tested.camera.camera].fromDepth;
    Eigen::Map<Eigen::Matrix<float, 3, 3, Eigen::RowMajor>> stored(extrinsics.rotation.data());
    stored = moved.camera.factory.cast<float>();
    return moved;
}

double within(double low, double high, std::mt19937* random) {
    return low + (high - low) * static_cast<double>((*random)()) / static_cast<double>(std::mt19937::max());
}

Rows tryDrift(const TestedCamera& tested) {
    Rows rows{{"drift 0.5 ... 0.0 inside the range", {}},
              {"drift 0.1 ... 0.5 beyond", {}},
              {"drift 0.6 ... 1.0 beyond", {}},
              {"drift 1.1 ... 1.4 beyond", {}}};
    const vq::SearchRange range;
    unsigned seed = 0;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        for (const bool upper : {false, true}) {
            for (int tenth = kFirstTenth; tenth <= kLastTenth; ++tenth) {
                std::mt19937 random(++seed);
                Eigen::Vector3d driftDeg;
                for (std::size_t i = 0; i < 3; ++i)
                    driftDeg[static_cast<Eigen::Index>(i)] = within(range.minDeg[i], range.maxDeg[i], &random);
                driftDeg[static_cast<Eigen::Index>(axis)] =
                    upper ? range.maxDeg[axis] + 0.1 * tenth : range.minDeg[axis] - 0.1 * tenth;
                std::vector<StillCombination> combinations;
                for (const std::size_t still : shuffledStills(tested.module.stills.size(), &random))
                    combinations.push_back({still, still});
                const auto band = std::lower_bound(kBandEnds.begin(), kBandEnds.end(), tenth) - kBandEnds.begin();
                rows[static_cast<std::size_t>(band)].second.add(attempt(drifted(tested, driftDeg), combinations, seed));
            }
        }
    }
    return rows;
}

using Case = std::pair<const char*, std::function<Rows(const TestedCamera&)>>;

const std::array<Case, 4>& allCases() {
    static const std::array<Case, 4> cases{
        {{"pairings", tryPairings}, {"shifted", tryShifted}, {"half-wrong", tryHalfWrong}, {"drift", tryDrift}}};
    return cases;
}

void printRow(const std::string& recording, const std::string& camera, const std::string& what, const Tally& tally) {
    std::printf("%-35s %-12s %-9s %8d %6d %7d %6d", what.c_str(), recording.c_str(), camera.c_str(), tally.attempts,
                tally.pairs, tally.solved, tally.wrong);
    std::vector<double> errors = tally.errorsDeg;
    std::sort(errors.begin(), errors.end());
    if (errors.empty()) {
        std::printf(" %8s %8s\n", "-", "-");
    } else {
        std::printf(" %8.4f %8.4f\n", errors[errors.size() / 2], errors.back());
    }
    std::fflush(stdout);
}

void tryCase(const std::vector<ModuleStills>& modules, const Case& tried) {
    const auto folders = recordingFolders();
    Rows all;
    int cameras = 0;
    for (std::size_t i = 0; i < modules.size(); ++i) {
        const std::string name = folders[i].substr(0, folders[i].find_last_not_of('/') + 1);
        for (const JudgedCamera& camera : judgedCameras(modules[i].session, modules[i].parameters)) {
            const Rows rows = tried.second({modules[i], modules[i].parameters, camera});
            if (all.empty()) all.resize(rows.size());
            for (std::size_t row = 0; row < rows.size(); ++row) {
                printRow(name.substr(name.find_last_of('/') + 1), camera.name(), rows[row].first, rows[row].second);
                all[row].first = rows[row].first;
                all[row].second.add(rows[row].second);
            }
            ++cameras;
        }
    }
    for (const auto& [what, tally] : all)
        if (cameras > 1) printRow("all", "all", what, tally);
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> wanted(argv + 1, argv + argc);
    for (const std::string& name : wanted) {
        const auto isNamed = [&](const Case& known) { return name == known.first; };
        if (std::none_of(allCases().begin(), allCases().end(), isNamed))
            fatalFailure("usage: refusal-trials [pairings] [shifted] [half-wrong] [drift]", 2);
    }
    setLogLevel(-1);
    qInstallMessageHandler(discard);
    std::vector<ModuleStills> modules;
    for (const std::string& folder : recordingFolders()) {
        modules.push_back(playStills(folder));
        if (modules.back().stills.size() < 2) fatalFailure((folder + ": fewer than two stills").c_str(), 1);
    }
    std::printf("Wrong: solved, and more than %.1f degrees from the truth. Errors of what was solved, degrees.\n\n",
                kWrongDeg);
    std::printf("%-35s %-12s %-9s %8s %6s %7s %6s %8s %8s\n", "case", "recording", "camera", "attempts", "pairs",
                "solved", "wrong", "median", "worst");
    for (const Case& known : allCases())
        if (wanted.empty() || std::find(wanted.begin(), wanted.end(), known.first) != wanted.end())
            tryCase(modules, known);
    std::printf("\nProcessor time: %.0f s\n", static_cast<double>(std::clock()) / CLOCKS_PER_SEC);
    return 0;
}
