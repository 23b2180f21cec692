#pragma once

#include "camera/ImageFrame.h"
#include "render/OverlayCalibration.h"

#include <QString>

namespace fieldcal {

/// The files of the tutorial's images.
struct TutorialFiles {
    QString depth = QStringLiteral(":/Files/TutorialDepth.bin");
    QString colour = QStringLiteral(":/Files/TutorialColor.bin");
    QString hint = QStringLiteral(":/Images/TouchAndDrag.png");
};

/// The images of the tutorial. Both `.bin` files contain width and height as 32-bit little-endian signed integers, then
/// the pixels row by row. Depth: 16 bit little-endian, millimetres, 0 for none. Colour: 3 bytes, R, G, B.
struct TutorialPictures {
    ImageFrame16 depth;
    ImageFrame32 colour;
    ImageFrame32 hint;

    bool complete() const { return !depth.empty() && !colour.empty(); }
};

/// A file that cannot be read gives an empty image and is logged as critical. Any thread.
TutorialPictures loadTutorialPictures(const TutorialFiles& files);

/// Return false, with the reason logged, when the file cannot be written. A frame's alpha is dropped.
bool writeTutorialDepth(const QString& path, const ImageFrame16& depth);
bool writeTutorialColour(const QString& path, const ImageFrame32& colour);

/// Returns the camera models with which the images were made: pinholes with the principal point in the centre and a
/// focal length of 0.94 of the width for the depth camera, 0.73 for the colour camera. Their axes are parallel; the
/// colour camera lies 25 mm to the left of the depth camera.
OverlayCalibration tutorialCalibration(const TutorialPictures& pictures);

}  // namespace fieldcal
