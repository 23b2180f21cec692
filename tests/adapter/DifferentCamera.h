#pragma once

#include <cstddef>
#include <cstdint>

/// An example of a camera library that needs an adapter: it differs from `kxapi/KXAPI.h` in nearly every respect. Its
/// functions are plain functions with a handle; 0 means success, every other result is negative. Lengths are in metres,
/// times in microseconds, and all calibration values have 64 bits. Rotations are stored column by column. Rows of
/// images are padded to a multiple of 64 bytes, and colour has red first.

#if defined(_WIN32)
#define DC_EXPORT extern "C" __declspec(dllexport)
#else
#define DC_EXPORT extern "C" __attribute__((visibility("default")))
#endif

constexpr int DC_OK = 0;
constexpr int DC_NO_CAMERA = -2;
constexpr int DC_HARDWARE = -3;
constexpr int DC_IN_USE = -16;
constexpr int DC_UNCALIBRATED = -40;
constexpr int DC_OLD_FIRMWARE = -71;
constexpr int DC_REFUSED = -100;
/// Other results are `DC_OTHERS` minus a number.
constexpr int DC_OTHERS = -1000;

enum DcStream : std::int32_t { DC_COLOUR, DC_DEPTH, DC_LEFT, DC_RIGHT };

struct DcPicture {
    const void* pixels;  ///< null: no image
    std::int32_t width, height, pitchBytes;
};

struct DcPinhole {
    double focal[2], principal[2];  ///< in pixels; `principal` is counted from the upper left corner of the first pixel
    double size[2];
};

struct DcLens {
    DcPinhole pinhole;
    double radial[3], tangential[2];
};

/// X_colour = rotation · X_depth + metres; `rotation` is stored column by column.
struct DcPose {
    double rotation[9];
    double metres[3];
};

/// The streams to run. They are all started at once, the colour camera first.
struct DcPlan {
    bool colour, depth, left, right, synchronised;
    std::int32_t colourSize[2], depthSize[2];
    std::int32_t colourRate, depthRate;
};

/// The parameters in the flash: a header, the second half of the cameras' parameters, bytes reserved for the
/// manufacturer, and the first half. The reserved bytes must be written back unchanged.
constexpr std::size_t DC_BLOCK_SIZE = 4096;
constexpr std::size_t DC_BLOCK_SECOND_HALF = 16;
constexpr std::size_t DC_BLOCK_FIRST_HALF = 3072;
constexpr std::size_t DC_BLOCK_HALF = 1024;

DC_EXPORT void* dcNew();
DC_EXPORT void dcFree(void* camera);
/// Opens and initialises the camera in one call.
DC_EXPORT int dcConnect(void* camera);
DC_EXPORT int dcLastResult(void* camera);
DC_EXPORT const char* dcResultText(int result);
/// `what`: "firmware" or "software".
DC_EXPORT const char* dcText(void* camera, const char* what);
DC_EXPORT std::int64_t dcSerial(void* camera);
/// Returns 1 when the camera has the part, otherwise 0. Parts: "hardware", "colour", "emitter", "rear", "flash".
DC_EXPORT int dcHasPart(void* camera, const char* part);
DC_EXPORT int dcIsCalibrated(void* camera);

/// `what`: "auto-exposure", "gain", "exposure-us", "emitter", "option-16".
DC_EXPORT int dcSet(void* camera, const char* what, double value);
DC_EXPORT int dcRun(void* camera, const DcPlan* plan);
DC_EXPORT int dcPause(void* camera);
DC_EXPORT int dcContinue(void* camera);
DC_EXPORT int dcNext(void* camera, int wait);
/// Sizes are known once the camera is connected. `dcPicture` has no pixels before the first frame set.
DC_EXPORT int dcSize(void* camera, DcStream stream, std::int32_t* width, std::int32_t* height);
DC_EXPORT DcPicture dcPicture(void* camera, DcStream stream);

/// `stream`: colour, depth or left; both infrared cameras have the same values.
DC_EXPORT int dcPinhole(void* camera, DcStream stream, DcPinhole* out);
DC_EXPORT int dcColourPose(void* camera, DcPose* out);
DC_EXPORT int dcRearLens(void* camera, DcLens* raw);
DC_EXPORT int dcRearPinhole(void* camera, DcPinhole* rectified);
/// Nine numbers, column by column; null when unknown.
DC_EXPORT const double* dcRearRectification(void* camera);
DC_EXPORT int dcRearPose(void* camera, DcPose* out);
DC_EXPORT void dcRearTable(const DcLens* raw, const double* rectificationColumns, const DcPinhole* rectified,
                           std::uint32_t* table);
DC_EXPORT void dcRectify(const std::uint32_t* table, const void* source, std::int32_t pitchPixels, std::int32_t width,
                         std::int32_t height, void* destination);

DC_EXPORT int dcReadFlash(void* camera, std::uint8_t* block);
DC_EXPORT int dcWriteFlash(void* camera, const std::uint8_t* block, int forGood);
DC_EXPORT int dcMakeValid(void* camera);
/// Replaces the rotation of the colour camera (0) or the rear camera (1) in a block. `columns`: from raw depth to raw
/// colour, column by column.
DC_EXPORT void dcTurn(const std::uint8_t* in, int camera, const double* columns, std::uint8_t* out);
/// Returns the simulated rear camera, which is not part of the modelled library.
DC_EXPORT void* dcRearCamera();
