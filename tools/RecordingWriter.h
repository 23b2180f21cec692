#pragma once

#include "session/RecordedSession.h"

#include <cstdint>
#include <optional>
#include <string>

namespace fieldcal {

/// Writes the frame sets of a module into a recording that plays back as they were delivered. Frame sets that follow
/// each other unchanged become one frame that repeats. The description is written last, so that a folder without one is
/// no recording; a recording that is not finished removes its files. A call that fails returns false and one line
/// "file: key: reason" in `why`.
class RecordingWriter {
public:
    /// `description` holds the cameras; its frames are filled in by this class.
    RecordingWriter(std::string folder, session::SessionDescription description);
    ~RecordingWriter();
    RecordingWriter(const RecordingWriter&) = delete;
    RecordingWriter& operator=(const RecordingWriter&) = delete;

    /// Makes the folder. It fails when there is something in it already.
    bool start(std::string* why);

    /// How long a frame set lasts, and when it was taken.
    struct Timing {
        int repeat = 1;  ///< grabs that deliver it
        std::optional<std::int64_t> timeNs = {};
    };
    /// `platform` is empty when the rear camera brought nothing new.
    bool add(session::FramePictures pictures, std::string* why, const Timing& timing);

    bool finish(std::string* why);

    std::size_t frameCount() const { return description_.frames.size(); }

private:
    bool repeatsLast(const session::FramePictures& pictures) const;
    bool canBePlayed(const session::FramePictures& pictures, std::string* why) const;

    const std::string folder_;
    session::SessionDescription description_;
    session::FramePictures last_;
    bool madeFolder_ = false;
    bool finished_ = false;
    bool describing_ = false;  ///< session.json may be there, and is ours
};

}  // namespace fieldcal
