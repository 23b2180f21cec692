#pragma once

#include <cstddef>
#include <cstdint>

/// A camera library that does nearly everything in another way than `kxapi/KXAPI.h`, as the example of one that needs
/// an adapter. Plain functions about a handle; 0 is success and every other result is negative. Lengths are metres,
/// times microseconds, all numbers of calibrations 64 bits. Rotations stand column by column. Rows of pictures are
/// padded to whole 64 bytes, and colour has red first.

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
/// Others are `DC_OTHERS` minus a number.
constexpr int DC_OTHERS = -1000;

enum DcStream : std::int32_t { DC_COLOUR, DC_DEPTH, DC_LEFT, DC_RIGHT };

struct DcPicture {
    const void* pixels;  ///< null: none
    std::int32_t width, height, pitchBytes;
};

struct DcPinhole {
    double focal[2], principal[2];  ///< pixels; from the upper left corner of the first one
    double size[2];
};

struct DcLens {
    DcPinhole pinhole;
    double radial[3], tangential[2];
};

/// X_colour = rotation · X_depth + metres; column by column.
struct DcPose {
    double rotation[9];
    double metres[3];
};

/// What runs, all at once. The colour camera comes first.
struct DcPlan {
    bool colour, depth, left, right, synchronised;
    std::int32_t colourSize[2], depthSize[2];
    std::int32_t colourRate, depthRate;
};

/// The parameters in the flash: a head, the second half of what the cameras need, bytes of the maker's own, and the
/// first half. The maker's own bytes must come back as they were.
constexpr std::size_t DC_BLOCK_SIZE = 4096;
constexpr std::size_t DC_BLOCK_SECOND_HALF = 16;
constexpr std::size_t DC_BLOCK_FIRST_HALF = 3072;
constexpr std::size_t DC_BLOCK_HALF = 1024;

DC_EXPORT void* dcNew();
DC_EXPORT void dcFree(void* camera);
/// Opens and initialises in one.
DC_EXPORT int dcConnect(void* camera);
DC_EXPORT int dcLastResult(void* camera);
DC_EXPORT const char* dcResultText(int result);
/// "firmware" or "software".
DC_EXPORT const char* dcText(void* camera, const char* what);
DC_EXPORT std::int64_t dcSerial(void* camera);
/// 1 for a part that is there, else 0. Parts: "hardware", "colour", "emitter", "rear", "flash".
DC_EXPORT int dcHasPart(void* camera, const char* part);
DC_EXPORT int dcIsCalibrated(void* camera);

/// "auto-exposure", "gain", "exposure-us", "emitter", "option-16".
DC_EXPORT int dcSet(void* camera, const char* what, double value);
DC_EXPORT int dcRun(void* camera, const DcPlan* plan);
DC_EXPORT int dcPause(void* camera);
DC_EXPORT int dcContinue(void* camera);
DC_EXPORT int dcNext(void* camera, int wait);
/// Without pixels before there are any; sizes are known once the camera is connected.
DC_EXPORT int dcSize(void* camera, DcStream stream, std::int32_t* width, std::int32_t* height);
DC_EXPORT DcPicture dcPicture(void* camera, DcStream stream);

/// Of colour, depth or left; both infrared ones are alike.
DC_EXPORT int dcPinhole(void* camera, DcStream stream, DcPinhole* out);
DC_EXPORT int dcColourPose(void* camera, DcPose* out);
DC_EXPORT int dcRearLens(void* camera, DcLens* raw);
DC_EXPORT int dcRearPinhole(void* camera, DcPinhole* rectified);
/// Columns; null when unknown.
DC_EXPORT const double* dcRearRectification(void* camera);
DC_EXPORT int dcRearPose(void* camera, DcPose* out);
DC_EXPORT void dcRearTable(const DcLens* raw, const double* rectificationColumns, const DcPinhole* rectified,
                           std::uint32_t* table);
DC_EXPORT void dcRectify(const std::uint32_t* table, const void* source, std::int32_t pitchPixels, std::int32_t width,
                         std::int32_t height, void* destination);

DC_EXPORT int dcReadFlash(void* camera, std::uint8_t* block);
DC_EXPORT int dcWriteFlash(void* camera, const std::uint8_t* block, int forGood);
DC_EXPORT int dcMakeValid(void* camera);
/// Another rotation of the colour (0) or the rear camera (1) in a block. `columns`: from raw depth to raw colour.
DC_EXPORT void dcTurn(const std::uint8_t* in, int camera, const double* columns, std::uint8_t* out);
/// The simulated rear camera beside the library.
DC_EXPORT void* dcRearCamera();
