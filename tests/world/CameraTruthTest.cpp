#include "session/Nv12.h"
#include "simulator/kxapi/Rectification.h"
#include "simulator/synthesis/Rig.h"
#include "simulator/world/Cameras.h"
#include "simulator/world/Emitter.h"
#include "simulator/world/Worlds.h"
#include "tests/world/Scenes.h"

#include <gmock/gmock.h>

#include <cmath>

namespace fieldcal::world {
namespace {

synthesis::StillSettings noiseless() {
    synthesis::StillSettings s;
    s.infrared = {150, 1e12, 0, 0, 0};
    s.colour = {0.10, 1e12, 0, 0, 0, 0};
    return s;
}

/// A light that fades smoothly from its centre, so that few samples per pixel determine its centroid. Texture in
/// standard deviations.
class SoftDot : public Material {
public:
    Look at(const Place& place) const override {
        Look look;
        const float v = 0.1F + 0.4F * std::exp(-0.5F * place.texture.dot(place.texture));
        look.surface.gloss = {v, v, v, v};
        return look;
    }
};

/// Dots of known position in front of a uniform background, some near and some far, so that baselines are visible.
struct Dots {
    Pose pose;
    std::vector<cv::Vec3d> centres;
    std::unique_ptr<World> world;

    explicit Dots(std::uint64_t seed) {
        synthesis::Random random(seed, "dots");
        pose = poseOf({random.uniform(-20, 20), random.uniform(-180, 180), random.uniform(-10, 10)},
                      {random.uniform(-3, 3), random.uniform(-3, 3), random.uniform(-3, 3)});
        TestScene scene;
        const auto background = scene.material<Glow>(0.1F), bright = scene.material<SoftDot>();
        addBall(scene.mesh, cv::Vec3f(pose.centre), {60, 60, 60}, 24, background);
        for (int row = 0; row < 5; ++row)
            for (int column = 0; column < 7; ++column) {
                const double z = row % 2 == column % 2 ? random.uniform(1.2, 3) : random.uniform(4, 25);
                add(scene.mesh, cv::Vec3d((column - 3) * 0.15 * z, (row - 2) * 0.15 * z, z), bright);
            }
        world = std::make_unique<World>(std::move(scene.mesh), std::move(scene.materials), scene.daylight,
                                        std::move(scene.noise));
    }

private:
    /// A small square perpendicular to the camera's axis, ten standard deviations wide.
    void add(Mesh& mesh, const cv::Vec3d& there, MaterialId material) {
        const cv::Matx33d world_camera = pose.camera_world.t();
        const cv::Vec3f x(world_camera * cv::Vec3d(1, 0, 0)), y(world_camera * cv::Vec3d(0, 1, 0)), z = x.cross(y);
        centres.push_back(pose.centre + world_camera * there);
        const cv::Vec3f centre(centres.back());
        const auto reach = static_cast<float>(0.016 * there[2]);
        const auto corner = [&](float s, float t) {
            return mesh.add({centre + x * (s * reach) + y * (t * reach), z, {5 * s, 5 * t}});
        };
        const auto a = corner(-1, -1), b = corner(1, -1), c = corner(1, 1), d = corner(-1, 1);
        mesh.add(a, b, c, material);
        mesh.add(a, c, d, material);
    }
};

/// Centroid of the intensity above the background around `guess`; NaN near a border.
cv::Point2d centroid(const cv::Mat_<float>& image, cv::Point2d guess) {
    constexpr int reach = 10;
    const int cx = cvRound(guess.x), cy = cvRound(guess.y);
    const cv::Rect around(cx - reach, cy - reach, 2 * reach + 1, 2 * reach + 1);
    if ((around & cv::Rect({}, image.size())) != around) return {std::nan(""), 0};
    double low = 0, high = 0, weight = 0;
    cv::minMaxLoc(image(around), &low, &high);
    cv::Point2d sum(0, 0);
    for (int y = around.y; y < around.br().y; ++y)
        for (int x = around.x; x < around.br().x; ++x) {
            const double w = std::max(0.0, image(y, x) - low - 0.1 * (high - low));
            sum += cv::Point2d(x, y) * w;
            weight += w;
        }
    return high > 1.4 * low ? sum / weight : cv::Point2d(std::nan(""), 1);
}

using Projection = std::function<cv::Point2d(const cv::Vec3d&)>;

/// Checks that every dot that `project` maps inside the image is found there.
void expectDots(const Dots& dots, const cv::Mat_<float>& image, const Projection& project) {
    int found = 0;
    cv::Point2d sum(0, 0);
    for (const auto& centre : dots.centres) {
        const cv::Point2d expected = project(dots.pose.camera_world * (centre - dots.pose.centre));
        const cv::Point2d seen = centroid(image, expected);
        if (std::isnan(seen.x)) {
            EXPECT_EQ(seen.y, 0) << "nothing bright at " << expected;
            continue;
        }
        EXPECT_LT(cv::norm(seen - expected), 0.05) << "at " << expected << ", seen at " << seen;
        sum += seen - expected;
        ++found;
    }
    ASSERT_GE(found, 20);
    EXPECT_LT(cv::norm(sum / found), 0.01);
}

cv::Vec3d moved(const session::Matrix3& rotation, const session::Vector3& millimetres, const cv::Vec3d& point) {
    return cv::Matx33d(rotation.data()) * point + cv::Vec3d(millimetres.data()) / 1000;
}

/// Pixel of a point in a colour camera, by the conventions: (cx, cy) is the principal point times s after scaling by s.
cv::Point2d colourPixel(const session::Intrinsics& k, const session::Intrinsics& infrared, const cv::Vec3d& p) {
    const double sx = infrared.fx / k.fx, sy = infrared.fy / k.fy;
    return {(infrared.fx * p[0] / p[2] + sx * k.cx + 0.5) / sx - 0.5,
            (infrared.fy * p[1] / p[2] + sy * k.cy + 0.5) / sy - 0.5};
}

cv::Mat_<float> infraredOf(const ImageFrame16& frame) {
    cv::Mat_<float> out;
    cv::Mat_<std::uint16_t>(static_cast<int>(frame.height()), static_cast<int>(frame.width()),
                            const_cast<std::uint16_t*>(frame.pixels()))
        .convertTo(out, CV_32F);
    return out;
}

cv::Mat_<float> greenOf(const ImageFrame32& frame) {
    cv::Mat_<float> out(static_cast<int>(frame.height()), static_cast<int>(frame.width()));
    for (int i = 0; i < out.rows * out.cols; ++i)
        out(i / out.cols, i % out.cols) = frame.bytes()[4 * i + 1];
    return out;
}

cv::Mat_<float> lumaOf(const std::vector<std::uint8_t>& nv12) {
    cv::Mat_<float> out;
    cv::Mat_<std::uint8_t>(session::kPlatformHeight, session::kPlatformWidth, const_cast<std::uint8_t*>(nv12.data()))
        .convertTo(out, CV_32F);
    return out - 16;
}

/// The rear camera's image after rectification by the tablet's software.
cv::Mat_<float> rectified(const session::PlatformCamera& camera, const std::vector<std::uint8_t>& nv12) {
    const auto f = [](double v) { return static_cast<float>(v); };
    const auto& r = camera.raw;
    const auto& k = camera.rectified;
    const KXCalibIntrinsicsNonRectified raw{f(r.fx), f(r.fy), f(r.cx), f(r.cy), r.width, r.height,
                                            f(r.k1), f(r.k2), f(r.p1), f(r.p2), f(r.k3)};
    const KXCalibIntrinsicsRectified target{f(k.fx), f(k.fy), f(k.cx), f(k.cy), k.width, k.height};
    std::vector<std::uint32_t> table(static_cast<std::size_t>(k.width) * static_cast<std::size_t>(k.height));
    kxsim::fillRectificationTable(raw, camera.rectification.data(), target, table.data());
    ImageFrame32 source, destination;
    source.resize(static_cast<std::uint32_t>(r.width), static_cast<std::uint32_t>(r.height));
    destination.resize(static_cast<std::uint32_t>(k.width), static_cast<std::uint32_t>(k.height));
    session::bgraFromNv12(nv12.data(), r.width, r.height, source.bytes());
    kxsim::rectify(table.data(), source.bytes(), k.width, k.width, k.height, destination.bytes());
    return greenOf(destination);
}

TEST(WorldCameras, MarkedPointsLieWhereModelsAndPosePutThemInAllCameras) {
    for (std::uint64_t seed = 1; seed <= 10; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        const auto rig = synthesis::drawRig(seed, {true, {}, {}});
        const Dots dots(seed);
        const auto images = Cameras(rig, {2, 2, 1}).take(*dots.world, {dots.pose}, noiseless(), {}, seed);

        const auto& k = rig.infrared;
        expectDots(dots, infraredOf(images.infrared), [&](const cv::Vec3d& p) {
            return cv::Point2d(k.fx * p[0] / p[2] + k.cx, k.fy * p[1] / p[2] + k.cy);
        });
        expectDots(dots, greenOf(images.third), [&](const cv::Vec3d& p) {
            return colourPixel(rig.third, k, moved(*rig.truthThird, rig.third.translation, p));
        });
        expectDots(dots, lumaOf(images.platform), [&](const cv::Vec3d& p) {
            const cv::Vec3d there = moved(*rig.truthPlatform, rig.platform->translation, p);
            return synthesis::rawFromRectified(*rig.platform, colourPixel(rig.platform->rectified, k, there));
        });
        expectDots(dots, rectified(*rig.platform, images.platform), [&](const cv::Vec3d& p) {
            const cv::Vec3d there = moved(*rig.truthPlatform, rig.platform->translation, p);
            return colourPixel(rig.platform->rectified, k, there);
        });
    }
}

TEST(WorldCameras, MarkedPointsLieADisparityFurtherLeftInTheRightPicture) {
    for (std::uint64_t seed = 1; seed <= 10; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        synthesis::RigOptions wishes;
        wishes.baselines = seed != 3;
        if (seed > 5) wishes.misalignmentPx = 0.1 * static_cast<double>(seed) - 1;
        const auto rig = synthesis::drawRig(seed, wishes);
        const Dots dots(seed);
        const auto images = Cameras(rig, {2, 1, 1}).take(*dots.world, {dots.pose}, noiseless(), {}, seed);
        const auto left = infraredOf(images.infrared), right = infraredOf(images.right);

        const auto& k = rig.infrared;
        const double apart = wishes.baselines ? 0.055 : 0;
        const double offset = wishes.misalignmentPx ? -*wishes.misalignmentPx : rig.right.columnOffsetPx;
        expectDots(dots, right, [&](const cv::Vec3d& p) {
            const cv::Point2d inLeft(k.fx * p[0] / p[2] + k.cx, k.fy * p[1] / p[2] + k.cy);
            return inLeft + cv::Point2d(offset - k.fx * apart / p[2], rig.right.rowOffsetPx);
        });
        EXPECT_NEAR(cv::mean(right)[0] / cv::mean(left)[0], rig.right.gain, 0.005);
    }
}

TEST(WorldCameras, EachInfraredImagerHasItsOwnNoiseAtOneExposure) {
    TestScene scene;
    addBall(scene.mesh, {0, 0, 0}, {60, 60, 60}, 24, scene.material<Glow>(0.1F));
    const World world = scene.finish();
    auto rig = synthesis::drawRig(1, {});
    rig.right = {};
    rig.right.gain = 0.8;
    const auto images = Cameras(rig, {1, 1, 1}).take(world, {}, {}, {}, 1);
    const auto left = infraredOf(images.infrared), right = infraredOf(images.right);
    cv::Scalar mean, apart, same;
    cv::meanStdDev(right * (1 / 0.8) - left, mean, apart);
    EXPECT_NEAR(mean[0], 0, 0.5);
    // The photon noise is about 5.3 levels in both images, slightly more in the one with less light.
    EXPECT_GT(apart[0], 6.5);
    EXPECT_LT(apart[0], 9.5);
}

/// A slanted plane 3 m away; returns z along the ray (x, y, 1) of the camera at the origin that looks along +z.
struct SlantedPlane {
    cv::Vec3d point{0, 0, 3}, normal{0.4, -0.3, -1};
    World world;

