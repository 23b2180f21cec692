#include "tests/simulator/FlashFixture.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

namespace {

using fieldcal::session::readFile;
using fieldcal::session::writeFile;
using ::testing::HasSubstr;

class FlashFuzz : public FlashTest {
protected:
    FlashFuzz() {
        createReady();
        whole = readFile(flash);
    }
    int below(int bound) { return static_cast<int>(random() % static_cast<unsigned>(bound)); }

    /// Bytes changed, moved, cut off or added.
    QByteArray damaged() {
        QByteArray out = whole;
        for (int i = below(3); i >= 0; --i) {
            const int at = below(out.size());
            const int kind = below(8);
            if (kind == 0) out.truncate(std::max(at, 1));
            if (kind == 1) out.append(out.mid(at, 20));
            if (kind == 2) out.replace(at, 8, out.mid(below(out.size()), 8));
            // Most of a bank is reserved: the headers get their share.
            const int target = kind < 6 ? below(std::min(out.size(), kBankA + kHeader)) : at;
            if (kind > 2 && target < out.size()) out[target] = static_cast<char>(out.at(target) ^ (1 << below(8)));
        }
        return out;
    }

    /// A number of the valid block that becomes another one, with right checksums.
    QByteArray lying() {
        constexpr double kNonsense[] = {std::numeric_limits<double>::quiet_NaN(), 1e300, -1e9, 2, -1, 0, 1e-40,
                                        std::numeric_limits<double>::infinity()};
        QByteArray out = whole;
        const double wrong = kNonsense[below(8)];
        if (below(2) == 0) {
            const int camera = below(2) == 0 ? kThirdRotation : kPlatformRotation;
            out.replace(kBankA + kHeader + camera + 8 * below(12), 8, bytesOf(wrong));
        } else {
            constexpr int kMatrices[] = {1272, 1416, 1488};
            const auto narrow = static_cast<float>(std::isfinite(wrong) ? std::clamp(wrong, -1e30, 1e30) : wrong);
            out.replace(kBankA + kHeader + kMatrices[below(3)] + 4 * below(9), 4, bytesOf(narrow));
        }
        return withChecksums(out);
    }

    /// Opened with everything finite, or refused in one line that names the file. Which.
    bool opens(const QByteArray& image, std::string* refusal) {
        writeFile(flash, image);
        const auto [text, status] = opening();
        *refusal = text;
        if (!text.empty()) {
            EXPECT_TRUE(status == 4 || status == 6 || (status == 0 && !createReady()->calibrationValid())) << status;
            EXPECT_EQ(text.find("KXAPI: " + flash + ": "), 0U) << text;
            EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 1) << text;
            return false;
        }
        EXPECT_EQ(status, 0);
        const std::shared_ptr<KXDevice> device = createCapturing();
        KXCalibExtrinsics told{};
        EXPECT_TRUE(device->grab(true) && device->thirdCamera()->zToThirdExtrinsics(&told));
        for (const float value : told.rotation)
            EXPECT_LE(std::abs(value), 1.01F);
        for (const float value : told.translation)
            EXPECT_LE(std::abs(value), 1e5F);
        return true;
    }

    QByteArray whole;
    std::mt19937 random{5};
};

TEST_F(FlashFuzz, DamagedFilesAreRefusedInOneLineOrPlayed) {
    int refused = 0;
    int meaningless = 0;
    std::string refusal;
    for (int i = 0; i < 1000; ++i) {
        refused += opens(damaged(), &refusal) ? 0 : 1;
        meaningless += opens(lying(), &refusal) ? 0 : 1;
        ASSERT_TRUE(i % 50 != 0 || opens(whole, &refusal)) << refusal;
    }
    EXPECT_GT(refused, 600);
    EXPECT_GT(meaningless, 800);
}

TEST_F(FlashFuzz, EveryKindOfWrongIsNamed) {
    std::string refusal;
    const auto patched = [&](int at, const QByteArray& bytes) {
        return withChecksums(QByteArray(whole).replace(at, bytes.size(), bytes));
    };
    const QByteArray notANumber("\0\0\xc0\x7f", 4);
    const QByteArray notADouble("\0\0\0\0\0\0\xf8\x7f", 8);
    constexpr int kBlock = kBankA + kHeader;
    const std::pair<QByteArray, const char*> cases[] = {
        {whole.left(100), "not the size"},
        {whole + '\xff', "not the size"},
        {QByteArray(), "not the size"},
        {patched(0, "k"), "not a module's flash"},
        {patched(8, "\2"), "unknown version"},
        {patched(12, "\1"), "another module"},
        {QByteArray(whole).replace(17, 1, "?"), "identity's checksum"},
        {QByteArray(whole).replace(kBlock + 5, 1, "?").replace(kBlock, 1, "!"), "neither bank"},
        {patched(kBankA + 4, QByteArray(4, '\0')), "neither bank"},
        {patched(kBankA + 4, QByteArray(4, '\xff')), "neither bank"},
        {patched(kBankA + 9, "\7"), "neither bank"},
        {patched(kBlock + 1272, notANumber), "rectificationInfrared: "},
        {patched(kBlock + 1420, notANumber), "rectificationThird: "},
        {patched(kBlock + 1520, notANumber), "rectificationPlatform: "},
        {patched(kBlock + 256, notADouble), "rotation of the third camera: "},
        {patched(kBlock + 512, notADouble), "rotation of the platform camera: "},
        {patched(kBlock + 256 + 72, notADouble), "translation of the third camera: "},
        {patched(kBlock + 512 + 88, notADouble), "translation of the platform camera: "}};
    for (const auto& [image, reason] : cases) {
        EXPECT_FALSE(opens(image, &refusal)) << reason;
        EXPECT_THAT(refusal, HasSubstr(reason));
    }
}

TEST_F(FlashFuzz, TheHigherSequenceWinsAndTheLastOneIsTheLast) {
    const std::shared_ptr<KXDevice> device = createReady();
    const KXCalibRectParameters factory = blockOf(device.get());
    ASSERT_TRUE(write(device.get(), turned(factory, 0.1)));
    QByteArray image = readFile(flash);
    putNumber(&image, kBankA + 4, 0x7FFFFFFF);
    writeFile(flash, withChecksums(image));
    EXPECT_EQ(stored(), bytesOf(factory));
    EXPECT_FALSE(write(device.get(), factory));
    EXPECT_EQ(device->lastStatus(), 6);
}

}  // namespace
