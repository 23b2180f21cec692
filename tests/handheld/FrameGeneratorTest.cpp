#include "simulator/handheld/FrameGenerator.h"
#include "simulator/synthesis/Rig.h"

#include <gmock/gmock.h>
#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <array>
#include <cmath>

namespace fieldcal::handheld {
namespace {

using namespace std::chrono_literals;

LightCourse light(const std::string& name) {
    LightCourse course;
    EXPECT_TRUE(LightCourse::find(name, &course));
    return course;
}

synthesis::Rig rig() {
    return synthesis::drawRig(3, {});
}

/// A fingerprint by which frame sets are compared.
struct Fingerprint {
    std::vector<std::uint16_t> infrared, right, depth;
    std::vector<std::uint8_t> third;
    explicit Fingerprint(const session::FrameImages& p)
        : infrared(p.infrared.pixels(), p.infrared.pixels() + p.infrared.byteCount() / 2),
          right(p.right.pixels(), p.right.pixels() + p.right.byteCount() / 2),
          depth(p.depth.pixels(), p.depth.pixels() + p.depth.byteCount() / 2),
          third(p.third.bytes(), p.third.bytes() + p.third.byteCount()) {}
    bool operator==(const Fingerprint& other) const {
        return infrared == other.infrared && right == other.right && depth == other.depth && third == other.third;
    }
};

/// The motion measured by the frame selection: differences of colour images at a quarter of the size.
double motion(const session::FrameImages& a, const session::FrameImages& b) {
    const auto quarter = [](const session::FrameImages& p) {
        cv::Mat small = cv::Mat(480, 640, CV_8UC4, const_cast<std::uint8_t*>(p.third.bytes())).clone();
        cv::pyrDown(small, small);
        cv::pyrDown(small, small);
        return small;
    };
    return cv::norm(quarter(a), quarter(b), cv::NORM_L2);
}

TEST(FrameGenerator, EqualSeedsGiveEqualFramesWhichRestMoveAndRestAgain) {
    FrameGenerator one("mountains", 3, rig(), light("sun"), false), other("mountains", 3, rig(), light("sun"), false);
    std::vector<session::FrameImages> last;
    int still = 0, moving = 0, restsAfterMoving = 0;
    for (int i = 0; i < 150; ++i) {
        ASSERT_TRUE(one.advance(60s) && other.advance(60s));
        ASSERT_TRUE(i % 7 != 0 || Fingerprint(*one.current()) == Fingerprint(*other.current())) << i;
        last.push_back(*one.current());
        if (last.size() < 9) continue;
        const double most = std::max(motion(last[4], last[8]), motion(last[0], last[8]));
        still += most < 4000 ? 1 : 0;
        moving += most > 8500 ? 1 : 0;
        restsAfterMoving += moving > 0 && most < 4000 ? 1 : 0;
        last.erase(last.begin());
    }
    EXPECT_GT(still, 60);
    EXPECT_GT(moving, 4);
    EXPECT_GT(restsAfterMoving, 20);
}

TEST(FrameGenerator, WithTheEmitterOnTheHandStays) {
    FrameGenerator generator("mountains", 3, rig(), light("sun"), false);
    generator.setEmitter(true);
    std::vector<session::FrameImages> first;
    for (int i = 0; i < 200; ++i) {
        ASSERT_TRUE(generator.advance(60s));
        if (first.empty()) first.push_back(*generator.current());
        ASSERT_LT(motion(first.front(), *generator.current()), 4000) << i;
    }
}

TEST(FrameGenerator, DotsAreSeenAsLongAsTheEmitterIsOnAndNotAFrameLonger) {
    FrameGenerator plain("near", 3, rig(), light("indoors"), false), dotted("near", 3, rig(), light("indoors"), false);
    dotted.setEmitter(true);
    const auto count = [](const Fingerprint& some, const Fingerprint& other) {
        int brighter = 0, brighterRight = 0, deeper = 0;
        for (std::size_t i = 0; i < some.infrared.size(); ++i) {
            brighter += some.infrared[i] > other.infrared[i] + 60 ? 1 : 0;
            brighterRight += some.right[i] > other.right[i] + 60 ? 1 : 0;
            deeper += some.depth[i] > 0 && other.depth[i] == 0 ? 1 : 0;
        }
        return std::array{brighter, brighterRight, deeper};
    };
    for (int i = 0; i < 30; ++i) {
        dotted.setEmitter(i < 12);
        ASSERT_TRUE(plain.advance(60s) && dotted.advance(60s));
        const Fingerprint without(*plain.current()), with(*dotted.current());
        if (i >= 12) {
            ASSERT_TRUE(with == without) << i;
            continue;
        }
        const auto more = count(with, without), less = count(without, with);
        EXPECT_GT(std::min(more[0], more[1]), 300) << i;
        EXPECT_EQ(std::max(less[0], less[1]), 0) << i;
        EXPECT_GT(more[2], 2 * less[2]) << i;
        EXPECT_EQ(with.third, without.third) << i;
    }
}

TEST(LightCourse, DarkensAndBrightensWhatIsSeen) {
    // Means of infrared, as used by the light gate: lit above 130, lost again at 110.
    const auto mean = [](const std::string& name, int frames) {
        FrameGenerator generator("mountains", 3, rig(), light(name), false);
        for (int i = 0; i < frames; ++i)
            EXPECT_TRUE(generator.advance(60s));
        const Fingerprint fingerprint(*generator.current());
        double sum = 0;
        for (const std::uint16_t value : fingerprint.infrared)
            sum += value;
        return sum / static_cast<double>(fingerprint.infrared.size());
    };
    EXPECT_GT(mean("sun", 1), 200);
    EXPECT_LT(mean("shade", 1), 100);
    EXPECT_LT(mean("indoors", 1), 40);
    EXPECT_LT(mean("walk-out", 60), 40);
    EXPECT_GT(mean("walk-out", 220), 200);
    const LightCourse clouds = light("clouds");
    EXPECT_EQ(clouds.at(1), 1);
    EXPECT_LT(clouds.at(12), 0.25);
    EXPECT_EQ(clouds.at(17), 1);
    LightCourse none;
    EXPECT_FALSE(LightCourse::find("disco", &none));
}

/// The ray of a pixel before and after the rotation must differ by exactly that rotation, in every camera.
TEST(Lens, TurningMovesPixelsToTheRaysOfTheTurnedCamera) {
    const auto cameras = synthesis::drawRig(5, {true, {}, {}});
    const cv::Matx33d before_after = poseBetween({cv::Matx33d::eye(), {}}, {tremor(1, 1, 1.5), {}}, 1).camera_world;
    for (const Lens& lens : {Lens::ofInfrared(cameras.infrared), Lens::ofThird(cameras), Lens::ofPlatform(cameras)}) {
        const auto map = pixelsBeforeTurning(lens, before_after);
        for (const cv::Point pixel : {cv::Point(0, 0), cv::Point(333, 201), cv::Point(lens.size()) - cv::Point(1, 1)}) {
            const cv::Point2d after = lens.ray(pixel), before = lens.ray(cv::Point2d(cv::Point2f(map(pixel))));
            const cv::Vec3d turned = before_after * cv::Vec3d(after.x, after.y, 1);
            EXPECT_NEAR(before.x, turned[0] / turned[2], 0.02 / lens.focalPx()) << pixel;
            EXPECT_NEAR(before.y, turned[1] / turned[2], 0.02 / lens.focalPx()) << pixel;
        }
    }
}

TEST(ViewTurner, BetweenTwoViewsEachFillsWhatTheOtherLacks) {
    // Both views show the same scene, whose radiance is a function of the direction.
    const auto cameras = rig();
    const ViewTurner turner(cameras);
    const Lens lens = Lens::ofInfrared(cameras.infrared);
    const Lens rightLens = Lens::ofInfrared(synthesis::rightIntrinsics(cameras.infrared, cameras.right));
    const auto painted = [&](const cv::Matx33d& camera_world) {
        RenderedView seen{{camera_world, {}}, {}};
        seen.view.third = cv::Mat_<cv::Vec3f>(480, 640, cv::Vec3f(1, 1, 1));
        seen.view.unmatched = cv::Mat_<std::uint8_t>(468, 628, std::uint8_t{0});
        seen.view.infrared.create(468, 628);
        seen.view.right.create(468, 628);
        seen.view.depth.create(468, 628);
        for (int y = 0; y < 468; ++y)
            for (int x = 0; x < 628; ++x) {
                const auto directionOf = [&](const Lens& eye) {
                    const cv::Point2d ray = eye.ray(cv::Point2d(x, y));
                    return camera_world.t() * cv::Vec3d(ray.x, ray.y, 1);
                };
                const cv::Vec3d direction = directionOf(lens), right = directionOf(rightLens);
                seen.view.right(y, x) = static_cast<float>(right[0] / cv::norm(right) + 2);
                seen.view.infrared(y, x) = static_cast<float>(direction[0] / cv::norm(direction) + 2);
                // A sphere of five metres around the camera.
                seen.view.depth(y, x) = static_cast<float>(5 / cv::norm(direction));
            }
        return seen;
    };
    Hand hand(4, -4, 9);
    const auto from = painted(hand.rest(0).pose.camera_world), to = painted(hand.rest(1).pose.camera_world);
    const cv::Matx33d way = poseBetween({from.pose.camera_world, {}}, {to.pose.camera_world, {}}, 0.5).camera_world;
    const auto wanted = painted(way).view;
    world::View made;
    const ViewTurner::Transition transition{from, to, {way, way}, {0, 0}};
    turner.transitionInfrared(transition, &made);
    turner.transitionRight(transition, &made);
    for (int y = 20; y < 448; y += 13)
        for (int x = 1; x < 627; x += 13) {
            ASSERT_NEAR(made.infrared(y, x), wanted.infrared(y, x), 2e-3) << x << ' ' << y;
            ASSERT_NEAR(made.right(y, x), wanted.right(y, x), 2e-3) << x << ' ' << y;
            ASSERT_NEAR(made.depth(y, x), wanted.depth(y, x), 0.02) << x << ' ' << y;
        }
}

}  // namespace
}  // namespace fieldcal::handheld
