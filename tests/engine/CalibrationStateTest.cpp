#include "engine/CalibrationState.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

namespace vq::testing {
namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;

std::uint32_t bitsOf(float value) {
    std::uint32_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

float withBits(std::uint32_t bits) {
    float value = 0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

void append(std::string* bytes, std::uint32_t word) {
    for (int shift = 0; shift < 32; shift += 8)
        bytes->push_back(static_cast<char>(word >> shift & 0xFFU));
}

/// Every field is different; the coefficients include a quiet and a signalling NaN with payloads, −0 and a denormal.
CameraRecord oddRecord(int base) {
    const auto number = static_cast<float>(base);
    return {base,          -base,         number + 0.1F,         number + 0.2F,
            number + 0.3F, number + 0.4F, withBits(0x7FC12345U), withBits(0xFFA00001U),
            -0.0F,         withBits(1),   number + 0.5F};
}

CalibrationState oddState() {
    CalibrationState state{oddRecord(628), oddRecord(640), oddRecord(1280), Pose::Zero(), 0xFEDCBA98U};
    for (int i = 0; i < 16; ++i)
        state.pose(i / 4, i % 4) = 1.5F * static_cast<float>(i);
    return state;
}

/// The file of `oddState`, written out by hand.
std::string oddBytes() {
    std::string bytes;
    for (const int base : {628, 640, 1280}) {
        const CameraRecord record = oddRecord(base);
        append(&bytes, static_cast<std::uint32_t>(base));
        append(&bytes, static_cast<std::uint32_t>(-base));
        for (const float value : {record.fx, record.fy, record.cx, record.cy})
            append(&bytes, bitsOf(value));
        for (const std::uint32_t word : {0x7FC12345U, 0xFFA00001U, bitsOf(record.k3), 0x80000000U, 1U})
            append(&bytes, word);
    }
    for (int i = 0; i < 16; ++i)
        append(&bytes, bitsOf(1.5F * static_cast<float>(i)));
    return bytes + "\x98\xBA\xDC\xFE";
}

class CalibrationStateFile : public ::testing::Test {
protected:
    ~CalibrationStateFile() override { std::filesystem::remove(path_); }

    void store(const std::string& bytes) const {
        std::ofstream file(path_, std::ios::binary);
        file << bytes;
    }
    std::string stored() const {
        std::ifstream file(path_, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    /// Returns the bytes of the state's file.
    std::string bytesOf(const CalibrationState& state) const {
        EXPECT_TRUE(state.writeToFile(path_));
        return stored();
    }

    std::string path_ = ::testing::TempDir() + "state-" + std::to_string(std::random_device{}());
};

TEST_F(CalibrationStateFile, HoldsEveryFieldBitForBitWithK3BeforeP1AndP2) {
    EXPECT_EQ(bytesOf(oddState()), oddBytes());
    EXPECT_EQ(oddBytes().size(), 200U);

    CalibrationState read;
    ASSERT_TRUE(read.readFromFile(path_));
    EXPECT_EQ(bitsOf(read.colour.k1), 0x7FC12345U);
    EXPECT_EQ(bitsOf(read.colour.p1), bitsOf(-0.0F));
    EXPECT_EQ(bitsOf(read.colour.p2), 1U);
    EXPECT_FLOAT_EQ(read.colour.k3, 640.5F);
    EXPECT_FLOAT_EQ(read.pose(1, 0), 6.0F);
    EXPECT_EQ(bytesOf(read), oddBytes());
}

TEST_F(CalibrationStateFile, FilesThatCannotBeOpenedAreReportedAndNothingChanges) {
    CalibrationState state = oddState();
    ::testing::internal::CaptureStderr();
    EXPECT_FALSE(state.readFromFile(path_));
    EXPECT_FALSE(state.writeToFile(path_ + "/below a file that is not there"));
    const std::string line = "ERROR: : Could not open file\n";
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), line + line);
    EXPECT_EQ(bytesOf(state), oddBytes());
}

TEST_F(CalibrationStateFile, RectifiedModelsHaveNoDistortion) {
    const fieldcal::CameraModel infrared{628, 468, 580.F, 581.F, 314.F, 234.F};
    const fieldcal::CameraModel platform{641, 361, 580.F, 581.F, 320.F, 180.F};
    const CalibrationState state = calibrationState(infrared, infrared, platform, Pose::Identity(), 1);
    EXPECT_EQ(state.calibratedColour.width, 641);
    EXPECT_EQ(state.infrared.cy, 234.F);
    const std::string bytes = bytesOf(state);
    for (const std::size_t record : {0U, 44U, 88U})
        EXPECT_EQ(bytes.substr(record + 24, 20), std::string(20, '\0'));
    EXPECT_EQ(bytes.substr(196), std::string("\1\0\0\0", 4));
}

/// The name of the field at a position of the file.
std::string fieldAt(std::size_t position) {
    const char* const names[] = {"width", "height", "fx", "fy", "cx", "cy", "k1", "k2", "k3", "p1", "p2"};
    const std::size_t field = position / 4;
    if (field < 33) return "camera record " + std::to_string(field / 11 + 1) + ": " + names[field % 11];
    if (field >= 49) return "value";
    return "pose: row " + std::to_string((field - 33) / 4 + 1) + ", column " + std::to_string((field - 33) % 4 + 1);
}

TEST_F(CalibrationStateFile, EveryOtherLengthIsRefusedByFieldAndChangesNothing) {
    const CalibrationState other = calibrationState({1}, {2}, {3}, Pose::Constant(4), 5);
    const std::string otherBytes = bytesOf(other);
    std::mt19937 random(3);
    for (std::size_t length = 0; length < 240; ++length) {
        SCOPED_TRACE(length);
        std::string bytes(length, '\0');
        std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<char>(random()); });
        store(bytes);
        CalibrationState state = other;
        ::testing::internal::CaptureStderr();
        const bool isRead = state.readFromFile(path_);
        const std::string log = ::testing::internal::GetCapturedStderr();
        ASSERT_EQ(isRead, length == 200);
        ASSERT_EQ(bytesOf(state), isRead ? bytes : otherBytes);
        if (isRead) continue;
        ASSERT_THAT(log, HasSubstr("ERROR: : " + path_ + ": " + fieldAt(length) + ": the file "));
        ASSERT_THAT(log, EndsWith(length < 200 ? "ends here\n" : "goes on behind it\n"));
    }
}

}  // namespace
}  // namespace vq::testing
