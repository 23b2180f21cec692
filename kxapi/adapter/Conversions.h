#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

namespace kxadapter {

/// The other direction of a rotation, or columns for rows. Nine numbers; `in` and `out` must not overlap.
template <typename From, typename To>
void transpose(const From* in, To* out) {
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column)
            out[3 * row + column] = static_cast<To>(in[3 * column + row]);
    }
}

/// A picture whose rows follow each other without gaps. What `take` gives is valid until its next call.
class PackedPicture {
public:
    /// `pitch`: bytes from one row of `source` to the next, at least `rowBytes`. Null stays null.
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
