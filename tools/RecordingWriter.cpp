#include "tools/RecordingWriter.h"

#include "files/SafeFile.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <utility>

namespace fieldcal {
namespace {

constexpr std::uint16_t kLargestInfrared = 1023;

bool same(const ImageFrame& a, const ImageFrame& b) {
    return a.width() == b.width() && a.height() == b.height() &&
           (a.empty() || std::memcmp(a.bytes(), b.bytes(), a.byteCount()) == 0);
}

std::string sizeText(long long width, long long height) {
    return std::to_string(width) + " x " + std::to_string(height);
}

bool fits(const ImageFrame& picture, const session::Intrinsics& camera, const char* name, std::string* why) {
    if (picture.width() == static_cast<std::uint32_t>(camera.width) &&
        picture.height() == static_cast<std::uint32_t>(camera.height)) {
        return true;
    }
    *why = std::string("The ") + name + " picture is " + sizeText(picture.width(), picture.height()) +
           ", but the camera's calibration is for " + sizeText(camera.width, camera.height) + ".";
    return false;
}

bool hasTenBits(const ImageFrame16& picture, const char* name, std::string* why) {
    const std::uint16_t* end = picture.pixels() + picture.byteCount() / 2;
    const std::uint16_t* largest = std::max_element(picture.pixels(), end);
    if (largest == end || *largest <= kLargestInfrared) return true;
    *why = std::string("The ") + name + " picture has the value " + std::to_string(*largest) + ", above " +
           std::to_string(kLargestInfrared) + ".";
    return false;
}

session::FrameEntry entryFor(std::size_t index, const session::FramePictures& pictures) {
    char prefix[24];
    std::snprintf(prefix, sizeof prefix, "%03zu_", index);
    session::FrameEntry entry;
    entry.infrared = std::string(prefix) + "infrared.png";
    entry.third = std::string(prefix) + "third.png";
    if (!pictures.right.empty()) entry.right = std::string(prefix) + "right.png";
    if (!pictures.depth.empty()) entry.depth = std::string(prefix) + "depth.png";
    if (!pictures.platform.empty()) entry.platform = std::string(prefix) + "platform.nv12";
    return entry;
}

}  // namespace

RecordingWriter::RecordingWriter(std::string folder, session::SessionDescription description)
    : folder_(std::move(folder)), description_(std::move(description)) {
    description_.frames.clear();
}

RecordingWriter::~RecordingWriter() {
    if (finished_) return;
    const QString folder = QString::fromStdString(folder_) + '/';
    for (const session::FrameEntry& entry : description_.frames) {
        for (const std::string& name : {entry.infrared, entry.right, entry.third, entry.depth, entry.platform}) {
            if (!name.empty()) QFile::remove(folder + QString::fromStdString(name));
        }
    }
    if (describing_) QFile::remove(folder + "session.json");
    if (madeFolder_) QDir().rmdir(folder);
}

bool RecordingWriter::start(std::string* why) {
    const QDir folder(QString::fromStdString(folder_));
    if (folder.exists() && !folder.isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot)) {
        *why = folder_ + ": the folder is not empty, and nothing is overwritten";
        return false;
    }
    madeFolder_ = !folder.exists();
    return makeFolders(folder_, why);
}

bool RecordingWriter::add(session::FramePictures pictures, std::string* why, const Timing& timing) {
    if (!canBePlayed(pictures, why)) return false;
    if (repeatsLast(pictures)) {
        description_.frames.back().repeat += timing.repeat;
        return true;
    }
    if (frameCount() == session::kMostFrames) {
        *why = folder_ + ": more than " + std::to_string(session::kMostFrames) + " frames cannot be played";
        return false;
    }
    description_.frames.push_back(entryFor(frameCount(), pictures));
    description_.frames.back().repeat = timing.repeat;
    description_.frames.back().timeNs = timing.timeNs;
    if (!session::writePictures(folder_, description_.frames.back(), pictures, why)) return false;
    last_ = std::move(pictures);
    return true;
}

/// Returns whether a frame set equals the last one. While a frame repeats, the rear camera may or may not deliver its
/// image again; an unchanged image makes no difference.
bool RecordingWriter::repeatsLast(const session::FramePictures& pictures) const {
    return !description_.frames.empty() && same(pictures.infrared, last_.infrared) &&
           same(pictures.right, last_.right) && same(pictures.third, last_.third) &&
           same(pictures.depth, last_.depth) && (pictures.platform.empty() || pictures.platform == last_.platform);
}

bool RecordingWriter::canBePlayed(const session::FramePictures& pictures, std::string* why) const {
    if (!fits(pictures.infrared, description_.infrared, "infrared", why) ||
        !fits(pictures.third, description_.third, "colour", why) ||
        (!pictures.right.empty() && !fits(pictures.right, description_.infrared, "right infrared", why)) ||
        (!pictures.depth.empty() && !fits(pictures.depth, description_.depth, "depth", why))) {
        return false;
    }
    return hasTenBits(pictures.infrared, "infrared", why) && hasTenBits(pictures.right, "right infrared", why);
}

bool RecordingWriter::finish(std::string* why) {
    if (!session::syncPictures(folder_, description_, why)) return false;
    describing_ = true;
    finished_ = session::writeDescription(folder_, description_, why);
    return finished_;
}

}  // namespace fieldcal
