#include "session/Files.h"
#include "session/Nv12.h"
#include "session/PngFile.h"
#include "session/RecordedSession.h"

#include <limits>

namespace fieldcal::session {
namespace {

constexpr std::uint16_t kLargestInfrared = 1023;
constexpr std::size_t kNv12Bytes = std::size_t{kPlatformWidth} * kPlatformHeight * 3 / 2;

bool isRaw(const std::string& name) {
    return QString::fromStdString(name).endsWith(QLatin1String(".nv12"));
}

/// The files of one frame, each with the format that it must have.
struct FrameFiles {
    PngExpectation infrared;
    PngExpectation third;
    std::optional<PngExpectation> depth;
    std::optional<PngExpectation> right;
    std::optional<PngExpectation> platform;
    bool platformIsRaw;
};

FrameFiles frameFiles(const std::string& folder, const SessionDescription& session, std::size_t index) {
    const auto expect = [&](const std::string& name, const char* key, PngKind kind, const Intrinsics& size) {
        return PngExpectation{folder + "/" + name, "frames[" + std::to_string(index) + "]." + key, kind, size.width,
                              size.height};
    };
    const FrameEntry& frame = session.frames[index];
    FrameFiles out{expect(frame.infrared, "infrared", PngKind::Grey16, session.infrared),
                   expect(frame.third, "third", PngKind::Colour8, session.third),
                   std::nullopt,
                   std::nullopt,
                   std::nullopt,
                   isRaw(frame.platform)};
    if (!frame.depth.empty()) out.depth = expect(frame.depth, "depth", PngKind::Grey16, session.depth);
    if (!frame.right.empty()) out.right = expect(frame.right, "right", PngKind::Grey16, session.infrared);
    if (!frame.platform.empty()) {
        const Intrinsics size{kPlatformWidth, kPlatformHeight};
        out.platform = expect(frame.platform, "platform", PngKind::Colour8, size);
    }
    return out;
}

bool openRaw(const PngExpectation& expected, QFile* file, std::string* why) {
    if (!openInput(expected.file, expected.key, std::numeric_limits<qint64>::max(), file, why)) return false;
    if (file->size() == static_cast<qint64>(kNv12Bytes)) return true;
    return refuse(why, expected.file, expected.key,
                  std::to_string(file->size()) + " bytes, not " + std::to_string(kNv12Bytes));
}

bool checkRaw(const PngExpectation& expected, std::string* why) {
    QFile file;
    return openRaw(expected, &file, why);
}

bool readRaw(const PngExpectation& expected, std::vector<std::uint8_t>* out, std::string* why) {
    QFile file;
    if (!openRaw(expected, &file, why)) return false;
    out->resize(kNv12Bytes);
    const qint64 got = file.read(reinterpret_cast<char*>(out->data()), static_cast<qint64>(kNv12Bytes));
    return got == static_cast<qint64>(kNv12Bytes) || refuse(why, expected.file, expected.key, "cannot be read");
}

bool readColourAsNv12(const PngExpectation& expected, std::vector<std::uint8_t>* out, std::string* why) {
    ImageFrame32 colour;
    if (!readColourPng(expected, &colour, why)) return false;
    out->resize(kNv12Bytes);
    nv12FromBgra(colour.bytes(), kPlatformWidth, kPlatformHeight, out->data());
    return true;
}

bool readInfrared(const PngExpectation& expected, ImageFrame16* out, std::string* why) {
    if (!readGreyPng(expected, out, why)) return false;
    const std::size_t count = out->byteCount() / sizeof(std::uint16_t);
    for (std::size_t i = 0; i < count; ++i) {
        if (out->pixels()[i] > kLargestInfrared) {
            return refuse(why, expected.file, expected.key,
                          "infrared value " + std::to_string(out->pixels()[i]) + " above 1023 at x " +
                              std::to_string(i % out->width()) + ", y " + std::to_string(i / out->width()));
        }
    }
    return true;
}

bool readPlatform(const FrameFiles& files, std::vector<std::uint8_t>* out, std::string* why) {
    return files.platformIsRaw ? readRaw(*files.platform, out, why) : readColourAsNv12(*files.platform, out, why);
}

bool checkFrame(const FrameFiles& files, std::string* why) {
    if (!checkPng(files.infrared, why) || !checkPng(files.third, why)) return false;
    if (files.depth && !checkPng(*files.depth, why)) return false;
    if (files.right && !checkPng(*files.right, why)) return false;
    if (!files.platform) return true;
    return files.platformIsRaw ? checkRaw(*files.platform, why) : checkPng(*files.platform, why);
}

bool writePlatform(const std::string& name, const std::vector<std::uint8_t>& nv12, std::string* why) {
    if (nv12.size() != kNv12Bytes) return refuse(why, name, {}, "the platform picture has the wrong size");
    if (isRaw(name)) return writeOutput(name, nv12.data(), nv12.size(), why, Durability::Later);
    ImageFrame32 colour;
    colour.resize(kPlatformWidth, kPlatformHeight);
    bgraFromNv12(nv12.data(), kPlatformWidth, kPlatformHeight, colour.bytes());
    return writeColourPng(name, colour, why);
}

}  // namespace

bool readImages(const std::string& folder, const SessionDescription& session, std::size_t frameIndex, FrameImages* out,
                std::string* why) {
    if (frameIndex >= session.frames.size()) return refuse(why, folder, {}, "no such frame");
    const FrameFiles files = frameFiles(folder, session, frameIndex);
    FrameImages read;
    if (!readInfrared(files.infrared, &read.infrared, why) || !readColourPng(files.third, &read.third, why)) {
        return false;
    }
    if (files.depth && !readGreyPng(*files.depth, &read.depth, why)) return false;
    if (files.right && !readInfrared(*files.right, &read.right, why)) return false;
    if (files.platform && !readPlatform(files, &read.platform, why)) return false;
    *out = std::move(read);
    return true;
}

bool checkImageFiles(const std::string& folder, const SessionDescription& session, std::string* why) {
    for (std::size_t i = 0; i < session.frames.size(); ++i) {
        if (!checkFrame(frameFiles(folder, session, i), why)) return false;
    }
    return true;
}

bool verify(const std::string& folder, std::string* why) {
    SessionDescription session;
    if (!readDescription(folder, &session, why)) return false;
    FrameImages images;
    for (std::size_t i = 0; i < session.frames.size(); ++i) {
        if (!readImages(folder, session, i, &images, why)) return false;
    }
    return true;
}

bool writeImages(const std::string& folder, const FrameEntry& entry, const FrameImages& images, std::string* why) {
    if (!makeFolder(folder, why)) return false;
    const std::string prefix = folder + "/";
    if (!writeGreyPng(prefix + entry.infrared, images.infrared, why)) return false;
    if (!writeColourPng(prefix + entry.third, images.third, why)) return false;
    if (!entry.depth.empty() && !writeGreyPng(prefix + entry.depth, images.depth, why)) return false;
    if (!entry.right.empty() && !writeGreyPng(prefix + entry.right, images.right, why)) return false;
    return entry.platform.empty() || writePlatform(prefix + entry.platform, images.platform, why);
}

bool syncImages(const std::string& folder, const SessionDescription& session, std::string* why) {
    std::vector<std::string> names;
    for (const FrameEntry& frame : session.frames) {
        for (const std::string& name : {frame.infrared, frame.third, frame.depth, frame.right, frame.platform}) {
            if (!name.empty()) names.push_back(name);
        }
    }
    return syncFiles(folder, names, why);
}

}  // namespace fieldcal::session
