#include "tests/session/TestSession.h"

#include <QImage>
#include <gmock/gmock.h>

#include <fstream>
#include <functional>

namespace fieldcal::session {
namespace {

using ::testing::HasSubstr;

constexpr std::size_t kLargestText = std::size_t{60} << 20;
constexpr long kMaxMemoryKb = 512 << 10;

std::string repeated(const std::string& part, std::size_t count) {
    std::string out;
    out.reserve(part.size() * count);
    for (std::size_t i = 0; i < count; ++i)
        out += part;
    return out;
}

/// As many as the largest text takes, with a last one that needs no comma.
std::string listOf(const std::string& element) {
    return '[' + repeated(element + ',', kLargestText / (element.size() + 1)) + element + ']';
}

class HostileRecording : public SessionFolder {
protected:
    /// The most memory that the process had while it did the work; 0 where that cannot be measured.
    static long peakKb(const std::function<void()>& work) {
#if defined(__linux__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
        std::ofstream("/proc/self/clear_refs") << "5";
        work();
        std::ifstream status("/proc/self/status");
        for (std::string line; std::getline(status, line);) {
            if (line.rfind("VmHWM:", 0) == 0) return std::stol(line.substr(6));
        }
        return 0;
#else
        work();
        return 0;
#endif
    }
    void expectRefused(const std::string& frames, const std::string& reason) {
        writeText(frames);
        std::string why;
        EXPECT_LT(peakKb([&] { EXPECT_FALSE(readDescription(folder, &session, &why)); }), kMaxMemoryKb) << reason;
        EXPECT_THAT(why, HasSubstr(reason));
    }
    void writeText(const std::string& frames) {
        const std::size_t start = kSessionText.find("[{\"infrared\""), end = kSessionText.find(",\n \"truth\"");
        writeFile(path("session.json"),
                  QByteArray::fromStdString(kSessionText.substr(0, start) + frames + kSessionText.substr(end)));
    }
};

TEST_F(HostileRecording, TextsAreReadWithLittleMemoryAndNoFurtherThanTheirFault) {
    expectRefused(listOf("{}"), ": more than 1000000 values");
    expectRefused(listOf("0"), ": more than 1000000 values");
    expectRefused(listOf(R"({"a":[0]})"), ": more than 1000000 values");
    expectRefused('[' + repeated("{},", kMaxFrames) + "{}]", "frames: more than 100000 elements");
    expectRefused('[' + repeated("{},", kMaxFrames - 1) + "{}]", "frames[0].infrared: missing");
    const std::string name(480, 'n');
    writeText('[' + repeated(R"({"infrared":")" + name + R"(","third":"t","depth":"d"},)", kMaxFrames - 1) +
              R"({"infrared":"i","third":"t"}])");
    std::string why;
    EXPECT_LT(peakKb([&] { EXPECT_TRUE(readDescription(folder, &session, &why)) << why; }), kMaxMemoryKb);
    EXPECT_EQ(session.frames.size(), kMaxFrames);
}

TEST_F(HostileRecording, TheLargestPicturesAreReadWithLittleMemory) {
    std::string why;
    ASSERT_TRUE(readDescription(folder, &session, &why)) << why;
    session.third.width = 4096;
    session.third.height = 2049;
    EXPECT_FALSE(writeDescription(folder, session, &why));
    EXPECT_THAT(why, HasSubstr("third: more than 8388608 pixels"));
    session.third.height = 2048;
    for (Intrinsics* camera : {&session.infrared, &session.depth}) {
        camera->width = 4096;
        camera->height = 2048;
    }
    session.frames.resize(1);
    ASSERT_TRUE(writeDescription(folder, session, &why)) << why;
    QImage grey(4096, 2048, QImage::Format_Grayscale16), colour(4096, 2048, QImage::Format_RGB32);
    grey.fill(Qt::black);
    colour.fill(Qt::red);
    for (const char* file : {"a_infrared.png", "a_depth.png", "a_right.png"})
        ASSERT_TRUE(grey.save(QString::fromStdString(path(file))));
    ASSERT_TRUE(colour.save(QString::fromStdString(path("a_third.png"))));
    writeFile(path("a_platform.nv12"), QByteArray(1280 * 720 * 3 / 2, '\0'));
    FrameImages images;
    EXPECT_LT(peakKb([&] { EXPECT_TRUE(readImages(folder, session, 0, &images, &why)) << why; }), kMaxMemoryKb);
}

}  // namespace
}  // namespace fieldcal::session
