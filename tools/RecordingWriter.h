#pragma once

#include "session/RecordedSession.h"

#include <cstdint>
#include <optional>
#include <string>

namespace fieldcal {

/// Writes the frame sets of a module into a recording that plays back exactly as they were delivered. Consecutive
/// identical frame sets become one frame with repeats. The description is written last, because a folder without a
/// description is not a recording; the files of an unfinished recording are removed. A call that fails returns false
/// and sets `why` to one line of the form "file: key: reason".
class RecordingWriter {
public:
    /// `description` contains the cameras; its frames are filled in by this class.
    RecordingWriter(std::string folder, session::SessionDescription description);
    ~RecordingWriter();
    RecordingWriter(const RecordingWriter&) = delete;
    RecordingWriter& operator=(const RecordingWriter&) = delete;

    /// Creates the folder. Fails when the folder exists and is not empty.
    bool start(std::string* why);

    /// The number of grabs that deliver a frame set, and its time.
    struct Timing {
        int repeat = 1;  ///< number of grabs that deliver it
        std::optional<std::int64_t> timeNs = {};
    };
    /// Adds a frame set. `platform` is empty when the rear camera delivered no new image.
    bool add(session::FrameImages images, std::string* why, const Timing& timing);

    bool finish(std::string* why);

    std::size_t frameCount() const { return description_.frames.size(); }

private:
    bool repeatsLast(const session::FrameImages& images) const;
    bool canBePlayed(const session::FrameImages& images, std::string* why) const;

    const std::string folder_;
    session::SessionDescription description_;
    session::FrameImages last_;
    bool madeFolder_ = false;
    bool finished_ = false;
    bool describing_ = false;  ///< this object may have written session.json
};

}  // namespace fieldcal
