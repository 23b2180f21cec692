#pragma once

#include "session/RecordedSession.h"

#include <memory>
#include <string>
#include <vector>

namespace kxsim {

/// The decoded frames of a recording. Frames are decoded on first use and kept as long as they fit into a fixed amount
/// of memory; the others are decoded each time. (A recording is played cyclically, so discarding the least recently
/// used frame would always discard the one needed next.)
class FrameStore {
public:
    FrameStore(std::string folder, const fieldcal::session::SessionDescription& description);

    /// Returns null with `why` when the images cannot be read. Valid until the next call.
    const fieldcal::session::FramePictures* pictures(std::size_t index, std::string* why);

private:
    using Pictures = fieldcal::session::FramePictures;

    std::string folder_;
    const fieldcal::session::SessionDescription& description_;
    std::vector<std::unique_ptr<Pictures>> kept_;
    std::unique_ptr<Pictures> last_;  ///< a frame that is not kept
    std::size_t keptBytes_ = 0;
};

}  // namespace kxsim
