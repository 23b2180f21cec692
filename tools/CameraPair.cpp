#include "tools/CameraPair.h"

#include "session/Files.h"
#include "session/JsonReader.h"
#include "tools/ResultFile.h"

#include <QJsonArray>

#include <algorithm>
#include <nlohmann/json.hpp>

namespace fieldcal {
namespace {

using session::JsonKey;

constexpr qint64 kLargestResult = 16 << 20;
constexpr double kLargestSize = 8192;
constexpr double kSmallestFocalLength = 1;
constexpr double kLargestPixels = 1e5;
constexpr double kLargestDistortion = 100;
constexpr double kLargestTranslationM = 100;
constexpr double kLargestDeviationDeg = 360;
constexpr double kMetresPerMillimetre = 1e-3;

template <typename Numbers>
QJsonArray jsonNumbers(const Numbers& numbers) {
    QJsonArray array;
    std::copy(numbers.begin(), numbers.end(), std::back_inserter(array));
    return array;
}

QJsonObject intrinsicsJson(const session::Intrinsics& camera) {
    return {{"width", camera.width}, {"height", camera.height}, {"fx", camera.fx},
            {"fy", camera.fy},       {"cx", camera.cx},         {"cy", camera.cy}};
}

QJsonObject rawIntrinsicsJson(const session::RawIntrinsics& camera) {
    QJsonObject object = intrinsicsJson(camera);
    object.insert("k1", camera.k1);
    object.insert("k2", camera.k2);
    object.insert("p1", camera.p1);
    object.insert("p2", camera.p2);
    object.insert("k3", camera.k3);
    return object;
}

void readIntrinsics(const JsonKey& key, session::Intrinsics* out) {
    out->width = static_cast<int>(key["width"].integer(1, kLargestSize));
    out->height = static_cast<int>(key["height"].integer(1, kLargestSize));
    out->fx = key["fx"].number(kSmallestFocalLength, kLargestPixels);
    out->fy = key["fy"].number(kSmallestFocalLength, kLargestPixels);
    out->cx = key["cx"].number(-kLargestPixels, kLargestPixels);
    out->cy = key["cy"].number(-kLargestPixels, kLargestPixels);
}

UnrectifiedCamera readUnrectified(const JsonKey& cameras) {
    const JsonKey raw = cameras["raw"];
    const auto distortion = [&raw](const char* name) {
        return raw[name].number(-kLargestDistortion, kLargestDistortion);
    };
    UnrectifiedCamera out;
    readIntrinsics(raw, &out.intrinsics);
    out.intrinsics.k1 = distortion("k1");
    out.intrinsics.k2 = distortion("k2");
    out.intrinsics.p1 = distortion("p1");
    out.intrinsics.p2 = distortion("p2");
    out.intrinsics.k3 = distortion("k3");
    out.rectification = cameras["rectification"].rotation();
    return out;
}

CameraPair readPair(const JsonKey& root, const nlohmann::json& document) {
    CameraPair out;
    if (root["schema"].integer(0, 1e9) != kResultSchema) {
        root["schema"].refuse("only schema " + std::to_string(kResultSchema) + " can be read");
    }
    if (!root["solved"].boolean()) root["solved"].refuse("there is no solution to export");
    const std::string camera = root["camera"].text();
    out.camera = camera == nameOf(ColourCamera::Platform) ? ColourCamera::Platform : ColourCamera::Third;
    if (camera != out.name()) root["camera"].refuse("third or platform expected");
    out.serial = static_cast<std::uint32_t>(root["serial"].integer(0, 4294967295.0));
    out.rotation = root["rotation"].rotation();
    if (const auto deviation = document.find("uncertaintyDeg"); deviation != document.end() && !deviation->is_null()) {
        out.deviationDeg = root["uncertaintyDeg"].numbers<3>(0, kLargestDeviationDeg);
    }
    const JsonKey cameras = root["cameras"];
    readIntrinsics(cameras["infrared"], &out.infrared);
    readIntrinsics(cameras["colour"], &out.colour);
    out.translationM = cameras["translationM"].numbers<3>(-kLargestTranslationM, kLargestTranslationM);
    if (out.camera == ColourCamera::Platform) out.unrectified = readUnrectified(cameras);
    return out;
}

}  // namespace

CameraPair cameraPair(const session::SessionDescription& session, ColourCamera camera) {
    const bool isPlatform = camera == ColourCamera::Platform;
    CameraPair pair;
    pair.camera = camera;
    pair.serial = session.module.serial;
    pair.infrared = session.infrared;
    pair.colour = isPlatform ? session.platform->rectified : session.third;
    if (isPlatform) pair.unrectified = UnrectifiedCamera{session.platform->raw, session.platform->rectification};
    pair.rotation = isPlatform ? session.platform->rotation : session.third.rotation;
    const session::Vector3& millimetres = isPlatform ? session.platform->translation : session.third.translation;
    std::transform(millimetres.begin(), millimetres.end(), pair.translationM.begin(),
                   [](double length) { return length * kMetresPerMillimetre; });
    return pair;
}

QJsonObject camerasJson(const CameraPair& pair) {
    QJsonObject object{{"infrared", intrinsicsJson(pair.infrared)},
                       {"colour", intrinsicsJson(pair.colour)},
                       {"translationM", jsonNumbers(pair.translationM)}};
    if (!pair.unrectified) return object;
    object.insert("raw", rawIntrinsicsJson(pair.unrectified->intrinsics));
    object.insert("rectification", jsonNumbers(pair.unrectified->rectification));
    return object;
}

bool readResult(const std::string& file, CameraPair* out, std::string* why) {
    QFile input;
    if (!session::openInput(file, {}, kLargestResult, &input, why)) return false;
    nlohmann::json document;
    session::JsonFault fault;
    if (session::parseJson(input.readAll().toStdString(), &document, &fault)) {
        CameraPair pair = readPair(JsonKey(document, &fault), document);
        if (!fault.found()) *out = pair;
    }
    return !fault.found() || session::refuse(why, file, fault.key, fault.reason);
}

}  // namespace fieldcal
