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
    const fieldcal::session::FrameImages* images(std::size_t index, std::string* why);

private:
    using Images = fieldcal::session::FrameImages;

    std::string folder_;
    const fieldcal::session::SessionDescription& description_;
    std::vector<std::unique_ptr<Images>> kept_;
    std::unique_ptr<Images> last_;  ///< a frame that is not kept
    std::size_t keptBytes_ = 0;
};

}  // namespace kxsim
