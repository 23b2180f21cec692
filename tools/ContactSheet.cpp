// Draws all worlds on one sheet: infrared, colour, depth, and depth over colour with the factory's and with the true
// rotation.
//
//   fieldcal-contact-sheet OUT.png [SEED [VIEW]]

#include "render/DepthColourMap.h"
#include "simulator/handheld/KeyframeRenderer.h"
#include "simulator/synthesis/Camera.h"
#include "simulator/synthesis/Rig.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <cstdio>
#include <cstdlib>

namespace {

using namespace fieldcal;

constexpr QSize kCell(384, 288);
constexpr int kGap = 6, kHeader = 40;

QImage infraredImage(const ImageFrame16& frame) {
    QImage image(static_cast<int>(frame.width()), static_cast<int>(frame.height()), QImage::Format_Grayscale8);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.scanLine(y)[x] = static_cast<uchar>(std::min(255, frame.pixels()[y * image.width() + x] / 3));
    return image;
}

QImage colourImage(const ImageFrame32& frame) {
    const QImage view(frame.bytes(), static_cast<int>(frame.width()), static_cast<int>(frame.height()),
                      QImage::Format_RGB32);
    return view.copy();
}

QRgb depthRgb(std::uint16_t millimetres) {
    static const DepthColours colours;
    const auto colour = colours(millimetres);
    return qRgb(colour[0], colour[1], colour[2]);
}

QImage depthImage(const ImageFrame16& frame) {
    QImage image(static_cast<int>(frame.width()), static_cast<int>(frame.height()), QImage::Format_RGB32);
    image.fill(Qt::black);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (const std::uint16_t z = frame.pixels()[y * image.width() + x]) image.setPixel(x, y, depthRgb(z));
    return image;
}

/// Draws every depth pixel, half transparent, at its place in the colour image under the given rotation, far pixels
/// first.
QImage overlay(const session::FrameImages& pictures, const session::SessionDescription& rig,
               const session::Matrix3& rotation) {
    QImage image = colourImage(pictures.third);
    const cv::Point2d principal = synthesis::ownPrincipalPoint(rig.third, rig.infrared);
    const cv::Matx33d third_depth(rotation.data());
    const cv::Vec3d translation(rig.third.translation.data());
    cv::Mat_<std::uint16_t> nearest(image.height(), image.width(), std::uint16_t{0});
    const auto& depth = pictures.depth;
    for (int y = 0; y < rig.depth.height; ++y)
        for (int x = 0; x < rig.depth.width; ++x) {
            const std::uint16_t z = depth.pixels()[y * rig.depth.width + x];
            if (z == 0) continue;
            const cv::Vec3d point((x - rig.depth.cx) / rig.depth.fx * z, (y - rig.depth.cy) / rig.depth.fy * z, z);
            const cv::Vec3d seen = third_depth * point + translation;
            const int u = cvRound(seen[0] / seen[2] * rig.third.fx + principal.x);
            const int v = cvRound(seen[1] / seen[2] * rig.third.fy + principal.y);
            if (seen[2] <= 0 || u < 0 || v < 0 || u >= nearest.cols || v >= nearest.rows) continue;
            if (nearest(v, u) == 0 || z < nearest(v, u)) nearest(v, u) = z;
        }
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            if (nearest(y, x) == 0) continue;
            const QRgb below = image.pixel(x, y), above = depthRgb(nearest(y, x));
            image.setPixel(x, y,
                           qRgb((qRed(below) + qRed(above)) / 2, (qGreen(below) + qGreen(above)) / 2,
                                (qBlue(below) + qBlue(above)) / 2));
        }
    return image;
}

std::vector<QImage> cells(const std::string& world, std::uint64_t seed, int view) {
    const auto rig = synthesis::drawRig(seed, {});
    handheld::KeyframeRenderer renderer(world, seed, rig);
    const auto pictures = takeStill(*renderer.render(view, false), seed);
    return {infraredImage(pictures.infrared), colourImage(pictures.third), depthImage(pictures.depth),
            overlay(pictures, rig, rig.third.rotation), overlay(pictures, rig, *rig.truthThird)};
}

QImage sheetOf(std::uint64_t seed, int view) {
    const auto& worlds = world::worldNames();
    const std::vector<const char*> titles{"infrared", "colour", "depth", "factory rotation", "true rotation"};
    const int across = static_cast<int>(titles.size()), down = static_cast<int>(worlds.size());
    QImage sheet(across * (kCell.width() + kGap), kHeader + down * (kCell.height() + kGap), QImage::Format_RGB32);
    sheet.fill(qRgb(24, 26, 28));
    QPainter painter(&sheet);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setPen(Qt::white);
    QFont font = painter.font();
    font.setPixelSize(22);
    painter.setFont(font);
    for (int column = 0; column < across; ++column)
        painter.drawText(column * (kCell.width() + kGap) + 8, kHeader - 12, titles[static_cast<std::size_t>(column)]);
    for (int row = 0; row < down; ++row) {
        const std::string& name = worlds[static_cast<std::size_t>(row)];
        std::printf("%s\n", name.c_str());
        int x = 0;
        const int y = kHeader + row * (kCell.height() + kGap);
        for (const QImage& image : cells(name, seed, view)) {
            const QImage small = image.scaled(kCell, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            painter.drawImage(x, y, small);
            x += kCell.width() + kGap;
        }
        painter.drawText(8, y + kCell.height() - 10, QString::fromStdString(name));
    }
    return sheet;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2 || argc > 4) {
        std::fprintf(stderr, "usage: fieldcal-contact-sheet OUT.png [SEED [VIEW]]\n");
        return 2;
    }
    const std::uint64_t seed = argc > 2 ? std::strtoull(argv[2], nullptr, 10) : 1;
    const int view = argc > 3 ? std::atoi(argv[3]) : 0;
    // Text needs an application object, but no display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    if (sheetOf(seed, view).save(QString::fromLocal8Bit(argv[1]))) return 0;
    std::fprintf(stderr, "%s cannot be written\n", argv[1]);
    return 1;
}
