#include "sound/Cue.h"

#include <QtEndian>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace fieldcal {
namespace {

template <typename Number>
Number at(const QByteArray& wave, int offset) {
    return qFromLittleEndian<Number>(wave.constData() + offset);
}

/// Every player reads the file by the lengths in its header.
TEST(CueTest, EachCueIsAWholeWaveFileThatIsShortAudibleAndItsOwn) {
    std::set<QByteArray> different;
    for (const char* name : {"photo", "lightLost", "found", "failed", "stored"}) {
        SCOPED_TRACE(name);
        const QByteArray wave = cueWave(cueNamed(name).value());
        ASSERT_GT(wave.size(), 44);
        EXPECT_EQ(wave.left(4), "RIFF");
        EXPECT_EQ(at<quint32>(wave, 4), static_cast<quint32>(wave.size() - 8));
        EXPECT_EQ(wave.mid(8, 8), "WAVEfmt ");
        EXPECT_EQ(wave.mid(36, 4), "data");
        EXPECT_EQ(at<quint32>(wave, 40), static_cast<quint32>(wave.size() - 44));
        EXPECT_EQ(at<quint32>(wave, 28), at<quint32>(wave, 24) * at<quint16>(wave, 32)) << "bytes per second";
        const double seconds = static_cast<double>(wave.size() - 44) / at<quint32>(wave, 28);
        EXPECT_LT(seconds, 1);
        int loudest = 0;
        for (int offset = 44; offset < wave.size(); offset += 2)
            loudest = std::max<int>(loudest, std::abs(at<qint16>(wave, offset)));
        EXPECT_GT(loudest, 8000);
        EXPECT_LT(loudest, 20000);
        EXPECT_LT(std::abs(at<qint16>(wave, wave.size() - 2)), 50) << "no click at the end";
        different.insert(wave);
    }
    EXPECT_EQ(different.size(), static_cast<std::size_t>(kCueCount));
    EXPECT_FALSE(cueNamed("applause"));
}

}  // namespace
}  // namespace fieldcal
