#pragma once

#include "simulator/kxapi/FlashImage.h"

namespace kxsim {

/// Where the flash's bytes are: in a file (UTF-8 name), changed in place, or without a name in this object's memory.
/// Failures have status 6 and a line "FILE: what is wrong".
class FlashCells {
public:
    explicit FlashCells(std::string file) : file_(std::move(file)) {}

    /// The name to put before what is wrong with the contents.
    std::string name() const { return file_.empty() ? "the module's flash" : file_; }
    bool inMemory() const { return file_.empty(); }

    /// Makes the flash with these contents, unless there is one already.
    FlashResult createOnce(const FlashBytes& image);
    /// Everything; of a file that is too long, enough to see that.
    FlashResult read(FlashBytes* out) const;
    /// Everything has reached the file when this returns.
    FlashResult write(std::size_t offset, const FlashBytes& bytes);

private:
    std::string file_;
    FlashBytes memory_;
};

}  // namespace kxsim
