#pragma once

#include "camera/ImageFrame.h"

#include <string>

namespace fieldcal::session {

enum class PngKind {
    Grey16,   ///< 16-bit grey
    Colour8,  ///< 8-bit RGB; RGBA only if every pixel is opaque
};

/// The format that an image file must have. `file` and `key` are its name and the key that names it; refusals quote
/// them.
struct PngExpectation {
    std::string file;
    std::string key;
    PngKind kind;
    int width;
    int height;
};

/// Checks the file's structure (every chunk complete and with the right checksum), kind and size without decoding it.
/// All functions return false and `why` on failure. Any thread.
bool checkPng(const PngExpectation& expected, std::string* why);

/// Checks and decodes the file. Pixel values are returned exactly as stored.
bool readGreyPng(const PngExpectation& expected, ImageFrame16* out, std::string* why);
/// BGRA in storage order, alpha 255.
bool readColourPng(const PngExpectation& expected, ImageFrame32* out, std::string* why);

/// Writes the file without syncing it to the disk.
bool writeGreyPng(const std::string& file, const ImageFrame16& image, std::string* why);
/// `image`: BGRA in storage order; alpha is not stored.
bool writeColourPng(const std::string& file, const ImageFrame32& image, std::string* why);

}  // namespace fieldcal::session
