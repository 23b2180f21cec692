#pragma once

#include "camera/ImageFrame.h"
#include "simulator/synthesis/Random.h"

#include <opencv2/core.hpp>

namespace fieldcal::synthesis {

struct InfraredSensor {
    double meanLevel = 400;  ///< target of the exposure, 0 … 1023
    double electronsPerStep = 14;
    double readNoise = 2.2;    ///< grey levels
    double vignetting = 0.25;  ///< relative loss of light in the corners
    double veil = 0.08;        ///< share of the light that the lens scatters over the whole image
};

struct ColourSensor {
    double meanLevel = 0.20;  ///< target of the exposure; full scale is 1, linear light
    double electronsAtFull = 8000;
    double readNoise = 0.0010;
    double vignetting = 0.22;
    double veil = 0.03;
    double sharpening = 0.5;  ///< strength of the camera's edge enhancement
};

/// The bands of the radiance from `renderImage` that an infrared or a colour camera sees.
cv::Mat_<float> infraredBand(const cv::Mat_<cv::Vec4f>& image);
cv::Mat_<cv::Vec3f> colourBands(const cv::Mat_<cv::Vec4f>& image);

/// Exposes an infrared image with ten bits. `image`: linear light in any unit. `darkness`: available light relative
/// to that of a full exposure, 1 in daylight.
ImageFrame16 exposeInfrared(const cv::Mat_<float>& image, const InfraredSensor& sensor, double darkness,
                            Random& random);

/// The same for a sensor whose exposure is metered on another image, `metered`.
ImageFrame16 exposeInfrared(const cv::Mat_<float>& image, const cv::Mat_<float>& metered, const InfraredSensor& sensor,
                            double darkness, Random& random);

/// Exposes a colour image with eight bits and gamma: BGRA in storage order, alpha 255. `image`: linear red, green and
/// blue.
ImageFrame32 exposeColour(const cv::Mat_<cv::Vec3f>& image, const ColourSensor& sensor, double darkness,
                          Random& random);

}  // namespace fieldcal::synthesis
