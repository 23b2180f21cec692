#include "session/RecordedSession.h"
#include "simulator/handheld/Synthesis.h"
#include "simulator/world/Worlds.h"

#include <gmock/gmock.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>

namespace fieldcal::handheld {
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

TEST(Synthesis, EqualOptionsGiveEqualFilesAndThePlatformChangesNoOtherPicture) {
    Folder first("a"), second("b"), plain("c");
    std::string why;
    auto o = options("mountains", 7, 1);
    EXPECT_TRUE(synthesize(plain.path(), o, {}, &why)) << why;
    o.platform = true;
    EXPECT_TRUE(synthesize(first.path(), o, {}, &why) && synthesize(second.path(), o, {}, &why)) << why;
    for (const char* file :
         {"session.json", "000_infrared.png", "000_right.png", "000_third.png", "000_depth.png", "000_platform.png"}) {
        EXPECT_GT(first.bytes(file).size(), 500U) << file;
        EXPECT_EQ(first.bytes(file), second.bytes(file)) << file;
    }
    EXPECT_EQ(first.bytes("000_infrared.png"), plain.bytes("000_infrared.png"));
    EXPECT_EQ(first.bytes("000_third.png"), plain.bytes("000_third.png"));
    EXPECT_EQ(first.bytes("000_right.png"), plain.bytes("000_right.png"));
    EXPECT_NE(first.bytes("000_right.png"), first.bytes("000_infrared.png"));
    EXPECT_TRUE(session::verify(first.path(), &why)) << why;
}

TEST(Synthesis, RefusesWhatItCannotRender) {
    Folder folder("refused");
    std::string why;
    const auto refused = [&](const SynthesisOptions& o) {
        why.clear();
        return !synthesize(folder.path(), o, {}, &why) && !why.empty() && !std::filesystem::exists(folder.path());
    };
    EXPECT_TRUE(refused(options("moon", 1, 1)));
    for (const auto& name : world::worldNames())
        EXPECT_THAT(why, HasSubstr(name));
    EXPECT_TRUE(refused(options("square", 1, 0)));
    EXPECT_TRUE(refused(options("square", 1, 1000)));
    auto drift = options("square", 1, 1);
    drift.thirdDriftDeg = {{0, std::numeric_limits<double>::quiet_NaN(), 0}};
    EXPECT_TRUE(refused(drift));
    auto never = options("square", 1, 1);
    never.repeat = 0;
    EXPECT_TRUE(refused(never));
    why.clear();
    EXPECT_FALSE(synthesize("/dev/null/session", options("wall", 1, 1), {}, &why));
    EXPECT_THAT(why, HasSubstr("/dev/null/session"));
}

}  // namespace
}  // namespace fieldcal::handheld
