#pragma once

#include "simulator/kxapi/Faults.h"
#include "simulator/kxapi/FlashCells.h"

#include <optional>

namespace kxsim {

/// The module's flash. A write goes to the bank that is not valid, in steps that are counted from 1 as long as this
/// object lives: one erases the bank, 32 program 64 bytes of the block each, and one, the commit, programs the bank's
/// header, which makes it the valid one. Programming only clears bits. Faults hit single steps.
class FlashMemory {
public:
    FlashMemory(const std::string& file, std::uint32_t serial, Faults* faults)
        : cells_(file), serial_(serial), faults_(*faults) {}

    /// Makes the flash with `factory` in it where there is none, and loads its block.
    FlashResult open(const KXCalibRectParameters& factory, KXCalibRectParameters* out);

    /// The valid block, whatever it says.
    FlashResult read(KXCalibRectParameters* out) const;
    /// The valid block, when it makes sense; else status 4, and `out` stays as it was.
    FlashResult load(KXCalibRectParameters* out) const;

    FlashResult write(const KXCalibRectParameters& block);
    /// Status 1 without a complete write before it.
    FlashResult commit();

    bool isLostWithTheDevice() const { return cells_.inMemory(); }

private:
    struct Written {
        std::size_t bank;
        std::uint32_t sequence;
        KXCalibRectParameters block;  ///< what the checksum is taken over
    };
    FlashResult find(ValidBank* out, FlashBytes* image) const;
    FlashResult programBlock(Written* target);
    FlashResult program(std::size_t offset, FlashBytes bytes, const std::optional<Fault>& fault);
    FlashResult step(std::size_t offset, FlashBytes bytes, const std::optional<Fault>& fault);

    FlashCells cells_;
    std::uint32_t serial_;
    Faults& faults_;
    std::optional<Written> written_;  ///< complete, but not committed
};

}  // namespace kxsim
