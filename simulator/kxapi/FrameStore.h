#pragma once

#include "session/RecordedSession.h"

#include <memory>
#include <string>
#include <vector>

namespace kxsim {

/// The decoded frames of a recording. Frames are decoded when they are first asked for and kept while they fit into a
/// fixed amount of memory; the others are decoded each time. (A recording is played round and round, where dropping
/// the frame that was used longest ago would drop exactly the one that is needed next.)
class FrameStore {
public:
    FrameStore(std::string folder, const fieldcal::session::SessionDescription& description);

    /// Null and `why` when the pictures cannot be read. Valid until the next call.
    const fieldcal::session::FramePictures* pictures(std::size_t index, std::string* why);

private:
    using Pictures = fieldcal::session::FramePictures;

    std::string folder_;
    const fieldcal::session::SessionDescription& description_;
    std::vector<std::unique_ptr<Pictures>> kept_;
    std::unique_ptr<Pictures> last_;  ///< one that is not kept
    std::size_t keptBytes_ = 0;
};

}  // namespace kxsim
