#pragma once

#include "session/RecordedSession.h"
#include "tests/tools/RenderedRecording.h"

#include <functional>
#include <string>
#include <vector>

namespace fieldcal::testing {

/// A frame of a recording that is derived from another one.
struct EditedFrame {
    session::FrameImages images;
    int repeat = 26;
};

/// The recording of the mountains, edited: `cut` receives its stills and returns the frames to play. Written into
/// `folder`.
inline void cutMountains(const QString& folder,
                         const std::function<std::vector<EditedFrame>(const std::vector<session::FrameImages>&)>& cut) {
    const std::string original = mountainRecording().toStdString();
    session::SessionDescription description;
    std::string why;
    ASSERT_TRUE(session::readDescription(original, &description, &why)) << why;
    std::vector<session::FrameImages> stills(description.frames.size());
    for (std::size_t i = 0; i < stills.size(); ++i)
        ASSERT_TRUE(session::readImages(original, description, i, &stills[i], &why)) << why;
    description.frames.clear();
    for (const EditedFrame& frame : cut(stills)) {
        const std::string name = std::to_string(description.frames.size());
        session::FrameEntry entry{name + "_ir.png", name + "_colour.png", {}, {}, frame.repeat};
        if (!frame.images.platform.empty()) entry.platform = name + "_rear.nv12";
        session::FrameImages images = frame.images;
        images.depth = {};
        ASSERT_TRUE(session::writeImages(folder.toStdString(), entry, images, &why)) << why;
        description.frames.push_back(entry);
    }
    ASSERT_TRUE(session::writeDescription(folder.toStdString(), description, &why)) << why;
}

}  // namespace fieldcal::testing
