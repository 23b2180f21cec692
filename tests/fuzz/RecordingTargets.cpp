#include "camera/Rotation.h"
#include "session/PngFile.h"
#include "session/RecordedSession.h"
#include "tests/fuzz/Target.h"
#include "tests/session/Crc32.h"
#include "tools/CameraInfoFile.h"
#include "tools/ExportFormats.h"

#include <QDir>
#include <QtEndian>

namespace fieldcal::fuzz {
namespace {

constexpr double kRotationTolerance = 1e-3;

void description(const QByteArray& bytes) {
    put("session.json", bytes);
    session::SessionDescription read, again;
    std::string why;
    if (!session::readDescription(".", &read, &why)) return requireRefusal(why, "./session.json");
    require(read.grabCount() > 0, "a recording has a frame");
    for (const session::FrameEntry& frame : read.frames) {
        const QString name = QDir::cleanPath(QString::fromStdString(frame.infrared));
        require(QDir::isRelativePath(name) && name != ".." && !name.startsWith("../"),
                "images are in the recording's folder");
    }
    require(session::writeDescription("first", read, &why), "what was read can be written");
    require(session::readDescription("first", &again, &why), "what was written can be read");
    require(session::writeDescription("second", again, &why), "what was read again can be written");
    require(contentOf("first/session.json") == contentOf("second/session.json"), "nothing is lost on the way");
}

/// Images of 8 x 6 and of 6 x 4 pixels.
void picture(const QByteArray& bytes) {
    put("picture.png", bytes);
    const session::PngExpectation colour{"picture.png", "key", session::PngKind::Colour8, 8, 6};
    const session::PngExpectation grey{"picture.png", "key", session::PngKind::Grey16, 6, 4};
    ImageFrame32 readColour, colourAgain;
    ImageFrame16 readGrey, greyAgain;
    std::string why;
    if (session::readColourPng(colour, &readColour, &why)) {
        require(session::checkPng(colour, &why), "what is read is also accepted unread");
        require(session::writeColourPng("picture.png", readColour, &why) &&
                    session::readColourPng(colour, &colourAgain, &why) && readColour.byteCount() == 192 &&
                    std::equal(readColour.bytes(), readColour.bytes() + 192, colourAgain.bytes()),
                "a colour image is written and read exactly");
    } else if (session::readGreyPng(grey, &readGrey, &why)) {
        require(session::checkPng(grey, &why), "what is read is also accepted unread");
        require(session::writeGreyPng("picture.png", readGrey, &why) && session::readGreyPng(grey, &greyAgain, &why) &&
                    readGrey.byteCount() == 48 &&
                    std::equal(readGrey.bytes(), readGrey.bytes() + 48, greyAgain.bytes()),
                "a grey image is written and read exactly");
    } else {
        requireRefusal(why, "picture.png: key");
    }
}

/// Corrects the checksums of the chunks, as far as the chunks can be parsed.
QByteArray pictureWithChecksums(QByteArray bytes) {
    const auto length = [&](int at) { return qFromBigEndian<quint32>(bytes.constData() + at); };
    for (int at = 8; at + 12 <= bytes.size() && length(at) <= static_cast<quint32>(bytes.size() - at - 12);) {
        const int data = static_cast<int>(length(at));
        qToBigEndian(fieldcal::testing::crc32(bytes.mid(at + 4, data + 4)), bytes.data() + at + 8 + data);
        at += 12 + data;
    }
    return bytes;
}

void result(const QByteArray& bytes) {
    put("result.json", bytes);
    CameraPair pair;
    std::string why;
    if (!readResult("result.json", &pair, &why)) return requireRefusal(why, "result.json");
    for (const ExportFormat format : {ExportFormat::Urdf, ExportFormat::OpenCv, ExportFormat::Kalibr}) {
        const QByteArray text = exported(pair, format).toLower();
        require(!text.contains("nan") && !text.contains("inf,") && !text.contains("inf]"), "exports hold numbers");
    }
    CameraInfo info{};
    ColourTransform transform;
    put("ros.yaml", exported(pair, ExportFormat::Ros));
    require(readCameraInfo("ros.yaml", &info, &why), "an exported camera can be imported");
    put("tf.yaml", exported(pair, ExportFormat::Tf));
    require(readTransform("tf.yaml", &transform, &why), "an exported transform can be imported");
    for (std::size_t i = 0; i < 9; ++i)
        require(std::abs(transform.rotation[i] - pair.rotation[i]) < kRotationTolerance, "the rotation is the same");
}

void cameraInfo(const QByteArray& bytes) {
    put("camera.yaml", bytes);
    CameraInfo info{};
    std::string why;
    if (!readCameraInfo("camera.yaml", &info, &why)) return requireRefusal(why, "camera.yaml");
    require(info.raw.width > 0 && info.raw.height > 0 && info.raw.fx > 0 && info.rectified.fy > 0, "it is a camera");
    require(isRotation(info.rectification, kRotationTolerance), "the rectification is a rotation");
}

void transform(const QByteArray& bytes) {
    put("transform.yaml", bytes);
    ColourTransform read;
    std::string why;
    if (!readTransform("transform.yaml", &read, &why)) return requireRefusal(why, "transform.yaml");
    require(isRotation(read.rotation, kRotationTolerance), "the rotation is one");
}

}  // namespace

std::vector<Target> recordingTargets() {
    return {{"description", description},
            {"picture", picture, pictureWithChecksums},
            {"result", result},
            {"camera-info", cameraInfo},
            {"transform", transform}};
}

}  // namespace fieldcal::fuzz
