#include "session/Description.h"
#include "session/Refusal.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

namespace fieldcal::session {
namespace {

QString text(const std::string& value) {
    return QString::fromStdString(value);
}

template <std::size_t n>
QJsonArray numbers(const std::array<double, n>& values) {
    QJsonArray out;
    for (const double value : values)
        out.append(value);
    return out;
}

QJsonObject intrinsics(const Intrinsics& camera) {
    return {{"width", camera.width}, {"height", camera.height}, {"fx", camera.fx},
            {"fy", camera.fy},       {"cx", camera.cx},         {"cy", camera.cy}};
}

QJsonObject rawIntrinsics(const RawIntrinsics& camera) {
    QJsonObject out = intrinsics(camera);
    out.insert("k1", camera.k1);
    out.insert("k2", camera.k2);
    out.insert("p1", camera.p1);
    out.insert("p2", camera.p2);
    out.insert("k3", camera.k3);
    return out;
}

QJsonObject moduleInfo(const ModuleInfo& module) {
    return {{"serial", static_cast<qint64>(module.serial)},
            {"firmware", text(module.firmware)},
            {"software", text(module.software)},
            {"calibrationValid", module.calibrationValid}};
}

QJsonObject thirdCamera(const ThirdCamera& camera) {
    QJsonObject out = intrinsics(camera);
    out.insert("rotation", numbers(camera.rotation));
    out.insert("translation", numbers(camera.translation));
    return out;
}

QJsonObject platformCamera(const PlatformCamera& camera) {
    return {{"name", text(camera.name)},
            {"raw", rawIntrinsics(camera.raw)},
            {"rectified", intrinsics(camera.rectified)},
            {"rectification", numbers(camera.rectification)},
            {"rotation", numbers(camera.rotation)},
            {"translation", numbers(camera.translation)}};
}

QJsonObject frameEntry(const FrameEntry& frame) {
    QJsonObject out{{"infrared", text(frame.infrared)}, {"third", text(frame.third)}, {"repeat", frame.repeat}};
    if (!frame.depth.empty()) out.insert("depth", text(frame.depth));
    if (!frame.platform.empty()) out.insert("platform", text(frame.platform));
    if (!frame.right.empty()) out.insert("right", text(frame.right));
    return out;
}

QJsonObject sessionObject(const SessionDescription& session) {
    QJsonArray frames;
    for (const FrameEntry& frame : session.frames)
        frames.append(frameEntry(frame));
    QJsonObject out{{"version", 1},
                    {"module", moduleInfo(session.module)},
                    {"infrared", intrinsics(session.infrared)},
                    {"depth", intrinsics(session.depth)},
                    {"third", thirdCamera(session.third)},
                    {"frames", frames}};
    if (session.platform) out.insert("platform", platformCamera(*session.platform));
    QJsonObject truth;
    if (session.truthThird) truth.insert("third", numbers(*session.truthThird));
    if (session.truthPlatform) truth.insert("platform", numbers(*session.truthPlatform));
    if (!truth.isEmpty()) out.insert("truth", truth);
    return out;
}

}  // namespace

bool writeDescription(const std::string& folder, const SessionDescription& session, std::string* why) {
    const std::string name = descriptionFile(folder);
    const QByteArray bytes = QJsonDocument(sessionObject(session)).toJson();
    SessionDescription readBack;
    if (!parseDescription(bytes, name, &readBack, why)) return false;
    if (!QDir().mkpath(text(folder))) return refuse(why, folder, {}, "the folder cannot be created");
    QSaveFile file(text(name));
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit()) return true;
    return refuse(why, name, {}, file.errorString().toStdString());
}

}  // namespace fieldcal::session
