#pragma once

#include "simulator/synthesis/Building.h"
#include "simulator/synthesis/DirectionField.h"
#include "simulator/synthesis/Ground.h"
#include "simulator/synthesis/Sky.h"
#include "simulator/synthesis/Sprite.h"

#include <array>
#include <memory>
#include <optional>
#include <vector>

namespace fieldcal::synthesis {

/// A sprite that stands upright on the ground and faces the viewer.
struct Standing {
    Sprite sprite;
    float azimuth = 0;   ///< radians
    float distance = 0;  ///< metres
};

/// Everything around one viewer. Built once, then only read.
class Scene : public DirectionField {
public:
    Scene(std::uint64_t seed, const Light& light, float eyeHeight, Paving paving, float cloudiness, float ridgeHeight);

    const Noise& noise() const { return noise_; }
    const Light& light() const { return light_; }
    Ground& ground() { return ground_; }
    float eyeHeight() const { return ground_.eyeHeight(); }

    void add(const UprightRectangle& place, const FacadeStyle& style);
    void addRoof(const UprightRectangle& front, float rise, bool tiled);
    void add(Standing standing) { standing_.push_back(std::move(standing)); }
    /// Shadow of a crown whose trunk stands at (x, z).
    void addCrown(float x, float z, float heightAboveGround, float radius);
    /// Must be called once after the last addition.
    void finish();

    Spectrum radiance(const cv::Vec3f& direction) const override;

private:
    static constexpr int sectors = 360;
    struct Sector {
        std::vector<int> fronts, roofs, standing;  // standing ones from near to far
    };

    Spectrum opaque(const cv::Vec3f& direction, const Sector& sector, float* distance) const;
    void sortIntoSectors();
    void fileRectangle(const UprightRectangle& place, float margin, std::vector<int> Sector::*list, int index);
    void fileArc(double from, double to, std::vector<int> Sector::*list, int index);

    Noise noise_;
    Light light_;
    Ground ground_;
    Backdrop backdrop_;
    Occluders occluders_;
    std::vector<Front> fronts_;
    std::vector<Roof> roofs_;
    std::vector<UprightRectangle> roofFronts_;
    std::vector<Standing> standing_;
    std::array<Sector, sectors> sectors_;
};

}  // namespace fieldcal::synthesis
