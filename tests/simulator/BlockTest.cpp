#include "kxapi/RotationUpdater.h"
#include "tests/simulator/TestModule.h"

#include <Eigen/Geometry>

#include <cmath>
#include <cstring>
#include <random>

namespace {

using fieldcal::session::Matrix3;
using fieldcal::session::writeFile;

/// The positions of the rotations in the simulated block.
constexpr int kThirdRotation = 256;
constexpr int kPlatformRotation = 512;

using Matrix = Eigen::Matrix<double, 3, 3, Eigen::RowMajor>;

Matrix widened(const float* values) {
    return Eigen::Map<const Eigen::Matrix<float, 3, 3, Eigen::RowMajor>>(values).cast<double>();
}

/// Returns the rotation of the normalised quaternion (w, x, y, z).
Matrix3 rotation(double w, double x, double y, double z) {
    Matrix3 out{};
    Eigen::Map<Matrix>(out.data()) = Eigen::Quaterniond(w, x, y, z).normalized().toRotationMatrix();
    return out;
}

/// Returns the extrinsics of a block with the given rotation of the third camera.
Matrix reportedRotation(const KXCalibRectParameters& block, const Matrix& third) {
    return widened(block.rectificationThird) * third * widened(block.rectificationInfrared).transpose();
}

bool isNarrowed(const Matrix3& expected, const float* seen) {
    return std::equal(expected.begin(), expected.end(), seen,
                      [](double value, float stored) { return static_cast<float>(value) == stored; });
}

template <typename Record>
QByteArray bytesOf(const Record& record) {
    return {reinterpret_cast<const char*>(&record), sizeof(record)};
}

/// A module whose parameter block is a file.
class BlockTest : public ModuleTest {
protected:
    BlockTest() : updater(KXRotationUpdater::load(&why)), file(temporary.path().toStdString() + "/block") {
        set("KXSIM_FLASH", file);
    }
    void SetUp() override { ASSERT_TRUE(library != nullptr && updater != nullptr) << why; }

    static KXCalibRectParameters blockOf(KXDevice* device) {
        KXCalibRectParameters block{};
        EXPECT_TRUE(device->rectParameters(&block)) << device->lastStatus();
        return block;
    }
    /// Returns the block that a newly connected device reads.
    QByteArray stored() const { return bytesOf(blockOf(createReady().get())); }

    /// Returns the block with this third rotation, a small one about Z.
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

    /// Nine numbers of the rotation, three of the translation.
    using Extrinsics = std::vector<float>;
    static Extrinsics numbers(const KXCalibExtrinsics& extrinsics) {
        Extrinsics out(extrinsics.rotation, extrinsics.rotation + 9);
        out.insert(out.end(), extrinsics.translation, extrinsics.translation + 3);
        return out;
    }
    static Extrinsics third(KXDevice* device) {
        KXCalibExtrinsics extrinsics{};
        EXPECT_TRUE(device->thirdCamera()->zToThirdExtrinsics(&extrinsics));
        return numbers(extrinsics);
    }
    static Extrinsics platform(KXDevice* device) {
        KXCalibExtrinsics extrinsics{};
        EXPECT_TRUE(device->platformCamera()->zToPlatformExtrinsics(&extrinsics));
        return numbers(extrinsics);
    }

    std::shared_ptr<const KXRotationUpdater> updater;
    std::string file;
};

TEST_F(BlockTest, ANewOneSaysBitForBitWhatTheRecordingSays) {
    set("KXSIM_FLASH", "");
    std::mt19937 random(3);
    std::normal_distribution<double> normal;
    for (int i = 0; i < 150; ++i) {
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
        ASSERT_TRUE(reportedRotation(block, inBlock).isApprox(Eigen::Map<Matrix>(session.third.rotation.data()), 1e-7))
            << i;
    }
}

TEST_F(BlockTest, TheCompanionChangesOneRotationAndNothingElse) {
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

TEST_F(BlockTest, AWriteCountsAfterItsCommitAndWorksAfterTheRest) {
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
    const Matrix expected =
        reportedRotation(next, Eigen::AngleAxisd(0.25, Eigen::Vector3d::UnitZ()).toRotationMatrix());
    EXPECT_TRUE(widened(third(device.get()).data()).isApprox(expected, 1e-7));
    const Extrinsics thirdAfter = third(device.get());
    EXPECT_TRUE(std::equal(thirdBefore.begin() + 9, thirdBefore.end(), thirdAfter.begin() + 9)) << "the translation";
    EXPECT_EQ(platform(device.get()), platformBefore);
    EXPECT_EQ(third(createReady().get()), third(device.get()));
}

TEST_F(BlockTest, WithoutAFileAWriteIsForgottenWithTheDeviceAndSaysSo) {
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
}

TEST_F(BlockTest, AFileThatIsNoBlockIsNamedInOneLineAndABadBlockCanBeReplaced) {
    const std::shared_ptr<KXDevice> device = createCapturing();
    const KXCalibRectParameters good = blockOf(device.get());
    KXCalibRectParameters bad = good;
    bad.rectificationThird[4] = 0.5F;
    ASSERT_TRUE(device->stopCapture() && write(device.get(), bad));
    EXPECT_FALSE(device->resumeDevice());
    EXPECT_EQ(device->lastStatus(), 4);
    EXPECT_EQ(opening(), std::make_pair("KXAPI: " + file + ": rectificationThird: not a rotation\n", 0));
    EXPECT_FALSE(createReady()->calibrationValid());
    EXPECT_TRUE(write(device.get(), good) && device->resumeDevice() && device->grab(true) && device->stopCapture());

    writeFile(file, QByteArray(2047, 'x'));
    EXPECT_EQ(opening(), std::make_pair("KXAPI: " + file + ": not the size of a parameter block\n", 6));
    QFile::remove(QString::fromStdString(file));
    QDir().mkpath(QString::fromStdString(file));
    EXPECT_EQ(opening(), std::make_pair("KXAPI: " + file + ": not a regular file\n", 6));
    EXPECT_FALSE(write(device.get(), good));
    EXPECT_EQ(device->lastStatus(), 6);
    set("KXSIM_FLASH", folder + "/nowhere/block");
    EXPECT_EQ(opening().second, 6);
}

TEST_F(BlockTest, AnOldReadShowsTheBlockBeforeTheWrite) {
    const QByteArray before = stored();
    const KXCalibRectParameters next = turned(blockOf(createReady().get()), 0.25);
    set("KXSIM_FAULTS", "rectParameters:1:old");
    const std::shared_ptr<KXDevice> device = createReady();
    ASSERT_TRUE(write(device.get(), next));
    EXPECT_EQ(bytesOf(blockOf(device.get())), before);
    EXPECT_EQ(bytesOf(blockOf(device.get())), bytesOf(next));
}

#if !defined(_WIN32)
TEST_F(BlockTest, ARearCameraThatIsHiddenIsInTheBlockAllTheSame) {
    set("KXSIM_SESSION", "");
    const QByteArray factory = stored();
    for (const char* hidden : {"absent", "uncalibrated"}) {
        set("KXSIM_FLASH", file + hidden);
        set("KXSIM_PLATFORM", hidden);
        EXPECT_EQ(createReady()->platformCamera(), nullptr);
        EXPECT_EQ(stored(), factory) << hidden;
        set("KXSIM_PLATFORM", "calibrated");
        EXPECT_NE(createReady()->platformCamera(), nullptr);
        EXPECT_EQ(stored(), factory) << "a later run, after " << hidden;
    }
}
#endif

}  // namespace
