#pragma once

#include "kxapi/KXAPI.h"

#include <optional>
#include <string>

namespace kxsim {

using Block = KXCalibRectParameters;

/// How an operation on the block went. `why`: one line for people; empty where the status says it all.
struct [[nodiscard]] BlockResult {
    std::int32_t status = KX_STATUS_OK;
    std::string why;
    bool ok() const { return why.empty() && status == KX_STATUS_OK; }
};

/// The module's parameter block: the 2048 bytes of a file (UTF-8 name), or without a name this object's memory. A
/// commit replaces them in one step. Failures of the file have status 6 and a line "FILE: what is wrong".
class BlockStore {
public:
    explicit BlockStore(std::string file) : file_(std::move(file)) {}

    /// Makes the block where there is none, and loads it.
    BlockResult open(const Block& factory, Block* out);

    /// The committed block, whatever it says.
    BlockResult read(Block* out) const;
    /// The block before the last commit; without a commit the present one.
    BlockResult readPrevious(Block* out) const;
    /// The committed block, when it makes sense; else status 4, and `out` stays as it was.
    BlockResult load(Block* out) const;

    void write(const Block& block) { written_ = block; }
    /// Status 1 without a write before it. `living`: the module enters a count of its commits and a checksum of its
    /// own, where `BlockLayout.h` says.
    BlockResult commit(bool living);

    bool isLostWithTheDevice() const { return file_.empty(); }

private:
    BlockResult put(const Block& block);
    std::string name() const { return file_.empty() ? "the module's block" : file_; }

    std::string file_;
    std::optional<Block> memory_, written_, previous_;
};

}  // namespace kxsim
