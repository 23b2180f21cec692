#include "session/PngFile.h"

#include "session/Files.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QImageWriter>

#include <array>
#include <cstring>

namespace fieldcal::session {
namespace {

constexpr qint64 kLargestFile = 48 << 20;      ///< the largest image without compression
constexpr int kGrey = 0, kRgb = 2, kRgba = 6;  ///< colour types
constexpr std::uint8_t kSignature[8] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1a, '\n'};
constexpr std::size_t kFrame = 12;  ///< length, type and checksum around a chunk's data
constexpr std::size_t kHeaderData = 13;

/// The fields of a PNG header that are used.
struct Header {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    int bitDepth = 0;
    int colourType = 0;
};

std::uint32_t bigEndian(const std::uint8_t* p) {
    return std::uint32_t{p[0]} << 24 | std::uint32_t{p[1]} << 16 | std::uint32_t{p[2]} << 8 | p[3];
}

std::array<std::uint32_t, 256> checksumTable() {
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t i = 0; i < 256; ++i) {
        std::uint32_t value = i;
        for (int bit = 0; bit < 8; ++bit)
            value = (value >> 1) ^ ((value & 1) != 0 ? 0xEDB88320U : 0);
        table[i] = value;
    }
    return table;
}

std::uint32_t checksum(const std::uint8_t* bytes, std::size_t size) {
    static const std::array<std::uint32_t, 256> table = checksumTable();
    std::uint32_t value = 0xFFFFFFFFU;
    for (std::size_t i = 0; i < size; ++i)
        value = table[(value ^ bytes[i]) & 0xFF] ^ (value >> 8);
    return ~value;
}

/// One chunk inside the file.
struct Chunk {
    const std::uint8_t* data;
    std::size_t length;
    std::string type;
};

bool chunkAt(const std::uint8_t* bytes, std::size_t size, std::size_t position, Chunk* out, std::string* reason) {
    if (size - position < kFrame || bigEndian(bytes + position) > size - position - kFrame) {
        *reason = "truncated picture: the file ends after " + std::to_string(size) + " bytes";
        return false;
    }
    const std::uint8_t* start = bytes + position;
    *out = {start + 8, bigEndian(start), std::string(reinterpret_cast<const char*>(start + 4), 4)};
    if (checksum(start + 4, out->length + 4) == bigEndian(out->data + out->length)) return true;
    *reason = "damaged picture: wrong checksum in the block at byte " + std::to_string(position);
    return false;
}

bool takeHeader(const Chunk& chunk, Header* out, std::string* reason) {
    if (chunk.type != "IHDR" || chunk.length != kHeaderData) {
        *reason = "damaged picture: no header";
        return false;
    }
    *out = {bigEndian(chunk.data), bigEndian(chunk.data + 4), chunk.data[8], chunk.data[9]};
    return true;
}

/// Walks through the chunks from the signature to IEND and checks their lengths and checksums, so that a truncated or
/// damaged file is recognised before it is decoded. Returns false and the reason when a chunk is wrong.
bool readStructure(const std::uint8_t* bytes, std::size_t size, Header* out, std::string* reason) {
    if (size < sizeof(kSignature) || std::memcmp(bytes, kSignature, sizeof(kSignature)) != 0) {
        *reason = "not a PNG picture";
        return false;
    }
    Chunk chunk{};
    for (std::size_t position = sizeof(kSignature);; position += kFrame + chunk.length) {
        if (!chunkAt(bytes, size, position, &chunk, reason)) return false;
        if (position == sizeof(kSignature) && !takeHeader(chunk, out, reason)) return false;
        if (chunk.type == "IEND") return true;
    }
}

bool refused(std::string* why, const PngExpectation& expected, const std::string& reason) {
    return refuse(why, expected.file, expected.key, reason);
}

std::string sizeText(long long width, long long height) {
    return std::to_string(width) + " x " + std::to_string(height);
}

bool kindMatches(const Header& header, PngKind kind) {
    if (kind == PngKind::Grey16) return header.bitDepth == 16 && header.colourType == kGrey;
    return header.bitDepth == 8 && (header.colourType == kRgb || header.colourType == kRgba);
}

bool load(const PngExpectation& expected, QByteArray* bytes, std::string* why) {
    QFile file;
    if (!openInput(expected.file, expected.key, kLargestFile, &file, why)) return false;
    *bytes = file.readAll();
    return true;
}

