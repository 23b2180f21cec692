#include "simulator/kxapi/Settings.h"

#include <QString>

#include <algorithm>
#include <cstdio>
#include <mutex>
#include <set>

namespace kxsim {
namespace {

constexpr double kSlowest = 0.01;
constexpr double kFastest = 1000;

void readSpeed(Settings* out) {
    const QString text = qEnvironmentVariable("KXSIM_SPEED");
    if (text.isEmpty()) return;
    bool ok = false;
    out->speed = text.toDouble(&ok);
    if (ok && (out->speed == 0 || (out->speed >= kSlowest && out->speed <= kFastest))) return;
    out->problem = "KXSIM_SPEED: \"" + text.toStdString() + "\": 0 or a number from 0.01 to 1000 expected";
}

void readPlatform(Settings* out) {
    const QString text = qEnvironmentVariable("KXSIM_PLATFORM");
    out->platformAbsent = text == QLatin1String("absent");
    if (text.isEmpty() || out->platformAbsent) return;
    if (text == QLatin1String("uncalibrated") || text == QLatin1String("calibrated")) return;
    out->problem = "KXSIM_PLATFORM: \"" + text.toStdString() + "\": absent, uncalibrated or calibrated expected";
}

}  // namespace

Settings readSettings() {
    Settings out;
    out.session = qEnvironmentVariable("KXSIM_SESSION").toStdString();
    out.flash = qEnvironmentVariable("KXSIM_FLASH").toStdString();
    readSpeed(&out);
    readPlatform(&out);
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
