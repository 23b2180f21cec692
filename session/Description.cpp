#include "session/Files.h"
#include "session/JsonReader.h"
#include "session/RecordedSession.h"

#include <nlohmann/json.hpp>

namespace fieldcal::session {
namespace {

using nlohmann::json;

constexpr double kLargestSize = 8192;
/// Limit for one image. A frame has up to five images, and decoding makes copies of them.
constexpr std::int64_t kMaxPixels = 8 << 20;
constexpr double kSmallestFocalLength = 1;
constexpr double kLargestFocalLength = 1e5;
constexpr double kLargestPrincipalPoint = 1e5;
constexpr double kLargestDistortion = 100;
constexpr double kLargestTranslation = 1e5;
constexpr double kLargestRepeat = 1e6;
constexpr double kLargestGrabCount = 1e9;
constexpr qint64 kLargestFile = 64 << 20;

void readIntrinsics(const JsonKey& key, Intrinsics* out) {
    out->width = static_cast<int>(key["width"].integer(1, kLargestSize));
    out->height = static_cast<int>(key["height"].integer(1, kLargestSize));
    if (std::int64_t{out->width} * out->height > kMaxPixels) {
        key.refuse("more than " + std::to_string(kMaxPixels) + " pixels");
    }
    out->fx = key["fx"].number(kSmallestFocalLength, kLargestFocalLength);
    out->fy = key["fy"].number(kSmallestFocalLength, kLargestFocalLength);
    out->cx = key["cx"].number(-kLargestPrincipalPoint, kLargestPrincipalPoint);
    out->cy = key["cy"].number(-kLargestPrincipalPoint, kLargestPrincipalPoint);
}

void readPlatformIntrinsics(const JsonKey& key, Intrinsics* out) {
    readIntrinsics(key, out);
    if (out->width != kPlatformWidth) key["width"].refuse(std::to_string(kPlatformWidth) + " expected");
    if (out->height != kPlatformHeight) key["height"].refuse(std::to_string(kPlatformHeight) + " expected");
}

double distortion(const JsonKey& key, const char* name) {
    return key[name].number(-kLargestDistortion, kLargestDistortion);
}

void readRawIntrinsics(const JsonKey& key, RawIntrinsics* out) {
    readPlatformIntrinsics(key, out);
    out->k1 = distortion(key, "k1");
    out->k2 = distortion(key, "k2");
    out->p1 = distortion(key, "p1");
    out->p2 = distortion(key, "p2");
    out->k3 = distortion(key, "k3");
}

Vector3 translation(const JsonKey& key) {
    return key["translation"].numbers<3>(-kLargestTranslation, kLargestTranslation);
}

ModuleInfo moduleInfo(const JsonKey& key) {
    ModuleInfo out;
    out.serial = static_cast<std::uint32_t>(key["serial"].integer(0, 4294967295.0));
    out.firmware = key["firmware"].text();
    out.software = key["software"].text();
    out.calibrationValid = key["calibrationValid"].boolean();
    return out;
}

ThirdCamera thirdCamera(const JsonKey& key) {
    ThirdCamera out;
    readIntrinsics(key, &out);
    out.rotation = key["rotation"].rotation();
    out.translation = translation(key);
    return out;
}

PlatformCamera platformCamera(const JsonKey& key) {
    PlatformCamera out;
    out.name = key["name"].text();
    readRawIntrinsics(key["raw"], &out.raw);
    readPlatformIntrinsics(key["rectified"], &out.rectified);
    out.rectification = key["rectification"].rotation();
    out.rotation = key["rotation"].rotation();
    out.translation = translation(key);
    return out;
}

bool leavesFolder(const std::string& name) {
    for (std::size_t start = 0; start <= name.size();) {
        const std::size_t end = std::min(name.find('/', start), name.size());
        if (name.compare(start, end - start, "..") == 0) return true;
        start = end + 1;
    }
    return false;
}

/// Reads a file name that is valid inside the session's folder on every operating system.
std::string fileName(const JsonKey& key) {
    std::string name = key.text();
    if (name.empty()) {
        key.refuse("empty file name");
    } else if (name.front() == '/' || name.find_first_of("\\:") != std::string::npos) {
        key.refuse("file name is not relative to the folder");
    } else if (leavesFolder(name)) {
        key.refuse("file name leaves the folder");
    } else if (name.find('\0') != std::string::npos) {
        key.refuse("file name holds a zero character");
    }
    return name;
}

FrameEntry frameEntry(const JsonKey& key, bool hasPlatform) {
    FrameEntry out;
    out.infrared = fileName(key["infrared"]);
    out.third = fileName(key["third"]);
    if (key.has("depth")) out.depth = fileName(key["depth"]);
    if (key.has("platform")) out.platform = fileName(key["platform"]);
    if (key.has("right")) out.right = fileName(key["right"]);
    if (key.has("timeNs")) out.timeNs = key["timeNs"].integer64();
    if (key.has("repeat")) out.repeat = static_cast<int>(key["repeat"].integer(1, kLargestRepeat));
    if (!out.platform.empty() && !hasPlatform) key["platform"].refuse("the session has no platform camera");
    return out;
}

std::vector<FrameEntry> frameList(const JsonKey& key, bool hasPlatform) {
    std::vector<FrameEntry> out;
    double grabs = 0;
    for (const JsonKey& item : key.elements(kMaxFrames)) {
        out.push_back(frameEntry(item, hasPlatform));
        grabs += out.back().repeat;
        if (key.anyFault()) return out;
    }
    if (out.empty()) key.refuse("no frame");
    if (grabs > kLargestGrabCount) key.refuse("more than 1000000000 grabs together");
    return out;
}

SessionDescription sessionDescription(const JsonKey& root) {
    SessionDescription out;
    if (root["version"].integer(0, 1e9) != 1) root["version"].refuse("only version 1 can be read");
    out.module = moduleInfo(root["module"]);
    readIntrinsics(root["infrared"], &out.infrared);
    readIntrinsics(root["depth"], &out.depth);
    out.third = thirdCamera(root["third"]);
    if (root.has("platform")) out.platform = platformCamera(root["platform"]);
    out.frames = frameList(root["frames"], out.platform.has_value());
    if (!root.has("truth")) return out;
    const JsonKey truth = root["truth"];
    if (truth.has("third")) out.truthThird = truth["third"].rotation();
    if (truth.has("platform")) out.truthPlatform = truth["platform"].rotation();
    return out;
}

/// Parses and checks the content of a session.json. `file` is its name for `why`.
bool parseDescription(const std::string& text, const std::string& file, SessionDescription* out, std::string* why) {
    json document;
    JsonFault fault;
    if (!parseJson(text, &document, &fault)) return refuse(why, file, fault.key, fault.reason);
    *out = sessionDescription(JsonKey(document, &fault));
    return !fault.found() || refuse(why, file, fault.key, fault.reason);
}

json writtenIntrinsics(const Intrinsics& camera) {
    return {{"width", camera.width}, {"height", camera.height}, {"fx", camera.fx},
            {"fy", camera.fy},       {"cx", camera.cx},         {"cy", camera.cy}};
}

json writtenRawIntrinsics(const RawIntrinsics& camera) {
    json out = writtenIntrinsics(camera);
    out.update({{"k1", camera.k1}, {"k2", camera.k2}, {"p1", camera.p1}, {"p2", camera.p2}, {"k3", camera.k3}});
    return out;
}

json writtenModule(const ModuleInfo& module) {
    return {{"serial", module.serial},
            {"firmware", module.firmware},
            {"software", module.software},
            {"calibrationValid", module.calibrationValid}};
}

json writtenThirdCamera(const ThirdCamera& camera) {
    json out = writtenIntrinsics(camera);
    out.update({{"rotation", camera.rotation}, {"translation", camera.translation}});
    return out;
}

json writtenPlatformCamera(const PlatformCamera& camera) {
    return {{"name", camera.name},
            {"raw", writtenRawIntrinsics(camera.raw)},
            {"rectified", writtenIntrinsics(camera.rectified)},
            {"rectification", camera.rectification},
            {"rotation", camera.rotation},
            {"translation", camera.translation}};
}

json writtenFrame(const FrameEntry& frame) {
    json out{{"infrared", frame.infrared}, {"third", frame.third}, {"repeat", frame.repeat}};
    if (!frame.depth.empty()) out["depth"] = frame.depth;
    if (!frame.platform.empty()) out["platform"] = frame.platform;
    if (!frame.right.empty()) out["right"] = frame.right;
    if (frame.timeNs) out["timeNs"] = *frame.timeNs;
    return out;
}

std::string writtenDescription(const SessionDescription& session) {
    json out{{"version", 1},
             {"module", writtenModule(session.module)},
             {"infrared", writtenIntrinsics(session.infrared)},
             {"depth", writtenIntrinsics(session.depth)},
             {"third", writtenThirdCamera(session.third)},
             {"frames", json::array()}};
    for (const FrameEntry& frame : session.frames)
        out["frames"].push_back(writtenFrame(frame));
    if (session.platform) out["platform"] = writtenPlatformCamera(*session.platform);
    if (session.truthThird) out["truth"]["third"] = *session.truthThird;
    if (session.truthPlatform) out["truth"]["platform"] = *session.truthPlatform;
    // Invalid UTF-8 is replaced; by default the library would throw an exception.
    return out.dump(4, ' ', false, json::error_handler_t::replace) + '\n';
}

std::string descriptionFile(const std::string& folder) {
    return folder + "/session.json";
}

}  // namespace

int SessionDescription::grabCount() const {
    int count = 0;
    for (const FrameEntry& frame : frames)
        count += frame.repeat;
    return count;
}

bool readDescription(const std::string& folder, SessionDescription* out, std::string* why) {
    const std::string name = descriptionFile(folder);
    QFile file;
    if (!openInput(name, {}, kLargestFile, &file, why)) return false;
    std::string text(static_cast<std::size_t>(file.size()), '\0');
    if (file.read(text.data(), static_cast<qint64>(text.size())) != static_cast<qint64>(text.size())) {
        return refuse(why, name, {}, "cannot be read");
    }
    return parseDescription(text, name, out, why);
}

bool writeDescription(const std::string& folder, const SessionDescription& session, std::string* why) {
    const std::string name = descriptionFile(folder);
    const std::string text = writtenDescription(session);
    SessionDescription readBack;
    return parseDescription(text, name, &readBack, why) && makeFolder(folder, why) &&
           writeOutput(name, text.data(), text.size(), why);
}

}  // namespace fieldcal::session
