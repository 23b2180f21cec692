#pragma once

#include "camera/ImageFrame.h"
#include "simulator/synthesis/Random.h"

#include <opencv2/core.hpp>

namespace fieldcal::synthesis {

struct InfraredSensor {
    double meanLevel = 400;  ///< where the exposure aims, 0 … 1023
    double electronsPerStep = 14;
    double readNoise = 2.2;    ///< steps
    double vignetting = 0.25;  ///< light lost in the corners
    double veil = 0.08;        ///< share of the light that the lens scatters over the whole picture
};

struct ColourSensor {
    double meanLevel = 0.20;  ///< where the exposure aims; full scale is 1, linear light
    double electronsAtFull = 8000;
    double readNoise = 0.0010;
    double vignetting = 0.22;
    double veil = 0.03;
    double sharpening = 0.5;  ///< strength of the edge enhancement that colour cameras apply
};

/// The bands that a kind of camera sees, of the radiance that `takePicture` gives.
cv::Mat_<float> infraredBand(const cv::Mat_<cv::Vec4f>& picture);
cv::Mat_<cv::Vec3f> colourBands(const cv::Mat_<cv::Vec4f>& picture);

/// Ten bits, as the module delivers infrared. `picture`: linear light, any unit.
/// `darkness`: the share of the light that a full exposure would need, 1 in daylight.
ImageFrame16 exposeInfrared(const cv::Mat_<float>& picture, const InfraredSensor& sensor, double darkness,
                            Random& random);

/// The same for a sensor whose exposure follows the light of another picture, `metered`.
ImageFrame16 exposeInfrared(const cv::Mat_<float>& picture, const cv::Mat_<float>& metered,
                            const InfraredSensor& sensor, double darkness, Random& random);

/// Eight bits with gamma, BGRA in storage order, alpha 255. `picture`: linear red, green and blue.
ImageFrame32 exposeColour(const cv::Mat_<cv::Vec3f>& picture, const ColourSensor& sensor, double darkness,
                          Random& random);

}  // namespace fieldcal::synthesis