    SlantedPlane() : world(build()) {}
    World build() const {
        TestScene scene;
        const cv::Vec3f along = unit(cv::Vec3f(normal).cross({0, 1, 0})), up = unit(cv::Vec3f(normal).cross(along));
        addQuad(scene.mesh, {cv::Vec3f(point) - along * 20 - up * 20, along * 40, up * 40}, scene.even({1, 1, 1, 1}));
        return scene.finish();
    }
    double depth(const cv::Vec2f& ray) const { return point.dot(normal) / normal.dot({ray[0], ray[1], 1}); }
};

View depthView(const World& world, const synthesis::Rig& rig) {
    const auto rays = synthesis::infraredRays(rig.depth, 2);
    View view;
    const RenderedImage image = renderImage(world, rays, {});
    view.infrared = synthesis::infraredBand(image.light);
    view.rightImager = rig.right;
    seeDepth(world, rays, {}, image, rig.depth, &view);
    return view;
}

/// Where dots provide all the texture that plain surfaces lack.
StereoModel inADimRoom() {
    StereoModel model;
    model.emitter = true, model.light = 0.02;
    return model;
}

TEST(WorldCameras, DepthIsAlongTheAxisOfTheInfraredCameraAndHoldsTheRangeOfTheModule) {
    const auto rig = synthesis::drawRig(4, {});
    const SlantedPlane plane;
    const View view = depthView(plane.world, rig);
    const auto rays = synthesis::infraredRays(rig.depth, 1);
    StereoModel model = inADimRoom();
    model.farthest = 3.5;
    const auto frame = depthFrame(view, model, 1);
    int near = 0, far = 0;
    for (int y = 0; y < view.depth.rows; y += 7)
        for (int x = 0; x < view.depth.cols; x += 7) {
            const double truth = plane.depth(rays.rays(y, x));
            ASSERT_NEAR(view.depth(y, x), truth, 1e-4 + truth * 1e-5);
            const int measured = frame.pixels()[y * view.depth.cols + x];
            // One quantisation step and five standard deviations of disparity, converted to depth.
            const double blur =
                1000 * truth * truth / (rig.depth.fx * kStereoBaselineM) * (model.stepPx + 5 * model.noisePx);
            if (truth < 3.3) {
                EXPECT_NEAR(measured, truth * 1000, blur);
                ++near;
            }
            if (truth > 3.8) {
                EXPECT_EQ(measured, 0);
                ++far;
            }
        }
    EXPECT_GT(near, 500);
    EXPECT_GT(far, 300);
}

TEST(WorldCameras, AMisalignedPairMovesTheModulesOwnDepth) {
    const SlantedPlane plane;
    for (const double shiftPx : {0.5, -0.4}) {
        synthesis::RigOptions wishes;
        wishes.misalignmentPx = shiftPx;
        const auto rig = synthesis::drawRig(4, wishes);
        const View view = depthView(plane.world, rig);
        const auto frame = depthFrame(view, inADimRoom(), 1);
        const double scale = rig.depth.fx * kStereoBaselineM;
        double errorPx = 0;
        int count = 0;
        for (int y = 0; y < view.depth.rows; y += 3)
            for (int x = 0; x < view.depth.cols; x += 3) {
                const int measured = frame.pixels()[y * view.depth.cols + x];
                if (measured == 0) continue;
                errorPx += scale / (measured / 1000.0) - scale / view.depth(y, x) - shiftPx;
                ++count;
            }
        ASSERT_GT(count, 3000);
        EXPECT_NEAR(errorPx / count, 0, 0.01);
    }
}

TEST(WorldCameras, TheSecondInfraredCameraMissesAStripBesideNearThings) {
    TestScene scene;
    const auto grey = scene.even({1, 1, 1, 1});
    addQuad(scene.mesh, {{-20, -20, 4}, {40, 0, 0}, {0, 40, 0}}, grey);
    addQuad(scene.mesh, {{-0.2F, -20, 1}, {0.4F, 0, 0}, {0, 40, 0}}, grey);
    const World world = scene.finish();
    const auto rig = synthesis::drawRig(2, {});
    const auto frame = depthFrame(depthView(world, rig), inADimRoom(), 1);
    const auto at = [&](double x) {
        return frame.pixels()[frame.width() * 200 + static_cast<unsigned>(std::lround(rig.depth.cx + x))];
    };
    // The strip is as wide as the difference of the disparities, to the left of the near object.
    const double edge = -0.2 * rig.depth.fx, width = rig.depth.fx * kStereoBaselineM * (1 - 0.25);
    EXPECT_NEAR(at(edge + 6), 1000, 30);
    EXPECT_EQ(at(edge - width / 2), 0);
    EXPECT_NEAR(at(edge - width - 6), 4000, 300);
    EXPECT_NEAR(at(-edge + 6), 4000, 300);
}

TEST(WorldCameras, PlainSurfacesHaveNoDepthUntilDotsFallOnThem) {
    const auto rig = synthesis::drawRig(5, {});
    const auto stage = buildWorld("wall", 1);
    const World& wall = *stage->world;
    View view = depthView(wall, rig);
    const auto found = [&](const StereoModel& model) {
        const auto frame = depthFrame(view, model, 1);
        const int count = view.depth.rows * view.depth.cols;
        return 100 * std::count_if(frame.pixels(), frame.pixels() + count, [](int z) { return z > 0; }) / count;
    };
    StereoModel sun, sunAndDots, room;
    sunAndDots.emitter = true;
    room.emitter = true, room.light = 1.0 / 16;
    EXPECT_LT(found(sun), 10);
    EXPECT_LT(found(sunAndDots), 10);
    EXPECT_GT(found(room), 80);
    // The dots themselves: clearly visible in the room, hardly in the sun.
    cv::Scalar mean, plain, sunny, dotted;
    const View before = view;
    cv::meanStdDev(view.infrared, mean, plain);
    view.infrared = before.infrared.clone();
    addEmitterDots(1, &view);
    cv::meanStdDev(view.infrared, mean, sunny);
    view.infrared = before.infrared.clone();
    addEmitterDots(1.0 / 16, &view);
    cv::meanStdDev(view.infrared, mean, dotted);
    EXPECT_LT(sunny[0] - plain[0], 0.02 * mean[0]);
    EXPECT_GT(dotted[0], 0.15 * mean[0]);
}

TEST(WorldCameras, TheDotsFallOnTheSamePlacesForBothImagers) {
    auto rig = synthesis::drawRig(5, {});
    rig.right = {};
    constexpr int disparity = 16;
    const auto z = static_cast<float>(rig.infrared.fx * kStereoBaselineM / disparity);
    TestScene scene;
    addQuad(scene.mesh, {{-20, -20, z}, {40, 0, 0}, {0, 40, 0}}, scene.even({0.5F, 0.5F, 0.5F, 0.5F}));
    const World world = scene.finish();
    View view = Cameras(rig, {1, 1, 1}).see(world, {}, {}, false);
    const cv::Mat plainLeft = view.infrared.clone(), plainRight = view.right.clone();
    addEmitterDots(1.0 / 16, &view);
    const cv::Rect inLeft(disparity, 0, view.right.cols - disparity, view.right.rows);
    const cv::Mat left = cv::Mat(view.infrared - plainLeft)(inLeft);
    const cv::Mat right = cv::Mat(view.right - plainRight)(inLeft - cv::Point(disparity, 0));
    cv::Scalar mean, contrast;
    cv::meanStdDev(left, mean, contrast);
    ASSERT_GT(contrast[0], 0.02);
    EXPECT_LT(cv::norm(left - right), 0.05 * cv::norm(left));
}

}  // namespace
}  // namespace fieldcal::world
