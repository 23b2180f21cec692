#pragma once

#include "camera/ImageFrame.h"
#include "render/OverlayCalibration.h"

#include <QString>

namespace fieldcal {

/// Where the tutorial's pictures are.
struct TutorialFiles {
    QString depth = QStringLiteral(":/Files/TutorialDepth.bin");
    QString colour = QStringLiteral(":/Files/TutorialColor.bin");
    QString hint = QStringLiteral(":/Images/TouchAndDrag.png");
};

/// Both `.bin` files: width, then height, as 32-bit little-endian signed integers, then the pixels row after row.
/// Depth: 16 bit little-endian, millimetres, 0 none. Colour: 3 bytes, R, G, B.
struct TutorialPictures {
    ImageFrame16 depth;
    ImageFrame32 colour;
    ImageFrame32 hint;

    bool complete() const { return !depth.empty() && !colour.empty(); }
};

/// What cannot be read stays empty and is logged as critical. Any thread.
TutorialPictures loadTutorialPictures(const TutorialFiles& files);

/// False, with the reason logged: the file cannot be written. A frame's alpha is dropped.
bool writeTutorialDepth(const QString& path, const ImageFrame16& depth);
bool writeTutorialColour(const QString& path, const ImageFrame32& colour);

/// The cameras that the pictures are made with: pinholes with the principal point in the middle, the depth camera's
/// focal length 0.94 of its width, the colour camera's 0.73. Their axes are parallel; the colour camera lies 25 mm to
/// the left of the depth camera.
OverlayCalibration tutorialCalibration(const TutorialPictures& pictures);

}  // namespace fieldcal
