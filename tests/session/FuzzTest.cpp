#include "session/PngFile.h"
#include "tests/session/Crc32.h"
#include "tests/session/TestSession.h"

#include <QtEndian>

#include <random>

namespace fieldcal::session {
namespace {

/// Seeded damage: bytes are changed, removed, duplicated or truncated, and sometimes a part of the file is copied
/// elsewhere.
class Damage {
public:
    explicit Damage(unsigned seed) : random_(seed) {}

    QByteArray operator()(QByteArray bytes) {
        for (int i = below(4); i >= 0 && !bytes.isEmpty(); --i)
            change(&bytes);
        return bytes;
    }

private:
    int below(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(bound)); }

    void change(QByteArray* bytes) {
        const int at = below(bytes->size());
        const int length = below(12);
        switch (below(5)) {
            case 0:
                (*bytes)[at] = static_cast<char>(below(256));
                break;
            case 1:
                bytes->replace(at, length, bytes->mid(below(bytes->size()), below(12)));
                break;
            case 2:
                bytes->truncate(at);
                break;
            case 3:
                bytes->replace(at, 1, "9e9");
                break;
            default:
                (*bytes)[at] = static_cast<char>(bytes->at(at) ^ (1 << below(8)));
        }
    }

    std::mt19937 random_;
};

/// Corrects the checksums of a PNG file's chunks, as far as the chunks can be parsed.
QByteArray withChecksums(QByteArray bytes) {
    const auto length = [&](int at) { return qFromBigEndian<quint32>(bytes.constData() + at); };
    for (int at = 8; at + 12 <= bytes.size() && length(at) <= static_cast<quint32>(bytes.size() - at - 12);) {
        const int data = static_cast<int>(length(at));
        qToBigEndian(fieldcal::testing::crc32(bytes.mid(at + 4, data + 4)), bytes.data() + at + 8 + data);
        at += 12 + data;
    }
    return bytes;
}

using Fuzz = SessionFolder;

TEST_F(Fuzz, DamagedDescriptionsAreReadOrRefusedInOneLine) {
    const QByteArray whole = QByteArray::fromStdString(kSessionText);
    Damage damage(1);
    int refused = 0;
    for (int i = 0; i < 1500; ++i) {
        SessionDescription read;
        std::string why;
        writeFile(path("session.json"), damage(whole));
        if (readDescription(folder, &read, &why)) {
            EXPECT_GT(read.grabCount(), 0);
            continue;
        }
        ++refused;
        EXPECT_EQ(why.find(path("session.json") + ": "), 0U);
        EXPECT_EQ(why.find('\n'), std::string::npos);
    }
    EXPECT_GT(refused, 750);
    EXPECT_LT(refused, 1500);
}

TEST_F(Fuzz, DamagedPicturesAreReadOrRefused) {
    const QByteArray third = readFile(path("b_third.png"));
    const QByteArray infrared = readFile(path("b_infrared.png"));
    const PngExpectation colour{path("b_third.png"), "key", PngKind::Colour8, 8, 6};
    const PngExpectation grey{path("b_infrared.png"), "key", PngKind::Grey16, 6, 4};
    Damage damage(2);
    int reached = 0;
    for (int i = 0; i < 2000; ++i) {
        // Every other file has correct checksums, so that the damage reaches the decoder.
        const auto spoilt = [&](const QByteArray& whole) {
            return i % 2 == 0 ? damage(whole) : withChecksums(damage(whole));
        };
        writeFile(colour.file, spoilt(third));
        writeFile(grey.file, spoilt(infrared));
        ImageFrame32 readColour;
        ImageFrame16 readGrey;
        std::string why;
        EXPECT_TRUE(!readColourPng(colour, &readColour, &why) || readColour.byteCount() == 192U);
        EXPECT_TRUE(!readGreyPng(grey, &readGrey, &why) || readGrey.byteCount() == 48U);
        if (checkPng(colour, &why)) ++reached;
    }
    EXPECT_GT(reached, 80);
}

}  // namespace
}  // namespace fieldcal::session
