#include "devices/PlatformCameraSetup.h"
#include "session/Files.h"
#include "tools/CameraInfoFile.h"
#include "tools/CommandLine.h"
#include "tools/Console.h"
#include "tools/ExportedCameras.h"
#include "tools/RecordingWriter.h"

#include <QDir>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <map>

namespace fieldcal {
namespace {

constexpr double kNsPerMs = 1e6;

using TimedImages = std::map<std::int64_t, std::string>;  ///< time in nanoseconds, file name relative to the source

/// Finds the images `NAME/<nanoseconds>.png`. A missing folder counts as one without images.
bool findImages(const std::string& source, const std::string& name, TimedImages* out, std::string* why) {
    const QDir folder(QString::fromStdString(source + '/' + name));
    for (const QString& file : folder.entryList({"*.png"}, QDir::Files)) {
        bool isTime = false;
        const qint64 timeNs = file.chopped(4).toLongLong(&isTime);
        const std::string path = name + '/' + file.toStdString();
        if (!isTime) {
            const std::string whole = folder.filePath(file).toStdString();
            return session::refuse(why, whole, {}, "the name is not a time in nanoseconds");
        }
        out->emplace(timeNs, path);
    }
    return true;
}

/// Returns the name of the image nearest in time; empty when none is near enough.
std::string nearest(const TimedImages& images, std::int64_t timeNs, std::int64_t withinNs) {
    const auto distance = [timeNs](const auto& image) { return std::llabs(image->first - timeNs); };
    auto best = images.lower_bound(timeNs);
    if (best != images.begin() && (best == images.end() || distance(std::prev(best)) < distance(best))) --best;
    return best != images.end() && distance(best) <= withinNs ? best->second : std::string();
}

class Importer {
public:
    explicit Importer(const ImportOptions& options) : options_(options) {}

    bool run(std::string* why) {
        return describeModule(why) && describePlatform(why) && matchImages(why) && write(why);
    }
    std::size_t imageCount() const { return infraredCount_; }
    const std::vector<session::FrameEntry>& frames() const { return session_.frames; }

private:
    std::string path(const std::string& name) const { return options_.folder + '/' + name; }
    bool exists(const std::string& name) const { return QFile::exists(QString::fromStdString(path(name))); }

    /// Reads the intrinsics of a camera whose images are rectified already.
    bool readRectified(const std::string& name, session::Intrinsics* out, std::string* why) const {
        CameraInfo info;
        if (!readCameraInfo(path(name + ".yaml"), &info, why)) return false;
        const session::RawIntrinsics& raw = info.raw;
        if (std::abs(raw.k1) + std::abs(raw.k2) + std::abs(raw.p1) + std::abs(raw.p2) + std::abs(raw.k3) > 0) {
            *why = path(name + ".yaml") + ": distortion_coefficients: images of this camera have to be rectified";
            return false;
        }
        *out = info.rectified;
        return true;
    }

    bool describeModule(std::string* why) {
        session_.module = {options_.serial, "imported", "imported", true};
        ColourTransform transform;
        if (!readRectified(options_.infrared, &session_.infrared, why) ||
            !readRectified(options_.third, &session_.third, why) ||
            !readTransform(path(options_.third + "_tf.yaml"), &transform, why)) {
            return false;
        }
        session_.depth = session_.infrared;
        if (exists(options_.depth + ".yaml") && !readRectified(options_.depth, &session_.depth, why)) return false;
        static_cast<session::Intrinsics&>(session_.third) = inScalingPixels(session_.third, session_.infrared);
        session_.third.rotation = transform.rotation;
        session_.third.translation = transform.translationMm;
        return true;
    }

    bool describePlatform(std::string* why) {
        if (!exists(options_.platform + ".yaml")) return true;
        CameraInfo info;
        ColourTransform transform;
        if (!readCameraInfo(path(options_.platform + ".yaml"), &info, why) ||
            !readTransform(path(options_.platform + "_tf.yaml"), &transform, why)) {
            return false;
        }
        session::PlatformCamera camera;
        camera.name = kPlatformCameraName;
        camera.rectified = inScalingPixels(info.rectified, session_.infrared);
        camera.raw = movedPrincipalPoint({info.raw, info.rectification}, info.rectified, camera.rectified).intrinsics;
        camera.rectification = info.rectification;
        camera.rotation = transform.rotation;
        camera.translation = transform.translationMm;
        session_.platform = camera;
        return true;
    }

    bool matchImages(std::string* why) {
        TimedImages infrared, third, right, depth, platform;
        if (!findImages(options_.folder, options_.infrared, &infrared, why) ||
            !findImages(options_.folder, options_.third, &third, why) ||
            !findImages(options_.folder, options_.right, &right, why) ||
            !findImages(options_.folder, options_.depth, &depth, why) ||
            (session_.platform && !findImages(options_.folder, options_.platform, &platform, why))) {
            return false;
        }
        infraredCount_ = infrared.size();
        const auto withinNs = static_cast<std::int64_t>(options_.withinMs * kNsPerMs);
        for (const auto& [timeNs, name] : infrared) {
            session::FrameEntry entry;
            entry.infrared = name;
            entry.third = nearest(third, timeNs, withinNs);
            entry.right = nearest(right, timeNs, withinNs);
            entry.depth = nearest(depth, timeNs, withinNs);
            entry.platform = nearest(platform, timeNs, withinNs);
            entry.repeat = options_.repeat;
            entry.timeNs = timeNs;
            if (!entry.third.empty()) session_.frames.push_back(entry);
        }
        if (!session_.frames.empty()) return true;
        *why = path(options_.infrared) + ": none of " + std::to_string(infrared.size()) + " images has one in " +
               path(options_.third) + " within " + std::to_string(options_.withinMs) + " ms";
        return false;
    }

    bool write(std::string* why) {
        RecordingWriter recording(options_.recording, session_);
        if (!recording.start(why)) return false;
        for (std::size_t i = 0; i < session_.frames.size(); ++i) {
            session::FrameImages images;
            const session::FrameEntry& entry = session_.frames[i];
            if (!session::readImages(options_.folder, session_, i, &images, why) ||
                !recording.add(std::move(images), why, {entry.repeat, entry.timeNs})) {
                return false;
            }
        }
        return recording.finish(why);
    }

    const ImportOptions& options_;
    session::SessionDescription session_;
    std::size_t infraredCount_ = 0;
};

}  // namespace

int run(const ImportOptions& options) {
    silenceLogs();
    Importer importer(options);
    std::string why;
    if (!importer.run(&why)) return fail(QString::fromStdString(why));
    printLine(QString("imported %1 of %2 infrared images with their colour images into %3")
                  .arg(importer.frames().size())
                  .arg(importer.imageCount())
                  .arg(QString::fromStdString(options.recording)));
    return kSolved;
}

}  // namespace fieldcal
