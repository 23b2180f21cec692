#include "simulator/synthesis/Noise.h"
#include "simulator/synthesis/Panorama.h"
#include "simulator/synthesis/Worlds.h"

#include <gmock/gmock.h>

#include <cmath>

namespace fieldcal::synthesis {
namespace {

cv::Vec3f direction(float azimuthDeg, float elevationDeg) {
    constexpr float radian = 3.14159265F / 180;
    const float a = azimuthDeg * radian, e = elevationDeg * radian;
    return {std::cos(e) * std::sin(a), -std::sin(e), std::cos(e) * std::cos(a)};
}

/// Mean light of a ring of directions.
Spectrum meanAt(const DirectionField& field, float elevationDeg) {
    Spectrum sum;
    for (int i = 0; i < 720; ++i)
        sum += field.radiance(direction(static_cast<float>(i) * 0.5F, elevationDeg)) * (1 / 720.0F);
    return sum;
}

const DirectionField& park() {
    static const auto world = buildWorld("park", 4);
    return *world->field;
}

TEST(Scene, TheBandsDifferAsTheyDoOutdoors) {
    const Spectrum lawn = meanAt(park(), -12), sky = meanAt(park(), 40);
    EXPECT_GT(lawn.infrared, 2 * lawn.green);  // plants are bright in the near infrared
    EXPECT_GT(lawn.green, lawn.blue);
    EXPECT_LT(sky.infrared, 0.7F * sky.blue);  // and the clear sky is dark in it
}

TEST(Scene, TheSceneClosesBehindTheViewer) {
    // Nothing may jump where the azimuth wraps. Neighbours differ on both sides alike, so the wrap's step is compared
    // with the steps beside it, over many elevations.
    const auto step = [&](float from, float to) {
        double sum = 0;
        for (int i = -160; i < 160; ++i) {
            const float elevation = static_cast<float>(i) * 0.25F;
            sum += std::abs(park().radiance(direction(from, elevation)).infrared -
                            park().radiance(direction(to, elevation)).infrared);
        }
        return sum;
    };
    EXPECT_LT(step(179.999F, 180.001F), 0.5 * step(179.5F, 179.6F));
}

TEST(Panorama, InterpolatesAcrossTilesAndTheWrapWithoutShift) {
    class Ramp : public DirectionField {
        Spectrum radiance(const cv::Vec3f& d) const override { return {1 + d[0], 1 + d[1], 1 + d[2], 1}; }
    };
    const Ramp ramp;
    Panorama panorama(ramp);
    double sum = 0;
    int count = 0;
    for (int i = 0; i < 973; ++i)
        for (float elevation : {-30.0F, -4.29F, 0.0F, 12.0F}) {
            const float azimuth = -180 + static_cast<float>(i) * 0.37F;
            const cv::Vec3f d = direction(azimuth, elevation);
            const Spectrum s = panorama.sample(d * 3.0F);
            EXPECT_NEAR(s.red, 1 + d[0], 4e-4) << azimuth;
            EXPECT_NEAR(s.green, 1 + d[1], 4e-4) << azimuth;
            sum += s.blue - 1 - d[2];
            ++count;
        }
    EXPECT_NEAR(sum / count, 0, 1e-5);
}

TEST(Noise, HoldsNothingFinerThanASampleCovers) {
    const Noise noise(1);
    for (int i = 0; i < 50; ++i) {
        const float x = static_cast<float>(i) * 0.731F;
        EXPECT_EQ(noise.fractal(x, 2 * x, 1.0F, 0.6F), 0);  // not even the coarsest octave
        EXPECT_NEAR(noise.fractal(x, x, 4.0F, 1.0F), noise.fractal(x + 0.01F, x, 4.0F, 1.0F), 0.03);
    }
}

}  // namespace
}  // namespace fieldcal::synthesis
