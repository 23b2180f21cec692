#include "devices/BlockFields.h"

namespace fieldcal {
namespace {

using Block = KXCalibRectParameters;

/// Two rotations that differ in every entry.
constexpr Matrix3 kProbe{0.6442, -0.5285, 0.5529, 0.5440, 0.8255, 0.1552, -0.5383, 0.2008, 0.8185};
constexpr Matrix3 kOtherProbe{-0.1702, -0.6659, 0.7268, 0.7161, 0.4251, 0.5558, -0.6791, 0.6151, 0.4005};

/// Extends a set of bytes to whole 4-byte words, because single bytes of two different numbers may be equal.
BlockBytes wholeWords(const BlockBytes& bytes) {
    BlockBytes words;
    for (std::size_t i = 0; i < bytes.size(); ++i)
        words[i] = (bytes >> (i / 4 * 4) & BlockBytes(0xF)).any();
    return words;
}

}  // namespace

BlockBytes differences(const Block& a, const Block& b) {
    const auto* bytesOfA = reinterpret_cast<const std::uint8_t*>(&a);
    const auto* bytesOfB = reinterpret_cast<const std::uint8_t*>(&b);
    BlockBytes differing;
    for (std::size_t i = 0; i < differing.size(); ++i)
        differing[i] = bytesOfA[i] != bytesOfB[i];
    return differing;
}

Matrix3 rawRotation(const Rotation& rotation, const float* rectifyColour, const float* rectifyInfrared) {
    // Read from right to left: raw infrared to rectified infrared, to rectified colour, to raw colour.
    return product(transposed(widened(rectifyColour)), product(widened(rotation.data()), widened(rectifyInfrared)));
}

/// The call works on copies, because it may be abandoned and then outlive the arguments.
std::optional<Block> turned(ModuleLink& link, KXUpdateRotationFunction function, const Matrix3& rotation,
                            const Block& block) {
    const auto call = [=, library = link.rotationUpdater()] {
        std::optional<Block> out(block);
        function(&block, rotation.data(), &*out);
        return out;
    };
    return link.ask(call);
}

std::optional<BlockBytes> rotationFields(ModuleLink& link, KXUpdateRotationFunction function, const Block& block) {
    const auto one = turned(link, function, kProbe, block);
    const auto other = one ? turned(link, function, kOtherProbe, block) : std::nullopt;
    if (!other) return std::nullopt;
    return wholeWords(differences(*one, *other));
}

}  // namespace fieldcal
