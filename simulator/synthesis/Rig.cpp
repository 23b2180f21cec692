#include "simulator/synthesis/Rig.h"

#include "simulator/synthesis/Random.h"
#include "simulator/synthesis/Rotation.h"

#include <algorithm>

namespace fieldcal::synthesis {

namespace {

using Angles = std::array<double, 3>;

constexpr Angles kSearchRangeDeg{4.0, 1.5, 2.0};
constexpr Angles kAcceptedRangeDeg{3.9, 3.9, 2.9};  // range of the true angles themselves, with a small margin
constexpr double kFactorySpreadDeg = 0.4;

session::Intrinsics drawIntrinsics(Random& random, cv::Size size, double shortest, double longest) {
    session::Intrinsics k;
    k.width = size.width;
    k.height = size.height;
    k.fx = random.uniform(shortest, longest);
    k.fy = random.chance(0.5) ? k.fx : k.fx * random.uniform(0.995, 1.005);
    k.cx = size.width * 0.5 + random.uniform(-5, 5);
    k.cy = size.height * 0.5 + random.uniform(-5, 5);
    return k;
}

Angles drawFactoryAngles(Random& random) {
    Angles angles{};
    for (double& angle : angles)
        angle = random.uniform(-kFactorySpreadDeg, kFactorySpreadDeg);
    return angles;
}

Angles drawTrueAngles(Random& random, const Angles& factory, const std::optional<Angles>& drift) {
    Angles angles{};
    for (int i = 0; i < 3; ++i) {
        const double drawn = random.uniform(-0.95, 0.95) * kSearchRangeDeg[i];
        angles[i] = drift ? factory[i] + (*drift)[i]
                          : std::clamp(factory[i] + drawn, -kAcceptedRangeDeg[i], kAcceptedRangeDeg[i]);
    }
    return angles;
}

session::Vector3 drawTranslation(Random& random, double alongX) {
    return {alongX + random.uniform(-0.5, 0.5), random.uniform(-0.5, 0.5), random.uniform(-1, 1)};
}

session::PlatformCamera drawPlatform(Random& random) {
    session::PlatformCamera camera;
    camera.name = "HP Truevision 8MP Rear";
    static_cast<session::Intrinsics&>(camera.raw) = drawIntrinsics(random, {1280, 720}, 905, 955);
    camera.raw.k1 = random.uniform(0.03, 0.09);
    camera.raw.k2 = random.uniform(-0.14, -0.05);
    camera.raw.k3 = random.uniform(0, 0.04);
    camera.raw.p1 = random.uniform(-6e-4, 6e-4);
    camera.raw.p2 = random.uniform(-6e-4, 6e-4);
    camera.rectified = drawIntrinsics(random, {1280, 720}, 900, 960);
    camera.rectification = rowMajor(rotationFromAngles(drawFactoryAngles(random)));
    camera.translation = drawTranslation(random, -60);
    return camera;
}

void addPlatform(std::uint64_t seed, const RigOptions& options, Rig& rig) {
    Random random(seed, "platform camera");
    auto camera = drawPlatform(random);
    const Angles factory = drawFactoryAngles(random);
    camera.rotation = rowMajor(rotationFromAngles(factory));
    rig.truthPlatform = rowMajor(rotationFromAngles(drawTrueAngles(random, factory, options.platformDriftDeg)));
    rig.platform = camera;
}

}  // namespace

RightImager drawRightImager(std::uint64_t seed, const RigOptions& options) {
    Random random(seed, "right imager");
    RightImager imager;
    imager.gain = random.uniform(0.95, 1.05);
    imager.rowOffsetPx = random.uniform(-0.2, 0.2);
    imager.columnOffsetPx = random.uniform(-0.05, 0.05);
    imager.isApart = options.baselines;
    if (!options.misalignmentPx) return imager;
    imager.columnOffsetPx = -*options.misalignmentPx;
    imager.affectsDepth = true;
    return imager;
}

session::Intrinsics rightIntrinsics(const session::Intrinsics& left, const RightImager& right) {
    session::Intrinsics k = left;
    k.cx += right.columnOffsetPx;
    k.cy += right.rowOffsetPx;
    return k;
}

Rig drawRig(std::uint64_t seed, const RigOptions& options) {
    Random random(seed, "cameras");
    Rig rig;
    rig.right = drawRightImager(seed, options);
    rig.module.serial = 700000U + static_cast<std::uint32_t>(seed % 100000U);
    rig.module.firmware = "1.27.11";
    rig.module.software = "2.2.0";
    rig.infrared = drawIntrinsics(random, {628, 468}, 560, 600);
    rig.depth = rig.infrared;
    static_cast<session::Intrinsics&>(rig.third) = drawIntrinsics(random, {640, 480}, 450, 480);
    const Angles factory = drawFactoryAngles(random);
    rig.third.rotation = rowMajor(rotationFromAngles(factory));
    rig.third.translation = drawTranslation(random, 25);
    rig.truthThird = rowMajor(rotationFromAngles(drawTrueAngles(random, factory, options.thirdDriftDeg)));
    if (options.platform) addPlatform(seed, options, rig);
    if (options.baselines) return rig;
    rig.third.translation = {};
    if (rig.platform) rig.platform->translation = {};
    return rig;
}

}  // namespace fieldcal::synthesis
