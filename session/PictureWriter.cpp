#include "session/Nv12.h"
#include "session/PngFile.h"
#include "session/RecordedSession.h"
#include "session/Refusal.h"

#include <QDir>
#include <QSaveFile>

namespace fieldcal::session {
namespace {

constexpr std::size_t kNv12Bytes = std::size_t{kPlatformWidth} * kPlatformHeight * 3 / 2;

bool writeRaw(const std::string& name, const std::vector<std::uint8_t>& bytes, std::string* why) {
    QSaveFile file(QString::fromStdString(name));
    const auto size = static_cast<qint64>(bytes.size());
    if (file.open(QIODevice::WriteOnly) && file.write(reinterpret_cast<const char*>(bytes.data()), size) == size &&
        file.commit()) {
        return true;
    }
    return refuse(why, name, {}, file.errorString().toStdString());
}

bool writePlatform(const std::string& name, const std::vector<std::uint8_t>& nv12, std::string* why) {
    if (nv12.size() != kNv12Bytes) return refuse(why, name, {}, "the platform picture has the wrong size");
    if (QString::fromStdString(name).endsWith(QLatin1String(".nv12"))) return writeRaw(name, nv12, why);
    ImageFrame32 colour;
    colour.resize(kPlatformWidth, kPlatformHeight);
    bgraFromNv12(nv12.data(), kPlatformWidth, kPlatformHeight, colour.bytes());
    return writeColourPng(name, colour, why);
}

}  // namespace

bool writePictures(const std::string& folder, const FrameEntry& entry, const FramePictures& pictures,
                   std::string* why) {
    if (!QDir().mkpath(QString::fromStdString(folder))) return refuse(why, folder, {}, "the folder cannot be created");
    const std::string prefix = folder + "/";
    if (!writeGreyPng(prefix + entry.infrared, pictures.infrared, why)) return false;
    if (!writeColourPng(prefix + entry.third, pictures.third, why)) return false;
    if (!entry.depth.empty() && !writeGreyPng(prefix + entry.depth, pictures.depth, why)) return false;
    if (!entry.right.empty() && !writeGreyPng(prefix + entry.right, pictures.right, why)) return false;
    return entry.platform.empty() || writePlatform(prefix + entry.platform, pictures.platform, why);
}

}  // namespace fieldcal::session
