#pragma once

#include "camera/ImageFrame.h"

#include <string>

namespace fieldcal::session {

enum class PngKind {
    Grey16,   ///< 16-bit grey
    Colour8,  ///< 8-bit RGB; RGBA only if every pixel is opaque
};

/// What a picture file must be. `file` and `key` are its name and the key that names it, for refusals.
struct PngExpectation {
    std::string file;
    std::string key;
    PngKind kind;
    int width;
    int height;
};

/// Checks the file's structure (every chunk whole with the right checksum), kind and size without decoding it.
bool checkPng(const PngExpectation& expected, std::string* why);

/// Checks and decodes; pixel values are delivered exactly as stored.
bool readGreyPng(const PngExpectation& expected, ImageFrame16* out, std::string* why);
/// BGRA in storage order, alpha 255.
bool readColourPng(const PngExpectation& expected, ImageFrame32* out, std::string* why);

bool writeGreyPng(const std::string& file, const ImageFrame16& picture, std::string* why);
/// `picture`: BGRA in storage order.
bool writeColourPng(const std::string& file, const ImageFrame32& picture, std::string* why);

}  // namespace fieldcal::session
