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

bool fits(const ImageFrame& image, const session::Intrinsics& camera, const char* name, std::string* why) {
    if (image.width() == static_cast<std::uint32_t>(camera.width) &&
        image.height() == static_cast<std::uint32_t>(camera.height)) {
        return true;
    }
    *why = std::string("The ") + name + " picture is " + sizeText(image.width(), image.height()) +
           ", but the camera's calibration is for " + sizeText(camera.width, camera.height) + ".";
    return false;
}

bool hasTenBits(const ImageFrame16& image, const char* name, std::string* why) {
    const std::uint16_t* end = image.pixels() + image.byteCount() / 2;
    const std::uint16_t* largest = std::max_element(image.pixels(), end);
    if (largest == end || *largest <= kLargestInfrared) return true;
    *why = std::string("The ") + name + " picture has the value " + std::to_string(*largest) + ", above " +
           std::to_string(kLargestInfrared) + ".";
    return false;
}

session::FrameEntry entryFor(std::size_t index, const session::FrameImages& images) {
    char prefix[24];
    std::snprintf(prefix, sizeof prefix, "%03zu_", index);
    session::FrameEntry entry;
    entry.infrared = std::string(prefix) + "infrared.png";
    entry.third = std::string(prefix) + "third.png";
    if (!images.right.empty()) entry.right = std::string(prefix) + "right.png";
    if (!images.depth.empty()) entry.depth = std::string(prefix) + "depth.png";
    if (!images.platform.empty()) entry.platform = std::string(prefix) + "platform.nv12";
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

bool RecordingWriter::add(session::FrameImages images, std::string* why, const Timing& timing) {
    if (!canBePlayed(images, why)) return false;
    if (repeatsLast(images)) {
        description_.frames.back().repeat += timing.repeat;
        return true;
    }
    if (frameCount() == session::kMaxFrames) {
        *why = folder_ + ": more than " + std::to_string(session::kMaxFrames) + " frames cannot be played";
        return false;
    }
    description_.frames.push_back(entryFor(frameCount(), images));
    description_.frames.back().repeat = timing.repeat;
    description_.frames.back().timeNs = timing.timeNs;
    if (!session::writeImages(folder_, description_.frames.back(), images, why)) return false;
    last_ = std::move(images);
    return true;
}

/// Returns whether a frame set equals the last one. While a frame repeats, the rear camera may or may not deliver its
/// image again; an unchanged image makes no difference.
bool RecordingWriter::repeatsLast(const session::FrameImages& images) const {
    return !description_.frames.empty() && same(images.infrared, last_.infrared) && same(images.right, last_.right) &&
           same(images.third, last_.third) && same(images.depth, last_.depth) &&
           (images.platform.empty() || images.platform == last_.platform);
}

bool RecordingWriter::canBePlayed(const session::FrameImages& images, std::string* why) const {
    if (!fits(images.infrared, description_.infrared, "infrared", why) ||
        !fits(images.third, description_.third, "colour", why) ||
        (!images.right.empty() && !fits(images.right, description_.infrared, "right infrared", why)) ||
        (!images.depth.empty() && !fits(images.depth, description_.depth, "depth", why))) {
        return false;
    }
    return hasTenBits(images.infrared, "infrared", why) && hasTenBits(images.right, "right infrared", why);
}

bool RecordingWriter::finish(std::string* why) {
    if (!session::syncImages(folder_, description_, why)) return false;
    describing_ = true;
    finished_ = session::writeDescription(folder_, description_, why);
    return finished_;
}

}  // namespace fieldcal
