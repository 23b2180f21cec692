#pragma once

#include "session/RecordedSession.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <string>

namespace fieldcal::session {

/// A valid session.json written by hand: tiny module images, a rear camera, two frames.
inline const std::string kSessionText = R"({ "version": 1,
 "module": {"serial": 550101, "firmware": "1.27.11", "software": "2.2.0", "calibrationValid": true},
 "infrared": {"width": 6, "height": 4, "fx": 580.25, "fy": 580.5, "cx": 3.1, "cy": 2.2},
 "depth": {"width": 5, "height": 3, "fx": 580.25, "fy": 580.5, "cx": 3.1, "cy": 2.2},
 "third": {"width": 8, "height": 6, "fx": 464, "fy": 465, "cx": 4.1, "cy": 3.2,
           "rotation": [1, 0, 0, 0, 0, -1, 0, 1, 0], "translation": [25, 0.5, -0.25]},
 "platform": {"name": "Rear",
   "raw": {"width": 1280, "height": 720, "fx": 940, "fy": 941, "cx": 640, "cy": 360,
           "k1": 0.06, "k2": -0.09, "p1": -0.001, "p2": 0.002, "k3": 0.02},
   "rectified": {"width": 1280, "height": 720, "fx": 928, "fy": 929, "cx": 639, "cy": 361},
   "rectification": [0, -1, 0, 1, 0, 0, 0, 0, 1],
   "rotation": [1, 0, 0, 0, 1, 0, 0, 0, 1], "translation": [-60, 0.1, 0.9]},
 "frames": [{"infrared": "a_infrared.png", "third": "a_third.png", "depth": "a_depth.png",
             "platform": "a_platform.nv12", "right": "a_right.png", "repeat": 26},
            {"infrared": "b_infrared.png", "third": "b_third.png"}],
 "truth": {"third": [1, 0, 0, 0, 0, -1, 0, 1, 0]} })";

inline void writeFile(const std::string& path, const QByteArray& bytes) {
    QFile file(QString::fromStdString(path));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path;
    ASSERT_EQ(file.write(bytes), bytes.size());
}

inline QByteArray readFile(const std::string& path) {
    QFile file(QString::fromStdString(path));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path;
    return file.readAll();
}

/// Images that fit `session`, with every pixel different from its neighbours. `complete`: with depth, the right
/// infrared and the platform camera's image.
inline FrameImages testImages(const SessionDescription& session, bool complete) {
    FrameImages out;
    const auto size = [](ImageFrame* frame, const Intrinsics& camera) {
        frame->resize(static_cast<std::uint32_t>(camera.width), static_cast<std::uint32_t>(camera.height));
    };
    size(&out.infrared, session.infrared);
    for (std::size_t i = 0; i < out.infrared.byteCount() / 2; ++i)
        out.infrared.pixels()[i] = (1023 - 37 * i) & 1023;
    size(&out.third, session.third);
    for (std::size_t i = 0; i < out.third.byteCount(); ++i)
        out.third.bytes()[i] = i % 4 == 3 ? 255 : (i * 53) & 255;
    if (!complete) return out;
    size(&out.right, session.infrared);
    for (std::size_t i = 0; i < out.right.byteCount() / 2; ++i)
        out.right.pixels()[i] = (1000 - 41 * i) & 1023;
    size(&out.depth, session.depth);
    for (std::size_t i = 0; i < out.depth.byteCount() / 2; ++i)
        out.depth.pixels()[i] = 65535 - 4001 * i;
    out.platform.resize(1280 * 720 * 3 / 2);
    for (std::size_t i = 0; i < out.platform.size(); ++i)
        out.platform[i] = (i * 7 + i / 1280) & 255;
    return out;
}

/// A valid session on disk, removed at the end.
class SessionFolder : public ::testing::Test {
protected:
    SessionFolder() : folder(temporary.path().toStdString() + "/s") {
        QDir().mkpath(QString::fromStdString(folder));
        writeFile(path("session.json"), QByteArray::fromStdString(kSessionText));
        std::string why;
        EXPECT_TRUE(readDescription(folder, &session, &why)) << why;
        for (std::size_t i = 0; i < session.frames.size(); ++i) {
            EXPECT_TRUE(writeImages(folder, session.frames[i], testImages(session, i == 0), &why)) << why;
        }
    }
    std::string path(const std::string& name) const { return folder + "/" + name; }

    QTemporaryDir temporary;
    std::string folder;
    SessionDescription session;
};

}  // namespace fieldcal::session
