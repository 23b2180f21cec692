#include "session/RecordedSession.h"
#include "simulator/synthesis/Synthesis.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>
#include <numeric>

namespace fieldcal::synthesis {
namespace {

using testing::HasSubstr;

class Folder {
public:
    explicit Folder(const std::string& name)
        : path_(std::filesystem::temp_directory_path() / ("fieldcal-synthesis-" + name)) {
        std::filesystem::remove_all(path_);
    }
    ~Folder() { std::filesystem::remove_all(path_); }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    std::string path() const { return path_.string(); }
    std::string bytes(const std::string& file) const {
        std::ifstream in(path_ / file, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }
    std::size_t files() const {
        return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(path_), {}));
    }

private:
    std::filesystem::path path_;
};

SynthesisOptions options(const std::string& world, unsigned seed, int stills) {
    SynthesisOptions o;
    o.world = world;
    o.seed = seed;
    o.stills = stills;
    return o;
}

void render(const Folder& folder, const SynthesisOptions& o) {
    std::string why;
    ASSERT_TRUE(synthesize(folder.path(), o, {}, &why)) << why;
}

session::FramePictures picturesOf(const Folder& folder, std::size_t still) {
    session::SessionDescription session;
    session::FramePictures pictures;
    std::string why;
    EXPECT_TRUE(session::readDescription(folder.path(), &session, &why) &&
                session::readPictures(folder.path(), session, still, &pictures, &why))
        << why;
    return pictures;
}

double meanInfrared(const session::FramePictures& pictures) {
    const auto* p = pictures.infrared.pixels();
    const std::size_t n = std::size_t{pictures.infrared.width()} * pictures.infrared.height();
    return std::accumulate(p, p + n, 0.0) / static_cast<double>(std::max<std::size_t>(1, n));
}

double meanColour(const session::FramePictures& pictures) {
    const auto* p = pictures.third.bytes();
    const std::size_t n = pictures.third.byteCount();
    return (std::accumulate(p, p + n, 0.0) - 255.0 * n / 4) / (0.75 * n);
}

TEST(Synthesis, EqualOptionsGiveEqualFilesAndThePlatformChangesNoOtherPicture) {
    Folder first("a"), second("b"), plain("c");
    auto o = options("square", 7, 1);
    o.platform = true;
    render(first, o);
    render(second, o);
    o.platform = false;
    render(plain, o);
    for (const char* file : {"session.json", "000_infrared.png", "000_third.png", "000_platform.png"}) {
        EXPECT_GT(first.bytes(file).size(), 1000U);
        EXPECT_EQ(first.bytes(file), second.bytes(file)) << file;
    }
    EXPECT_EQ(first.files(), 4U);
    EXPECT_EQ(first.bytes("000_infrared.png"), plain.bytes("000_infrared.png"));
    EXPECT_EQ(first.bytes("000_third.png"), plain.bytes("000_third.png"));
}

TEST(Synthesis, WritesAReadableSessionWhoseStillsDiffer) {
    Folder folder("stills");
    auto o = options("park", 2, 2);
    o.repeat = 9;
    int calls = 0;
    std::string why;
    ASSERT_TRUE(synthesize(
        folder.path(), o, [&](int done, int total) { calls += done * 10 + total; }, &why))
        << why;
    EXPECT_EQ(calls, 12 + 22);
    EXPECT_TRUE(session::verify(folder.path(), &why)) << why;

    session::SessionDescription session;
    ASSERT_TRUE(session::readDescription(folder.path(), &session, &why)) << why;
    EXPECT_EQ(session.grabCount(), 18);
    EXPECT_TRUE(session.truthThird.has_value());

    const auto one = picturesOf(folder, 0), other = picturesOf(folder, 1);
    double squares = 0;  // on the scale of the movement test: a quarter of the size, sixteen pixels in one
    for (std::size_t i = 0; i < one.third.byteCount(); i += 64)
        squares += std::pow(static_cast<double>(one.third.bytes()[i]) - other.third.bytes()[i], 2) * 3;
    EXPECT_GT(std::sqrt(squares), 8500);
}

TEST(Synthesis, LightIsWhatWasAskedFor) {
    Folder sunny("sunny"), night("night"), dim("dim");
    render(sunny, options("square", 3, 1));
    EXPECT_GT(meanInfrared(picturesOf(sunny, 0)), 300);
    EXPECT_LT(meanInfrared(picturesOf(sunny, 0)), 470);
    render(night, options("night", 3, 1));
    EXPECT_LT(meanInfrared(picturesOf(night, 0)), 40);
    auto o = options("night", 3, 1);
    o.brightness = 200;
    render(dim, o);
    EXPECT_NEAR(meanInfrared(picturesOf(dim, 0)), 200, 25);
    EXPECT_LT(meanColour(picturesOf(dim, 0)), 0.6 * meanColour(picturesOf(sunny, 0)));
}

TEST(Synthesis, TheWallShowsNothingButNoise) {
    Folder folder("wall");
    render(folder, options("wall", 6, 1));
    const auto pictures = picturesOf(folder, 0);
    const auto* p = pictures.infrared.pixels();
    const std::size_t width = pictures.infrared.width();
    // Means of neighbouring blocks: noise averages out, texture would stay.
    const auto block = [&](std::size_t x, std::size_t y) {
        double sum = 0;
        for (std::size_t i = 0; i < 256; ++i) {
            const std::size_t row = y + i / 16, column = x + i % 16;
            sum += p[row * width + column];
        }
        return sum / 256;
    };
    int structured = 0;
    for (std::size_t y = 0; y + 16 < 468; y += 16)
        for (std::size_t x = 0; x + 32 < width; x += 16)
            structured += std::abs(block(x, y) - block(x + 16, y)) > 8 ? 1 : 0;
    EXPECT_LT(structured, 5);  // of about 1060
}

TEST(Synthesis, RefusesWhatItCannotRender) {
    Folder folder("refused");
    std::string why;
    const auto refused = [&](const SynthesisOptions& o) {
        why.clear();
        return !synthesize(folder.path(), o, {}, &why) && !why.empty() && !std::filesystem::exists(folder.path());
    };
    EXPECT_TRUE(refused(options("moon", 1, 1)));
    for (const auto& name : worldNames())
        EXPECT_THAT(why, HasSubstr(name));
    EXPECT_TRUE(refused(options("square", 1, 0)));
    EXPECT_TRUE(refused(options("square", 1, 1000)));

    auto drift = options("square", 1, 1);
    drift.thirdDriftDeg = {{0, std::numeric_limits<double>::quiet_NaN(), 0}};
    EXPECT_TRUE(refused(drift));
    auto bright = options("square", 1, 1);
    bright.brightness = std::numeric_limits<double>::infinity();
    EXPECT_TRUE(refused(bright));
    auto never = options("square", 1, 1);
    never.repeat = 0;
    EXPECT_TRUE(refused(never));

    why.clear();
    EXPECT_FALSE(synthesize("/dev/null/session", options("wall", 1, 1), {}, &why));
    EXPECT_THAT(why, HasSubstr("/dev/null/session"));
}

}  // namespace
}  // namespace fieldcal::synthesis
