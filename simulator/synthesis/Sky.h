#pragma once

#include "simulator/synthesis/Light.h"
#include "simulator/synthesis/Noise.h"

namespace fieldcal::synthesis {

/// The background of every scene: sky with clouds, and ridges along the horizon.
class Backdrop {
public:
    /// `cloudiness` 0 (clear) … 1; `ridgeHeight` in radians, 0 for none.
    Backdrop(const Noise& noise, float cloudiness, float ridgeHeight)
        : noise_(noise), cloudiness_(cloudiness), ridgeHeight_(ridgeHeight) {}

    /// `drift`: distance by which the clouds have moved, in multiples of their height above the ground.
    Spectrum radiance(const cv::Vec3f& direction, float footprint, const cv::Vec2f& drift = {0, 0}) const;
    Spectrum skyOnly(const cv::Vec3f& direction, float footprint, const cv::Vec2f& drift = {0, 0}) const;
    /// Scattered light, into which distant objects fade.
    static Spectrum haze() { return {0.50F, 0.57F, 0.66F, 0.30F}; }
    /// Haze attenuates visible light more than the near infrared.
    static Spectrum throughAir(const Spectrum& light, float metres);

private:
    Spectrum ridge(int number, float azimuth, float elevation, float footprint) const;

    const Noise& noise_;
    float cloudiness_;
    float ridgeHeight_;
};

}  // namespace fieldcal::synthesis
