#include "simulator/kxapi/Settings.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <mutex>
#include <set>

namespace kxsim {
namespace {

constexpr double kSlowest = 0.01;
constexpr double kFastest = 1000;
constexpr double kLargestDriftDeg = 20;

void readSpeed(Settings* out) {
    const QString text = qEnvironmentVariable("KXSIM_SPEED");
    if (text.isEmpty()) return;
    bool ok = false;
    out->speed = text.toDouble(&ok);
    if (ok && (out->speed == 0 || (out->speed >= kSlowest && out->speed <= kFastest))) return;
    out->problem = "KXSIM_SPEED: \"" + text.toStdString() + "\": 0 or a number from 0.01 to 1000 expected";
}

/// `choices`: the names of the values of `Choice` in their order.
template <typename Choice>
void readChoice(const char* variable, const QStringList& choices, Choice* out, std::string* problem) {
    const QString text = qEnvironmentVariable(variable);
    if (text.isEmpty()) return;
    const auto choice = static_cast<int>(choices.indexOf(text));
    if (choice >= 0) {
        *out = static_cast<Choice>(choice);
        return;
    }
    const QString names = QStringList(choices.mid(0, choices.size() - 1)).join(", ") + " or " + choices.last();
    *problem = std::string(variable) + ": \"" + text.toStdString() + "\": " + names.toStdString() + " expected";
}

void readSeed(Settings* out) {
    const QString text = qEnvironmentVariable("KXSIM_SEED");
    if (text.isEmpty()) return;
    bool ok = false;
    out->seed = text.toUInt(&ok);
    if (!ok) out->problem = "KXSIM_SEED: \"" + text.toStdString() + "\": a number from 0 to 4294967295 expected";
}

std::optional<std::array<double, 3>> anglesIn(const QString& text) {
    const QStringList parts = text.split(',');
    std::array<double, 3> angles{};
    if (parts.size() != 3) return {};
    for (int i = 0; i < 3; ++i) {
        bool ok = false;
        angles[i] = parts[i].toDouble(&ok);
        if (!ok || !(std::abs(angles[i]) <= kLargestDriftDeg)) return {};
    }
    return angles;
}

void readDrift(const char* variable, std::optional<std::array<double, 3>>* drift, std::string* problem) {
    const QString text = qEnvironmentVariable(variable);
    if (text.isEmpty()) return;
    *drift = anglesIn(text);
    if (!*drift)
        *problem = std::string(variable) + ": \"" + text.toStdString() + "\": three degrees from -20 to 20 expected";
}

}  // namespace

Settings readSettings() {
    Settings out;
    out.session = qEnvironmentVariable("KXSIM_SESSION").toStdString();
    out.flash = qEnvironmentVariable("KXSIM_FLASH").toStdString();
    out.world = qEnvironmentVariable("KXSIM_WORLD", "square").toStdString();
    out.light = qEnvironmentVariable("KXSIM_LIGHT", "sun").toStdString();
    readSpeed(&out);
    readSeed(&out);
    readDrift("KXSIM_DRIFT", &out.drift, &out.problem);
    readDrift("KXSIM_PLATFORM_DRIFT", &out.platformDrift, &out.problem);
    readChoice("KXSIM_PLATFORM", {"absent", "uncalibrated", "calibrated"}, &out.platform, &out.problem);
    readChoice("KXSIM_RIGHT", {"real", "blank", "left"}, &out.right, &out.problem);
    out.faults.parse(qEnvironmentVariable("KXSIM_FAULTS").toStdString(), &out.problem);
    return out;
}

void report(const std::string& line) {
    std::string printable = line;
    std::replace_if(
        printable.begin(), printable.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, '?');
    std::fprintf(stderr, "KXAPI: %s\n", printable.c_str());
}

void reportOnce(const std::string& line) {
    static std::mutex mutex;
    static std::set<std::string> reported;
    const std::lock_guard<std::mutex> lock(mutex);
    if (reported.insert(line).second) report(line);
}

}  // namespace kxsim
