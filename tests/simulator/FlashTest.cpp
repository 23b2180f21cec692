#include "tests/simulator/FlashFixture.h"

#include <Eigen/Geometry>

#include <cmath>
#include <random>

namespace {

using fieldcal::session::Matrix3;
using fieldcal::session::readFile;
using fieldcal::session::writeFile;

using Matrix = Eigen::Matrix<double, 3, 3, Eigen::RowMajor>;

Matrix widened(const float* values) {
    return Eigen::Map<const Eigen::Matrix<float, 3, 3, Eigen::RowMajor>>(values).cast<double>();
}

/// The rotation of the quaternion (w, x, y, z), brought to length 1.
Matrix3 rotation(double w, double x, double y, double z) {
    Matrix3 out{};
    Eigen::Map<Matrix>(out.data()) = Eigen::Quaterniond(w, x, y, z).normalized().toRotationMatrix();
    return out;
}

/// What a block says with its third camera turned like this.
Matrix toldBy(const KXCalibRectParameters& block, const Matrix& third) {
    return widened(block.rectificationThird) * third * widened(block.rectificationInfrared).transpose();
}

bool isNarrowed(const Matrix3& expected, const float* seen) {
    return std::equal(expected.begin(), expected.end(), seen,
                      [](double value, float told) { return static_cast<float>(value) == told; });
}

class Flash : public FlashTest {
protected:
    /// Nine numbers of the rotation, three of the translation.
    using Extrinsics = std::vector<float>;
    static Extrinsics numbers(const KXCalibExtrinsics& told) {
        Extrinsics out(told.rotation, told.rotation + 9);
        out.insert(out.end(), told.translation, told.translation + 3);
        return out;
    }
    static Extrinsics third(KXDevice* device) {
        KXCalibExtrinsics told{};
        EXPECT_TRUE(device->thirdCamera()->zToThirdExtrinsics(&told));
        return numbers(told);
    }
    static Extrinsics platform(KXDevice* device) {
        KXCalibExtrinsics told{};
        EXPECT_TRUE(device->platformCamera()->zToPlatformExtrinsics(&told));
        return numbers(told);
    }
};

TEST_F(Flash, ANewOneSaysBitForBitWhatTheRecordingSays) {
    set("KXSIM_FLASH", "");
    std::mt19937 random(3);
    std::normal_distribution<double> normal;
    for (int i = 0; i < 400; ++i) {
        // Quarter turns, rotations by next to nothing and any others.
        const double w = i < 4 ? i == 0 : i < 100 ? std::pow(10, i / 5.0) : normal(random);
        session.third.rotation = rotation(w, i == 1 || i > 3 ? normal(random) : 0, i == 2, i == 3 ? 1 : 0);
        session.platform->rotation = rotation(normal(random), normal(random), normal(random), normal(random));
        session.platform->rectification = rotation(w, normal(random) * (i > 3), normal(random), 1e-9);
        ASSERT_TRUE(writeDescription(folder, session, &why)) << why;
        const std::shared_ptr<KXDevice> device = createReady();
        ASSERT_TRUE(isNarrowed(session.third.rotation, third(device.get()).data())) << i;
        ASSERT_TRUE(isNarrowed(session.platform->rotation, platform(device.get()).data())) << i;
        const KXCalibRectParameters block = blockOf(device.get());
        ASSERT_TRUE(isNarrowed(session.platform->rectification, block.rectificationPlatform)) << i;
        Matrix inBlock;
        std::memcpy(inBlock.data(), bytesOf(block).constData() + kThirdRotation, sizeof(Matrix3));
        ASSERT_TRUE(toldBy(block, inBlock).isApprox(Eigen::Map<Matrix>(session.third.rotation.data()), 1e-7)) << i;
    }
}

TEST_F(Flash, AFileIsLaidOutAsDocumented) {
    const QByteArray block = stored();
    const QByteArray made = readFile(flash);
    ASSERT_EQ(made.size(), kImageBytes);
    EXPECT_EQ(made.left(20).toHex(), "4b5853494d464c5301000000d56408004c9433bd");
    EXPECT_EQ(made.mid(kBankA, 12).toHex(), "4b58424b0100000000080000");
    EXPECT_EQ(made.mid(kBankA + kHeader, 2048), block);
    EXPECT_EQ(made.mid(kBankB), QByteArray(2064, '\xff'));
    EXPECT_EQ(withChecksums(made).left(kBankB), made.left(kBankB));
    const KXCalibRectParameters next = turned(blockOf(createReady().get()), 0.1);
    ASSERT_TRUE(write(createReady().get(), next));
    const QByteArray written = readFile(flash);
    EXPECT_EQ(written.left(kBankB), made.left(kBankB)) << "the other bank is not touched";
    EXPECT_EQ(written.mid(kBankB, 12).toHex(), "4b58424b0200000000080000");
    EXPECT_EQ(written.mid(kBankB + kHeader), bytesOf(next));
    EXPECT_EQ(withChecksums(written), written);
}

TEST_F(Flash, TheCompanionChangesOneRotationAndNothingElse) {
    KXCalibRectParameters block = blockOf(createReady().get());
    const QByteArray before = bytesOf(block);
    const Matrix3 wanted = rotation(9, 1, -2, 0.5);
    updater->updateThirdCamera(&block, wanted.data(), &block);
    QByteArray expected = before;
    std::memcpy(expected.data() + kThirdRotation, wanted.data(), 72);
    EXPECT_EQ(bytesOf(block), expected);
    KXCalibRectParameters both{};
    updater->updatePlatformCamera(&block, wanted.data(), &both);
    std::memcpy(expected.data() + kPlatformRotation, wanted.data(), 72);
    EXPECT_EQ(bytesOf(both), expected);
    const Matrix a = widened(block.rectificationThird), b = widened(block.rectificationInfrared);
    EXPECT_FALSE((a * b).isApprox(b * a, 1e-6)) << "the order of the matrices must matter";
}

TEST_F(Flash, AWriteCountsAfterItsCommitAndWorksAfterTheRest) {
    const std::shared_ptr<KXDevice> device = createCapturing();
    const KXCalibRectParameters before = blockOf(device.get());
    const Extrinsics thirdBefore = third(device.get());
    const Extrinsics platformBefore = platform(device.get());
    const KXCalibRectParameters next = turned(before, 0.25);
    KXPrivate* memory = device->privateInterface();
    EXPECT_FALSE(memory->writeRectParameters(&next, true)) << "capturing";
    EXPECT_FALSE(device->resumeDevice()) << "capturing";
    ASSERT_TRUE(device->stopCapture());
    EXPECT_FALSE(memory->writeRectParameters(nullptr, true));
    EXPECT_FALSE(memory->commitCalibration()) << "nothing is written";
    ASSERT_TRUE(memory->writeRectParameters(&next, true));
    EXPECT_EQ(bytesOf(blockOf(device.get())), bytesOf(before));
    EXPECT_EQ(stored(), bytesOf(before));
    ASSERT_TRUE(memory->commitCalibration());
    EXPECT_FALSE(memory->commitCalibration()) << "once";
    EXPECT_EQ(device->lastStatus(), 1);
    EXPECT_EQ(bytesOf(blockOf(device.get())), bytesOf(next));
    EXPECT_EQ(third(device.get()), thirdBefore) << "not loaded yet";
    ASSERT_TRUE(device->resumeDevice() && device->grab(true));
    EXPECT_FALSE(device->resumeDevice()) << "capturing";
    const Matrix expected = toldBy(next, Eigen::AngleAxisd(0.25, Eigen::Vector3d::UnitZ()).toRotationMatrix());
    EXPECT_TRUE(widened(third(device.get()).data()).isApprox(expected, 1e-7));
    const Extrinsics thirdAfter = third(device.get());
    EXPECT_TRUE(std::equal(thirdBefore.begin() + 9, thirdBefore.end(), thirdAfter.begin() + 9)) << "the translation";
    EXPECT_EQ(platform(device.get()), platformBefore);
    EXPECT_EQ(third(createReady().get()), third(device.get()));
}

TEST_F(Flash, ATemporaryBlockIsForgottenWithThePower) {
    const std::shared_ptr<KXDevice> device = createCapturing();
    const KXCalibRectParameters before = blockOf(device.get());
    const KXCalibRectParameters next = turned(before, 0.25);
    ASSERT_TRUE(device->stopCapture() && device->privateInterface()->writeRectParameters(&next, false));
    EXPECT_FALSE(device->privateInterface()->commitCalibration());
    ASSERT_TRUE(device->resumeDevice());
    EXPECT_NE(third(device.get()), third(createReady().get()));
    EXPECT_EQ(bytesOf(blockOf(device.get())), bytesOf(before));
    EXPECT_EQ(stored(), bytesOf(before));
}

TEST_F(Flash, WithoutAFileAWriteIsForgottenWithTheDeviceAndSaysSo) {
    set("KXSIM_FLASH", "");
    const std::shared_ptr<KXDevice> device = createReady();
    const KXCalibRectParameters before = blockOf(device.get());
    const KXCalibRectParameters next = turned(before, 0.25);
    ::testing::internal::CaptureStderr();
    EXPECT_TRUE(write(device.get(), next));
    EXPECT_EQ(::testing::internal::GetCapturedStderr(),
              "KXAPI: no KXSIM_FLASH: what was written is gone with this device\n");
    EXPECT_EQ(bytesOf(blockOf(device.get())), bytesOf(next));
    EXPECT_EQ(stored(), bytesOf(before));
    EXPECT_FALSE(device->resumeDevice()) << "there was no capture";
}

TEST_F(Flash, AFileThatVanishesFailsTheWriteInOneLine) {
    const std::shared_ptr<KXDevice> device = createReady();
    const KXCalibRectParameters block = blockOf(device.get());
    ASSERT_TRUE(device->privateInterface()->writeRectParameters(&block, true));
    QFile::remove(QString::fromStdString(flash));
    QDir().mkpath(QString::fromStdString(flash));
    ::testing::internal::CaptureStderr();
    EXPECT_FALSE(device->privateInterface()->commitCalibration());
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "KXAPI: " + flash + ": not a regular file\n");
    EXPECT_EQ(device->lastStatus(), 6);
    EXPECT_FALSE(write(device.get(), block));
    EXPECT_EQ(device->lastStatus(), 6);
    EXPECT_EQ(opening().second, 6);
    set("KXSIM_FLASH", folder + "/nowhere/flash");
    EXPECT_EQ(opening().second, 6);
}

