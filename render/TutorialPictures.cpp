#include "render/TutorialPictures.h"

#include "files/SafeFile.h"

#include <QDebug>
#include <QFile>
#include <QImage>
#include <QtEndian>

#include <string>

namespace fieldcal {
namespace {

constexpr qint32 kLargestSide = 8192;
constexpr qint64 kHeaderBytes = 8;
constexpr qint64 kDepthBytes = 2;
constexpr qint64 kColourBytes = 3;

constexpr float kDepthFocalOverWidth = 0.94F;
constexpr float kColourFocalOverWidth = 0.73F;
constexpr float kBaselineMetres = 0.025F;

struct RawPicture {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    QByteArray pixels;
};

/// Returns an empty image when the file does not exist, which is logged as `missing`, or is not valid.
RawPicture readRaw(const QString& path, qint64 bytesPerPixel, const char* missing) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qCritical("%s", missing);
        return {};
    }
    const QByteArray header = file.read(kHeaderBytes);
    const auto side = [&header](int offset) { return qFromLittleEndian<qint32>(header.constData() + offset); };
    const bool sane = header.size() == kHeaderBytes && side(0) > 0 && side(4) > 0 && side(0) <= kLargestSide &&
                      side(4) <= kLargestSide;
    const qint64 bytes = sane ? bytesPerPixel * side(0) * side(4) : 0;
    RawPicture picture;
    if (sane) picture.pixels = file.read(bytes);
    if (!sane || picture.pixels.size() != bytes) {
        qCritical("%s is not a picture of the refinement tutorial.", qPrintable(path));
        return {};
    }
    picture.width = static_cast<std::uint32_t>(side(0));
    picture.height = static_cast<std::uint32_t>(side(4));
    return picture;
}

void readDepth(const QString& path, ImageFrame16* depth) {
    const RawPicture raw =
        readRaw(path, kDepthBytes, "Could not open Depth Image to use inside of the refinement tutorial.");
    if (raw.pixels.isEmpty()) return;
    depth->resize(raw.width, raw.height);
    qFromLittleEndian<quint16>(raw.pixels.constData(), raw.pixels.size() / kDepthBytes, depth->pixels());
}

void readColour(const QString& path, ImageFrame32* colour) {
    const RawPicture raw =
        readRaw(path, kColourBytes, "Could not open Color Image to use inside of the refinement tutorial.");
    colour->resize(raw.width, raw.height);
    std::uint8_t* out = colour->bytes();
    for (qsizetype i = 0; i < raw.pixels.size(); i += kColourBytes) {
        for (int channel = 0; channel < kColourBytes; ++channel)
            *out++ = static_cast<std::uint8_t>(raw.pixels[static_cast<int>(i) + channel]);
        *out++ = 255;
    }
}

void readHint(const QString& path, ImageFrame32* hint) {
    const QImage image = QImage(path).convertToFormat(QImage::Format_RGBA8888);
    if (image.isNull()) {
        qWarning("Could not load %s.", qPrintable(path));
        return;
    }
    hint->assign(static_cast<std::uint32_t>(image.width()), static_cast<std::uint32_t>(image.height()),
                 image.constBits());
}

bool write(const QString& path, const ImageFrame& frame, const QByteArray& pixels) {
    QByteArray header(kHeaderBytes, '\0');
    qToLittleEndian(static_cast<qint32>(frame.width()), header.data());
    qToLittleEndian(static_cast<qint32>(frame.height()), header.data() + 4);
    const QByteArray bytes = header + pixels;
    std::string why;
    if (writeFile(path.toStdString(), bytes.constData(), static_cast<std::size_t>(bytes.size()), &why)) return true;
    qCritical("Could not write %s", why.c_str());
    return false;
}

CameraModel tutorialCamera(const ImageFrame& frame, float focalOverWidth) {
    const auto width = static_cast<float>(frame.width());
    const auto height = static_cast<float>(frame.height());
    const float focal = focalOverWidth * width;
    return {static_cast<std::int32_t>(frame.width()),
            static_cast<std::int32_t>(frame.height()),
            focal,
            focal,
            (width - 1) / 2,
            (height - 1) / 2};
}

}  // namespace

TutorialPictures loadTutorialPictures(const TutorialFiles& files) {
    TutorialPictures pictures;
    readDepth(files.depth, &pictures.depth);
    readColour(files.colour, &pictures.colour);
    readHint(files.hint, &pictures.hint);
    return pictures;
}

bool writeTutorialDepth(const QString& path, const ImageFrame16& depth) {
    QByteArray pixels(static_cast<int>(depth.byteCount()), '\0');
    qToLittleEndian<quint16>(depth.pixels(), pixels.size() / kDepthBytes, pixels.data());
    return write(path, depth, pixels);
}

bool writeTutorialColour(const QString& path, const ImageFrame32& colour) {
    QByteArray pixels;
    pixels.reserve(static_cast<int>(colour.byteCount()) / 4 * 3);
    for (std::size_t i = 0; i < colour.byteCount(); i += 4)
        pixels.append(reinterpret_cast<const char*>(colour.bytes() + i), kColourBytes);
    return write(path, colour, pixels);
}

OverlayCalibration tutorialCalibration(const TutorialPictures& pictures) {
    OverlayCalibration cameras;
    cameras.depth = tutorialCamera(pictures.depth, kDepthFocalOverWidth);
    cameras.colour = tutorialCamera(pictures.colour, kColourFocalOverWidth);
    cameras.stored.translation = {kBaselineMetres, 0, 0};
    return cameras;
}

}  // namespace fieldcal
