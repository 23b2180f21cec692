#pragma once

#include "simulator/synthesis/FacadeStyle.h"
#include "simulator/synthesis/Shadows.h"

namespace fieldcal::synthesis {

/// One upright face of a building, as seen from the viewer at the origin.
class Front {
public:
    Front(const UprightRectangle& place, const FacadeStyle& style, const Noise& noise, const Light& light);
    const UprightRectangle& place() const { return place_; }
    void castShadows(const Occluders& occluders);

    /// Distance along `direction` to this front, or a negative number.
    float hit(const cv::Vec3f& direction) const;
    Spectrum radiance(const cv::Vec3f& point, float footprint) const;

private:
    UprightRectangle place_;
    FacadeStyle style_;
    const Noise& noise_;
    const Light& light_;
    cv::Vec3f normal_;  // towards the viewer
    FrontSun sun_;
    ShadowMap shadows_;
};

/// A roof that rises from the upper edge of a front, away from the viewer.
class Roof {
public:
    Roof(const UprightRectangle& front, float rise, bool tiled, const Noise& noise, const Light& light);
    float hit(const cv::Vec3f& direction) const;
    Spectrum radiance(const cv::Vec3f& point, float footprint) const;

private:
    cv::Vec3f corner_, along_, up_, normal_;  // one end of the eave; unit vectors in and out of the roof's plane
    float length_, slant_;
    bool tiled_;
    const Noise& noise_;
    const Light& light_;
};

}  // namespace fieldcal::synthesis
