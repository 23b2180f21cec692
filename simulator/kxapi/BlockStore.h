#pragma once

#include "kxapi/KXAPI.h"

#include <optional>
#include <string>

namespace kxsim {

using Block = KXCalibRectParameters;

/// The result of an operation on the block. `why`: one line of explanation; empty where the status is sufficient.
struct [[nodiscard]] BlockResult {
    std::int32_t status = KX_STATUS_OK;
    std::string why;
    bool ok() const { return why.empty() && status == KX_STATUS_OK; }
};

/// The module's parameter block: the 2048 bytes of a file (UTF-8 name), or without a name the memory of this object. A
/// commit replaces all bytes at once. Failures of the file have status 6 and a line "FILE: what is wrong".
class BlockStore {
public:
    explicit BlockStore(std::string file) : file_(std::move(file)) {}

    /// Creates the block if there is none, and loads it.
    BlockResult open(const Block& factory, Block* out);

    /// Reads the committed block without checking it.
    BlockResult read(Block* out) const;
    /// Reads the block before the last commit; without a commit the present one.
    BlockResult readPrevious(Block* out) const;
    /// Reads the committed block if it is valid; otherwise returns status 4 and leaves `out` unchanged.
    BlockResult load(Block* out) const;

    void write(const Block& block) { written_ = block; }
    /// Returns status 1 without a preceding write. `living`: the module enters a commit count and a checksum of its own
    /// at the positions given by `BlockLayout.h`.
    BlockResult commit(bool living);

    bool isLostWithTheDevice() const { return file_.empty(); }

private:
    BlockResult put(const Block& block);
    std::string name() const { return file_.empty() ? "the module's block" : file_; }

    std::string file_;
    std::optional<Block> memory_, written_, previous_;
};

}  // namespace kxsim
