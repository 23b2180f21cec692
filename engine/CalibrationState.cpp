#include "engine/CalibrationState.h"

#include "diagnostics/Logger.h"
#include "files/SafeFile.h"

#include <array>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace vq {
namespace {

using fieldcal::kError;
using fieldcal::logMessage;

/// Calls `visit(name, field)` for every field in the order of the file, until one call returns false.
template <typename Record, typename Visit>
bool visitRecord(const std::string& name, Record& record, const Visit& visit) {
    const auto field = [&](const char* fieldName, auto& value) { return visit(name + ": " + fieldName, value); };
    return field("width", record.width) && field("height", record.height) && field("fx", record.fx) &&
           field("fy", record.fy) && field("cx", record.cx) && field("cy", record.cy) && field("k1", record.k1) &&
           field("k2", record.k2) && field("k3", record.k3) && field("p1", record.p1) && field("p2", record.p2);
}

template <typename Matrix, typename Visit>
bool visitPose(Matrix& pose, const Visit& visit) {
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 4; ++column) {
            const std::string name = "pose: row " + std::to_string(row + 1) + ", column " + std::to_string(column + 1);
            if (!visit(name, pose(row, column))) return false;
        }
    }
    return true;
}

template <typename State, typename Visit>
bool visitState(State& state, const Visit& visit) {
    return visitRecord("camera record 1", state.infrared, visit) &&
           visitRecord("camera record 2", state.colour, visit) &&
           visitRecord("camera record 3", state.calibratedColour, visit) && visitPose(state.pose, visit) &&
           visit("value", state.value);
}

using FieldBytes = std::array<char, 4>;

template <typename Field>
FieldBytes littleEndian(const Field& field) {
    static_assert(sizeof(Field) == 4, "all fields of the file have 4 bytes");
    std::uint32_t bits = 0;
    std::memcpy(&bits, &field, sizeof bits);
    return {static_cast<char>(bits), static_cast<char>(bits >> 8), static_cast<char>(bits >> 16),
            static_cast<char>(bits >> 24)};
}

template <typename Field>
void fromLittleEndian(const FieldBytes& bytes, Field* field) {
    static_assert(sizeof(Field) == 4, "all fields of the file have 4 bytes");
    std::uint32_t bits = 0;
    for (std::size_t i = bytes.size(); i-- > 0;)
        bits = bits << 8 | static_cast<std::uint8_t>(bytes[i]);
    std::memcpy(field, &bits, sizeof bits);
}

/// Whether a file of this name can be at all: its folder is there, and it is no folder itself.
bool hasPlace(const std::string& path) {
    std::error_code error;
    const auto file = std::filesystem::u8path(path);
    const auto folder = file.has_parent_path() ? file.parent_path() : std::filesystem::path(".");
    return std::filesystem::is_directory(folder, error) && !std::filesystem::is_directory(file, error);
}

CameraRecord recordOf(const fieldcal::CameraModel& model) {
    return {model.width, model.height, model.fx, model.fy, model.cx, model.cy};
}

}  // namespace

bool CalibrationState::writeToFile(const std::string& path) const {
    constexpr const char* kOperation = "CalibrationState::writeToFile";
    std::string content, why;
    visitState(*this, [&content](const std::string&, const auto& field) {
        const FieldBytes bytes = littleEndian(field);
        content.append(bytes.data(), bytes.size());
        return true;
    });
    if (fieldcal::writeFile(path, content.data(), content.size(), &why)) return true;
    if (hasPlace(path)) {
        logMessage(kError, kOperation, "%s", why.c_str());
    } else {
        logMessage(kError, kOperation, "Could not open file");
    }
    return false;
}

bool CalibrationState::readFromFile(const std::string& path) {
    constexpr const char* kOperation = "CalibrationState::readFromFile";
    std::ifstream file(path, std::ios::binary);
    if (!file.is_open()) {
        logMessage(kError, kOperation, "Could not open file");
        return false;
    }
    CalibrationState state;
    const bool complete = visitState(state, [&](const std::string& name, auto& field) {
        FieldBytes bytes{};
        if (file.read(bytes.data(), bytes.size())) {
            fromLittleEndian(bytes, &field);
            return true;
        }
        logMessage(kError, kOperation, "%s: %s: the file ends here", path.c_str(), name.c_str());
        return false;
    });
    if (!complete) return false;
    if (file.get() != std::ifstream::traits_type::eof()) {
        logMessage(kError, kOperation, "%s: value: the file goes on behind it", path.c_str());
        return false;
    }
    *this = state;
    return true;
}

CalibrationState calibrationState(const fieldcal::CameraModel& infrared, const fieldcal::CameraModel& colour,
                                  const fieldcal::CameraModel& calibratedColour, const Pose& pose,
                                  std::uint32_t value) {
    return {recordOf(infrared), recordOf(colour), recordOf(calibratedColour), pose, value};
}

}  // namespace vq
