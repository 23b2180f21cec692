#pragma once

#include "kxapi/RotationUpdater.h"
#include "tests/session/Crc32.h"
#include "tests/simulator/TestModule.h"

#include <cmath>
#include <cstring>

/// Where things are in a flash file, counted by hand.
constexpr int kImageBytes = 4148;
constexpr int kBankA = 20;
constexpr int kBankB = 2084;
constexpr int kHeader = 16;
constexpr int kThirdRotation = 256;
constexpr int kPlatformRotation = 512;
constexpr int kLastStep = 34;

inline void putNumber(QByteArray* image, int at, std::uint32_t number) {
    for (int i = 0; i < 4; ++i)
        (*image)[at + i] = static_cast<char>(number >> (8 * i));
}

/// Makes the three checksums of a whole image right again.
inline QByteArray withChecksums(QByteArray image) {
    putNumber(&image, 16, fieldcal::testing::crc32(image.left(16)));
    for (const int bank : {kBankA, kBankB}) {
        putNumber(&image, bank + 12,
                  fieldcal::testing::crc32(image.mid(bank + 4, 4) + image.mid(bank + kHeader, 2048)));
    }
    return image;
}

template <typename Record>
QByteArray bytesOf(const Record& record) {
    return {reinterpret_cast<const char*>(&record), sizeof(record)};
}

/// A module whose flash is a file.
class FlashTest : public ModuleTest {
protected:
    FlashTest() : updater(KXRotationUpdater::load(&why)), flash(temporary.path().toStdString() + "/flash") {
        set("KXSIM_FLASH", flash);
    }
    void SetUp() override { ASSERT_TRUE(library != nullptr && updater != nullptr) << why; }

    static KXCalibRectParameters blockOf(KXDevice* device) {
        KXCalibRectParameters block{};
        EXPECT_TRUE(device->rectParameters(&block)) << device->lastStatus();
        return block;
    }
    /// What a device that is plugged in now reads.
    QByteArray stored() const { return bytesOf(blockOf(createReady().get())); }

    /// The block with this third rotation, a small one about Z.
    KXCalibRectParameters turned(const KXCalibRectParameters& block, double angle) const {
        const double rotation[9] = {std::cos(angle), -std::sin(angle), 0, std::sin(angle), std::cos(angle), 0, 0, 0, 1};
        KXCalibRectParameters out{};
        updater->updateThirdCamera(&block, rotation, &out);
        return out;
    }
    static bool write(KXDevice* device, const KXCalibRectParameters& block) {
        KXPrivate* memory = device->privateInterface();
        return memory != nullptr && memory->writeRectParameters(&block, true) && memory->commitCalibration();
    }

    std::shared_ptr<const KXRotationUpdater> updater;
    std::string flash;
};
