#include "tools/CameraInfoFile.h"

#include "session/Files.h"

#include <Eigen/Geometry>
#include <QFile>

#include <array>
#include <cmath>
#include <vector>
#include <yaml-cpp/yaml.h>

namespace fieldcal {
namespace {

constexpr qint64 kLargestFile = 1 << 20;
constexpr int kLargestSize = 8192;
constexpr double kUnitTolerance = 1e-3;
constexpr double kMillimetresPerMetre = 1000;

/// A fault in a file and the key at which it was found.
struct YamlFault {
    std::string key;
    std::string reason;
};

YAML::Node required(const YAML::Node& parent, const char* key) {
    const YAML::Node node = parent.IsMap() ? parent[key] : YAML::Node(YAML::NodeType::Undefined);
    if (!node.IsDefined()) throw YamlFault{key, "missing"};
    return node;
}

double number(const YAML::Node& node, const char* key) {
    double value = 0;
    if (!node.IsScalar() || !YAML::convert<double>::decode(node, value) || !std::isfinite(value))
        throw YamlFault{key, "a number expected"};
    return value;
}

std::vector<double> matrixData(const YAML::Node& document, const char* key, std::size_t count) {
    const YAML::Node data = required(required(document, key), "data");
    if (!data.IsSequence() || data.size() != count) throw YamlFault{key, std::to_string(count) + " numbers expected"};
    std::vector<double> values;
    for (const YAML::Node& item : data)
        values.push_back(number(item, key));
    return values;
}

int pixels(const YAML::Node& document, const char* key) {
    const double value = number(required(document, key), key);
    if (value < 1 || value > kLargestSize || value != std::floor(value))
        throw YamlFault{key, "a size from 1 to " + std::to_string(kLargestSize) + " expected"};
    return static_cast<int>(value);
}

/// Reads intrinsics in pixels from a matrix with three or four columns.
void readPinhole(const std::vector<double>& matrix, const char* key, session::Intrinsics* out) {
    const std::size_t secondRow = matrix.size() / 3;
    out->fx = matrix[0];
    out->cx = matrix[2];
    out->fy = matrix[secondRow + 1];
    out->cy = matrix[secondRow + 2];
    if (out->fx <= 0 || out->fy <= 0) throw YamlFault{key, "focal lengths above zero expected"};
}

CameraInfo cameraInfo(const YAML::Node& document) {
    CameraInfo info;
    info.raw.width = info.rectified.width = pixels(document, "image_width");
    info.raw.height = info.rectified.height = pixels(document, "image_height");
    const YAML::Node model = required(document, "distortion_model");
    if (!model.IsScalar() || model.Scalar() != "plumb_bob")
        throw YamlFault{"distortion_model", "only plumb_bob can be imported"};
    const std::vector<double> d = matrixData(document, "distortion_coefficients", 5);
    info.raw.k1 = d[0], info.raw.k2 = d[1], info.raw.p1 = d[2], info.raw.p2 = d[3], info.raw.k3 = d[4];
    readPinhole(matrixData(document, "camera_matrix", 9), "camera_matrix", &info.raw);
    readPinhole(matrixData(document, "projection_matrix", 12), "projection_matrix", &info.rectified);
    const std::vector<double> r = matrixData(document, "rectification_matrix", 9);
    std::copy(r.begin(), r.end(), info.rectification.begin());
    if (!isRotation(info.rectification, kUnitTolerance))
        throw YamlFault{"rectification_matrix", "not a rotation matrix"};
    return info;
}

ColourTransform transform(const YAML::Node& document) {
    const YAML::Node parameters = required(required(document, "static_transform_publisher"), "ros__parameters");
    const YAML::Node place = required(parameters, "translation");
    const YAML::Node turn = required(parameters, "rotation");
    const auto value = [](const YAML::Node& node, const char* key) { return number(required(node, key), key); };
    Eigen::Quaterniond pose(value(turn, "w"), value(turn, "x"), value(turn, "y"), value(turn, "z"));
    if (std::abs(pose.norm() - 1) > kUnitTolerance) throw YamlFault{"rotation", "not a unit quaternion"};
    const Eigen::Quaterniond inverse = pose.normalized().conjugate();
    const Eigen::Vector3d translation =
        -(inverse * Eigen::Vector3d(value(place, "x"), value(place, "y"), value(place, "z"))) * kMillimetresPerMetre;
    ColourTransform out;
    Eigen::Map<Eigen::Matrix<double, 3, 3, Eigen::RowMajor>>(out.rotation.data()) = inverse.toRotationMatrix();
    Eigen::Map<Eigen::Vector3d>(out.translationMm.data()) = translation;
    return out;
}

template <typename Result>
bool readYaml(const std::string& file, Result (*read)(const YAML::Node&), Result* out, std::string* why) {
    QFile input;
    if (!session::openInput(file, {}, kLargestFile, &input, why)) return false;
    try {
        *out = read(YAML::Load(input.readAll().toStdString()));
        return true;
    } catch (const YamlFault& fault) {
        return session::refuse(why, file, fault.key, fault.reason);
    } catch (const YAML::Exception& error) {
        return session::refuse(why, file, {}, std::string("not YAML: ") + error.what());
    }
}

}  // namespace

bool readCameraInfo(const std::string& file, CameraInfo* out, std::string* why) {
    return readYaml(file, cameraInfo, out, why);
}

bool readTransform(const std::string& file, ColourTransform* out, std::string* why) {
    return readYaml(file, transform, out, why);
}

}  // namespace fieldcal
