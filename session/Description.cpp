#include "session/Description.h"

#include "session/InputFile.h"
#include "session/JsonOutline.h"
#include "session/JsonReader.h"
#include "session/Refusal.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace fieldcal::session {
namespace {

constexpr double kLargestSize = 8192;
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

bool climbsOut(const std::string& name) {
    for (std::size_t start = 0; start <= name.size();) {
        const std::size_t end = std::min(name.find('/', start), name.size());
        if (name.compare(start, end - start, "..") == 0) return true;
        start = end + 1;
    }
    return false;
}

/// A name inside the session's folder, on any operating system.
std::string fileName(const JsonKey& key) {
    std::string name = key.text();
    if (name.empty()) {
        key.refuse("empty file name");
    } else if (name.front() == '/' || name.find_first_of("\\:") != std::string::npos) {
        key.refuse("file name is not relative to the folder");
    } else if (climbsOut(name)) {
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
    if (key.has("repeat")) out.repeat = static_cast<int>(key["repeat"].integer(1, kLargestRepeat));
    if (!out.platform.empty() && !hasPlatform) key["platform"].refuse("the session has no platform camera");
    return out;
}

std::vector<FrameEntry> frameList(const JsonKey& key, bool hasPlatform) {
    std::vector<FrameEntry> out;
    double grabs = 0;
    for (const JsonKey& item : key.elements()) {
        out.push_back(frameEntry(item, hasPlatform));
        grabs += out.back().repeat;
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

}  // namespace

int SessionDescription::grabCount() const {
    int count = 0;
    for (const FrameEntry& frame : frames)
        count += frame.repeat;
    return count;
}

std::string descriptionFile(const std::string& folder) {
    return folder + "/session.json";
}

bool parseDescription(const QByteArray& bytes, const std::string& file, SessionDescription* out, std::string* why) {
    // Before the parser, which loses memory over such a text.
    if (const auto key = repeatedJsonKey(bytes)) return refuse(why, file, *key, "the key stands twice");
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (error.error != QJsonParseError::NoError) {
        return refuse(why, file, jsonKeyAt(bytes, error.offset),
                      "not JSON: " + error.errorString().toStdString() + " at byte " + std::to_string(error.offset));
    }
    if (!document.isObject()) return refuse(why, file, {}, "an object expected");
    JsonFault fault;
    *out = sessionDescription(JsonKey(document.object(), &fault));
    return !fault.found() || refuse(why, file, fault.key, fault.reason);
}

bool readDescription(const std::string& folder, SessionDescription* out, std::string* why) {
    const std::string name = descriptionFile(folder);
    QFile file;
    if (!openInput(name, {}, kLargestFile, &file, why)) return false;
    return parseDescription(file.readAll(), name, out, why);
}

}  // namespace fieldcal::session