bool check(const PngExpectation& expected, const QByteArray& bytes, std::string* why) {
    Header header;
    std::string reason;
    if (!readStructure(reinterpret_cast<const std::uint8_t*>(bytes.constData()), static_cast<std::size_t>(bytes.size()),
                       &header, &reason)) {
        return refused(why, expected, reason);
    }
    if (!kindMatches(header, expected.kind)) {
        return refused(why, expected,
                       expected.kind == PngKind::Grey16 ? "not a 16-bit grey picture" : "not an 8-bit RGB picture");
    }
    if (header.width != static_cast<std::uint32_t>(expected.width) ||
        header.height != static_cast<std::uint32_t>(expected.height)) {
        return refused(why, expected,
                       "the picture is " + sizeText(header.width, header.height) + ", not " +
                           sizeText(expected.width, expected.height));
    }
    return true;
}

bool decode(const PngExpectation& expected, QImage* out, std::string* why) {
    QByteArray bytes;
    if (!load(expected, &bytes, why) || !check(expected, bytes, why)) return false;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, "png");
    reader.setAutoTransform(false);
    *out = reader.read();
    if (out->isNull()) return refused(why, expected, "damaged picture: " + reader.errorString().toStdString());
    if (out->width() == expected.width && out->height() == expected.height) return true;
    return refused(why, expected, "damaged picture: wrong size after decoding");
}

bool isOpaque(const QImage& argb) {
    for (int y = 0; y < argb.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(argb.constScanLine(y));
        for (int x = 0; x < argb.width(); ++x) {
            if (qAlpha(row[x]) != 255) return false;
        }
    }
    return true;
}

void copyRows(const QImage& image, ImageFrame* out) {
    out->resize(static_cast<std::uint32_t>(image.width()), static_cast<std::uint32_t>(image.height()));
    const std::size_t rowBytes = std::size_t{out->width()} * out->bytesPerPixel();
    for (int y = 0; y < image.height(); ++y)
        std::memcpy(out->bytes() + y * rowBytes, image.constScanLine(y), rowBytes);
}

bool write(const std::string& file, const ImageFrame& image, QImage::Format format, std::string* why) {
    if (image.empty()) return refuse(why, file, {}, "an empty picture cannot be written");
    QImage encoded(static_cast<int>(image.width()), static_cast<int>(image.height()), format);
    if (encoded.isNull()) return refuse(why, file, {}, "out of memory");
    const std::size_t rowBytes = std::size_t{image.width()} * image.bytesPerPixel();
    for (int y = 0; y < encoded.height(); ++y)
        std::memcpy(encoded.scanLine(y), image.bytes() + y * rowBytes, rowBytes);
    // Encoded in memory, not directly into the file: an error while the last bytes are written to a full disk would not
    // be noticed.
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "png");
    if (!writer.write(encoded)) return refuse(why, file, {}, writer.errorString().toStdString());
    return writeOutput(file, bytes.constData(), static_cast<std::size_t>(bytes.size()), why, Durability::Later);
}

}  // namespace

bool checkPng(const PngExpectation& expected, std::string* why) {
    QByteArray bytes;
    return load(expected, &bytes, why) && check(expected, bytes, why);
}

bool readGreyPng(const PngExpectation& expected, ImageFrame16* out, std::string* why) {
    QImage image;
    if (!decode(expected, &image, why)) return false;
    // The decoder produces another format for a file with, for instance, a transparent key colour. Such a file is
    // refused.
    if (image.format() != QImage::Format_Grayscale16) return refused(why, expected, "not a plain 16-bit grey picture");
    copyRows(image, out);
    return true;
}

bool readColourPng(const PngExpectation& expected, ImageFrame32* out, std::string* why) {
    QImage image;
    if (!decode(expected, &image, why)) return false;
    if (image.format() != QImage::Format_RGB32 && image.format() != QImage::Format_ARGB32) {
        return refused(why, expected, "not a plain 8-bit RGB picture");
    }
    image = image.convertToFormat(QImage::Format_ARGB32);
    if (!isOpaque(image)) return refused(why, expected, "the picture has transparent pixels");
    copyRows(image, out);
    return true;
}

bool writeGreyPng(const std::string& file, const ImageFrame16& image, std::string* why) {
    return write(file, image, QImage::Format_Grayscale16, why);
}

bool writeColourPng(const std::string& file, const ImageFrame32& image, std::string* why) {
    return write(file, image, QImage::Format_RGB32, why);
}

}  // namespace fieldcal::session
