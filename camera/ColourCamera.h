#pragma once

#include <array>
#include <cstddef>

namespace fieldcal {

/// The colour cameras whose rotation against the depth camera is calibrated.
enum class ColourCamera : std::size_t {
    Third,    ///< inside the module, beside the two infrared imagers
    Platform  ///< the tablet's own rear camera
};

constexpr std::array<ColourCamera, 2> kColourCameras{ColourCamera::Third, ColourCamera::Platform};

/// Returns the camera's name in files and on the command line.
constexpr const char* nameOf(ColourCamera camera) {
    return camera == ColourCamera::Platform ? "platform" : "third";
}

/// One value for each colour camera.
template <typename T>
struct PerColourCamera {
    std::array<T, 2> values{};

    T& operator[](ColourCamera camera) { return values[static_cast<std::size_t>(camera)]; }
    const T& operator[](ColourCamera camera) const { return values[static_cast<std::size_t>(camera)]; }
};

}  // namespace fieldcal
