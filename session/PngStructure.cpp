#include "session/PngStructure.h"

#include <array>
#include <cstring>

namespace fieldcal::session {
namespace {

constexpr std::uint8_t kSignature[8] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1a, '\n'};
constexpr std::size_t kFrame = 12;  ///< length, type and checksum around a chunk's data
constexpr std::size_t kHeaderData = 13;

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

bool takeHeader(const Chunk& chunk, PngHeader* out, std::string* reason) {
    if (chunk.type != "IHDR" || chunk.length != kHeaderData) {
        *reason = "damaged picture: no header";
        return false;
    }
    *out = {bigEndian(chunk.data), bigEndian(chunk.data + 4), chunk.data[8], chunk.data[9]};
    return true;
}

}  // namespace

bool readPngStructure(const std::uint8_t* bytes, std::size_t size, PngHeader* out, std::string* reason) {
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

}  // namespace fieldcal::session
