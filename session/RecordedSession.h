#pragma once

#include "camera/ImageFrame.h"
#include "camera/Rotation.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// Recorded sessions. Folder names are UTF-8. A function that fails returns false and sets `why` to one line of the
/// form "file: key: reason" (without the key where the file as a whole is meant). Outputs are valid after success only.
/// Any thread.
namespace fieldcal::session {

/// Intrinsics as stored in the session file: 64 bit, in pixels. See docs/conventions.md for the principal point.
struct Intrinsics {
    int width = 0;
    int height = 0;
    double fx = 0, fy = 0, cx = 0, cy = 0;
};

struct RawIntrinsics : Intrinsics {
    double k1 = 0, k2 = 0, p1 = 0, p2 = 0, k3 = 0;
};

using fieldcal::Matrix3;
using Vector3 = std::array<double, 3>;  ///< millimetres

struct ModuleInfo {
    std::uint32_t serial = 0;
    std::string firmware;
    std::string software;
    bool calibrationValid = true;
};

struct ThirdCamera : Intrinsics {
    Matrix3 rotation{};     ///< depth to third, as in the module's flash
    Vector3 translation{};  ///< millimetres
};

/// The rear camera's images, raw and rectified, are always 1280 x 720.
inline constexpr int kPlatformWidth = 1280;
inline constexpr int kPlatformHeight = 720;

struct PlatformCamera {
    std::string name;
    RawIntrinsics raw;
    Intrinsics rectified;
    Matrix3 rectification{};  ///< X_rectified = rectification · X_raw
    Matrix3 rotation{};       ///< depth to rectified platform camera
    Vector3 translation{};    ///< millimetres
};

/// File names relative to the session's folder. `depth`, `platform` and `right` are empty when the frame has none.
struct FrameEntry {
    std::string infrared;
    std::string third;
    std::string depth;
    std::string platform;
    int repeat = 1;                           ///< number of grabs that deliver this frame, 1 to 1,000,000
    std::string right = {};                   ///< image of the second infrared imager, of the size of `infrared`
    std::optional<std::int64_t> timeNs = {};  ///< time of the infrared image in nanoseconds from an arbitrary epoch
};

/// The largest number of frames in one recording.
inline constexpr std::size_t kMaxFrames = 100000;

/// The contents of session.json, version 1.
struct SessionDescription {
    ModuleInfo module;
    Intrinsics infrared;
    Intrinsics depth;
    ThirdCamera third;
    std::optional<PlatformCamera> platform;
    std::vector<FrameEntry> frames;
    std::optional<Matrix3> truthThird;     ///< true rotation, used for evaluation only
    std::optional<Matrix3> truthPlatform;  ///< true rotation, used for evaluation only

    /// Returns the number of grabs from the first frame to the last: the sum of the repeats, at most 1,000,000,000
    /// after reading.
    int grabCount() const;
};

/// The decoded images of one frame.
struct FrameImages {
    ImageFrame16 infrared;
    ImageFrame16 depth;                  ///< empty when the frame has none
    ImageFrame32 third;                  ///< image as the module delivers it, *BGRA* in storage order, alpha 255
    std::vector<std::uint8_t> platform;  ///< NV12, 1280 x 720, unrectified; empty when the frame has none
    ImageFrame16 right;                  ///< image of the second infrared imager; empty when the frame has none
};

/// Reads and checks session.json, but not the images.
bool readDescription(const std::string& folder, SessionDescription* out, std::string* why);

/// Reads and checks the images of one frame.
bool readImages(const std::string& folder, const SessionDescription& session, std::size_t frameIndex, FrameImages* out,
                std::string* why);

/// Checks without decoding that every image file exists, is complete and has the right size and kind. This is fast
/// enough to be done before playback starts. Pixel values (infrared above 1023, transparent pixels) are checked only by
/// `readImages`.
bool checkImageFiles(const std::string& folder, const SessionDescription& session, std::string* why);

/// Reads and checks everything: the description and every image.
bool verify(const std::string& folder, std::string* why);

/// Writes one frame's images under the names in `entry`, which must fit the images. The format is PNG, or raw bytes for
/// a platform name ending in .nv12; the PNG of a platform image stores RGB, so only .nv12 keeps it bit-exact. The
/// folder is created. `syncImages` has to follow.
bool writeImages(const std::string& folder, const FrameEntry& entry, const FrameImages& images, std::string* why);

/// Syncs every image named in the description to the disk, which `writeImages` does not do. Call it before
/// `writeDescription`, so that a description is never on the disk without its images.
bool syncImages(const std::string& folder, const SessionDescription& session, std::string* why);

/// Writes session.json and creates the folder. Numbers keep their full precision. A description that `readDescription`
/// would refuse is not written; the reason is the same.
bool writeDescription(const std::string& folder, const SessionDescription& session, std::string* why);

}  // namespace fieldcal::session