TEST_F(Flash, NonsenseIsStoredButNeitherLoadedNorInTheWayOfABetterBlock) {
    const std::shared_ptr<KXDevice> device = createCapturing();
    const KXCalibRectParameters good = blockOf(device.get());
    KXCalibRectParameters bad = good;
    bad.rectificationThird[4] = 0.5F;
    ASSERT_TRUE(device->stopCapture() && write(device.get(), bad));
    EXPECT_FALSE(device->resumeDevice());
    EXPECT_EQ(device->lastStatus(), 4);
    EXPECT_EQ(opening(), std::make_pair("KXAPI: " + flash + ": rectificationThird: not a rotation\n", 0));
    EXPECT_FALSE(createReady()->calibrationValid());
    EXPECT_TRUE(write(device.get(), good) && device->resumeDevice() && device->grab(true));
    EXPECT_EQ(opening().second, 0);
}

TEST_F(Flash, APowerCutLeavesTheOldOrTheNewBlockAndAFlashThatCanBeWritten) {
    const KXCalibRectParameters older = turned(blockOf(createReady().get()), 0.1), newer = turned(older, -0.2);
    ASSERT_TRUE(write(createReady().get(), older));
    const QByteArray image = readFile(flash);  // of two whole banks
    const auto cut = [&](int step, int bytes) {
        SCOPED_TRACE("flash:" + std::to_string(step) + ":powercut+" + std::to_string(bytes));
        writeFile(flash, image);
        set("KXSIM_FAULTS", "flash:" + std::to_string(step) + ":powercut+" + std::to_string(bytes));
        const std::shared_ptr<KXDevice> device = createReady();
        EXPECT_FALSE(write(device.get(), newer) || device->grab(true));
        EXPECT_EQ(device->lastStatus(), 5) << "without power nothing works";
        set("KXSIM_FAULTS", "");
        const bool isLast = step == kLastStep, isWhole = isLast && bytes >= kHeader;
        EXPECT_TRUE((stored() == bytesOf(older) && !isWhole) || (stored() == bytesOf(newer) && isLast));
        const KXCalibRectParameters last = turned(older, 0.3);
        EXPECT_TRUE(write(createReady().get(), last));
        EXPECT_EQ(stored(), bytesOf(last));
    };
    for (int step = 1; step <= kLastStep; ++step) {
        const int size = step == 1 ? 2064 : step == kLastStep ? kHeader : 64;
        for (const int bytes : {0, size / 2, size})
            cut(step, bytes);
    }
}

}  // namespace
