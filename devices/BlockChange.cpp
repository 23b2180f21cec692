#include "devices/BlockChange.h"

#include <QCryptographicHash>

namespace fieldcal {
namespace {

constexpr int kBlockBytes = static_cast<int>(sizeof(KXCalibRectParameters));
constexpr int kMaskBytes = kBlockBytes / 8;
constexpr int kDigestBytes = 32;

QByteArray digestOf(const KXCalibRectParameters& block, const QByteArray& counting) {
    const char* bytes = reinterpret_cast<const char*>(&block);
    QByteArray counted;
    for (int i = 0; i < kBlockBytes; ++i) {
        if ((counting[i / 8] >> (i % 8) & 1) != 0) counted += bytes[i];
    }
    return QCryptographicHash::hash(counted, QCryptographicHash::Sha256);
}

}  // namespace

BlockChange BlockChange::between(const KXCalibRectParameters& previous, const KXCalibRectParameters& wanted,
                                 const BlockBytes& counting) {
    QByteArray mask(kMaskBytes, '\0');
    for (int i = 0; i < kBlockBytes; ++i) {
        if (counting[static_cast<std::size_t>(i)]) mask[i / 8] = static_cast<char>(mask[i / 8] | 1 << (i % 8));
    }
    return {mask, digestOf(previous, mask), digestOf(wanted, mask)};
}

bool BlockChange::isWhole() const {
    return counting.size() == kMaskBytes && previous.size() == kDigestBytes && wanted.size() == kDigestBytes;
}

BlockChange::Held BlockChange::heldIn(const KXCalibRectParameters& block) const {
    const QByteArray held = digestOf(block, counting);
    if (held == wanted) return Held::Wanted;
    return held == previous ? Held::Previous : Held::Neither;
}

}  // namespace fieldcal
