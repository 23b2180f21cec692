#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

namespace kxadapter {

/// Transposes a 3 x 3 matrix, to invert a rotation or to convert between row-major and column-major order. `in` and
/// `out` hold nine numbers each and must not overlap.
template <typename From, typename To>
void transpose(const From* in, To* out) {
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column)
            out[3 * row + column] = static_cast<To>(in[3 * column + row]);
    }
}

/// Holds an image with packed rows (no gaps between them).
class PackedImage {
public:
    /// Copies `source` row by row. `pitch`: bytes from one row of `source` to the next, at least `rowBytes`. The result
    /// is valid until the next call; it is null when `source` is null.
    std::uint8_t* take(const void* source, std::size_t rowBytes, std::size_t rows, std::size_t pitch) {
        if (source == nullptr) return nullptr;
        bytes_.resize(rowBytes * rows);
        for (std::size_t row = 0; row < rows; ++row) {
            std::memcpy(bytes_.data() + row * rowBytes, static_cast<const std::uint8_t*>(source) + row * pitch,
                        rowBytes);
        }
        return bytes_.data();
    }

private:
    std::vector<std::uint8_t> bytes_;
};

}  // namespace kxadapter
