#include "tools/ExportFormats.h"

#include "camera/Rotation.h"
#include "tools/ExportedCameras.h"

#include <QStringList>

#include <cmath>

namespace fieldcal {
namespace {

constexpr int kDecimals = 12;
constexpr const char* kInfraredFrame = "infrared_optical";

/// Fixed notation with a decimal point, because some YAML readers take 1e-05 for a string and 0 for an integer.
QString number(double value) {
    QString text = QString::number(value, 'f', kDecimals);
    while (text.endsWith('0') && !text.endsWith(".0"))
        text.chop(1);
    return text == "-0.0" ? "0.0" : text;
}

template <typename Numbers>
QString list(const Numbers& numbers) {
    QStringList texts;
    for (const double value : numbers)
        texts.append(number(value));
    return "[" + texts.join(", ") + "]";
}

QString list(std::initializer_list<double> numbers) {
    return list<std::initializer_list<double>>(numbers);
}

/// The rotation of the rear camera refers to its rectified image, whose frame differs from that of the raw image.
QString colourName(const CameraPair& pair) {
    return pair.camera == ColourCamera::Platform ? "platform_rectified" : "third";
}

QString title(const CameraPair& pair) {
    return QString("Field Calibrator " FIELDCAL_VERSION ", module %1: ").arg(pair.serial);
}

QString pixelNote() {
    return "# Pixels: the centre of the first pixel lies at (0, 0).\n";
}

QString cameraMatrix(const session::Intrinsics& camera) {
    return list({camera.fx, 0, camera.cx, 0, camera.fy, camera.cy, 0, 0, 1});
}

QString distortion(const session::RawIntrinsics& camera) {
    return list({camera.k1, camera.k2, camera.p1, camera.p2, camera.k3});
}

QString rosMatrix(const QString& name, int rows, int columns, const QString& data) {
    return QString("%1:\n  rows: %2\n  cols: %3\n  data: %4\n").arg(name).arg(rows).arg(columns).arg(data);
}

QString ros(const CameraPair& pair) {
    const ExportedCameras cameras = exportedCameras(pair);
    const session::Intrinsics& rectified = cameras.colour;
    UnrectifiedCamera raw;  // The image of the third camera is rectified already.
    static_cast<session::Intrinsics&>(raw.intrinsics) = rectified;
    raw.rectification = {1, 0, 0, 0, 1, 0, 0, 0, 1};
    if (cameras.unrectified) raw = *cameras.unrectified;
    QString text = "# " + title(pair) + "the " + pair.name() + " colour camera.\n" + pixelNote();
    if (pair.camera == ColourCamera::Platform)
        text += "# rectification_matrix leads from the raw picture's frame to platform_rectified_optical.\n";
    text += QString("image_width: %1\nimage_height: %2\n").arg(raw.intrinsics.width).arg(raw.intrinsics.height);
    text += QString("camera_name: %1\n").arg(pair.name());
    text += rosMatrix("camera_matrix", 3, 3, cameraMatrix(raw.intrinsics)) + "distortion_model: plumb_bob\n";
    text += rosMatrix("distortion_coefficients", 1, 5, distortion(raw.intrinsics));
    text += rosMatrix("rectification_matrix", 3, 3, list(raw.rectification));
    return text + rosMatrix("projection_matrix", 3, 4,
                            list({rectified.fx, 0, rectified.cx, 0, 0, rectified.fy, rectified.cy, 0, 0, 0, 1, 0}));
}

/// Returns "--x 0.1 --y ..." with one value for each name.
QString arguments(const QStringList& names, const Eigen::Vector3d& values) {
    QStringList texts;
    for (int i = 0; i < names.size(); ++i)
        texts.append("--" + names[i] + " " + number(values[i]));
    return texts.join(' ');
}

QString tf(const CameraPair& pair) {
    const ColourPose pose = colourPose(pair);
    const QString frame = colourName(pair) + "_optical";
    QString text = "# " + title(pair) + "the pose of " + frame + " in " + kInfraredFrame + ", metres.\n#\n";
    text += "# ros2 run tf2_ros static_transform_publisher " + arguments({"x", "y", "z"}, pose.translationM) + " " +
            arguments({"roll", "pitch", "yaw"}, pose.rollPitchYawRad) + " --frame-id " + kInfraredFrame +
            " --child-frame-id " + frame + "\n";
    text += "static_transform_publisher:\n  ros__parameters:\n    translation:\n";
    for (int i = 0; i < 3; ++i)
        text += QString("      %1: %2\n").arg("xyz"[i]).arg(number(pose.translationM[i]));
    text += "    rotation:\n";
    for (int i = 0; i < 4; ++i)
        text += QString("      %1: %2\n").arg("xyzw"[i]).arg(number(pose.quaternion[i]));
    return text + "    frame_id: " + kInfraredFrame + "\n    child_frame_id: " + frame + "\n";
}

QString spaced(const Eigen::Vector3d& numbers) {
    return number(numbers[0]) + " " + number(numbers[1]) + " " + number(numbers[2]);
}

QString urdf(const CameraPair& pair) {
    const ColourPose pose = colourPose(pair);
    const QString frame = colourName(pair) + "_optical";
    QString text = "<?xml version=\"1.0\"?>\n<!-- " + title(pair) + "the pose of " + frame + " in " + kInfraredFrame +
                   ", metres and radians. -->\n";
    text += QString("<robot name=\"module_%1\">\n").arg(pair.serial);
    text += QString("  <link name=\"%1\"/>\n  <link name=\"%2\"/>\n").arg(kInfraredFrame, frame);
    text += QString("  <joint name=\"%1_joint\" type=\"fixed\">\n").arg(frame);
    text += QString("    <parent link=\"%1\"/>\n    <child link=\"%2\"/>\n").arg(kInfraredFrame, frame);
    text += "    <origin xyz=\"" + spaced(pose.translationM) + "\" rpy=\"" + spaced(pose.rollPitchYawRad) + "\"/>\n";
    return text + "  </joint>\n</robot>\n";
}

QString storedMatrix(const QString& name, int rows, int columns, const QString& data) {
    return QString("%1: !!opencv-matrix\n   rows: %2\n   cols: %3\n   dt: d\n   data: %4\n")
        .arg(name)
        .arg(rows)
        .arg(columns)
        .arg(data);
}

QString openCv(const CameraPair& pair) {
    const ExportedCameras cameras = exportedCameras(pair);
    const QString noDistortion = list({0, 0, 0, 0, 0});
    QString text = "%YAML:1.0\n---\n# " + title(pair) + "camera 1 is infrared, camera 2 is " + colourName(pair) +
                   ".\n# X2 = R X1 + T, metres.\n" + pixelNote();
    const auto addSize = [&text](int camera, const session::Intrinsics& model) {
        text += QString("width%1: %2\nheight%1: %3\n").arg(camera).arg(model.width).arg(model.height);
    };
    addSize(1, cameras.infrared);
    addSize(2, cameras.colour);
    text += storedMatrix("M1", 3, 3, cameraMatrix(cameras.infrared)) + storedMatrix("D1", 1, 5, noDistortion);
    text += storedMatrix("M2", 3, 3, cameraMatrix(cameras.colour)) + storedMatrix("D2", 1, 5, noDistortion);
    text += storedMatrix("R", 3, 3, list(pair.rotation)) + storedMatrix("T", 3, 1, list(pair.translationM));
    if (pair.deviationDeg) {
        const auto& [x, y, z] = *pair.deviationDeg;
        text += "# Radians about X, Y and Z.\n" +
                storedMatrix("R_std_dev", 3, 1,
                             list({x * kRadiansPerDegree, y * kRadiansPerDegree, z * kRadiansPerDegree}));
    }
    if (!cameras.unrectified) return text;
    const UnrectifiedCamera& raw = *cameras.unrectified;
    text += "# The raw picture of camera 2: initUndistortRectifyMap(M2_raw, D2_raw, R2, M2, ...).\n";
    return text + storedMatrix("M2_raw", 3, 3, cameraMatrix(raw.intrinsics)) +
           storedMatrix("D2_raw", 1, 5, distortion(raw.intrinsics)) + storedMatrix("R2", 3, 3, list(raw.rectification));
}

QString kalibrCamera(const session::Intrinsics& camera, const QString& topic, int other) {
    return QString("  cam_overlaps: [%1]\n  camera_model: pinhole\n").arg(other) +
           "  distortion_coeffs: " + list({0, 0, 0, 0}) + "\n  distortion_model: radtan\n" +
           "  intrinsics: " + list({camera.fx, camera.fy, camera.cx, camera.cy}) + "\n" +
           QString("  resolution: [%1, %2]\n  rostopic: /%3/image_rect\n")
               .arg(camera.width)
               .arg(camera.height)
               .arg(topic);
}

QString kalibr(const CameraPair& pair) {
    const ExportedCameras cameras = exportedCameras(pair);
    const session::Matrix3& r = pair.rotation;
    const session::Vector3& t = pair.translationM;
    QString text = "# " + title(pair) + "cam0 is infrared, cam1 is " + colourName(pair) +
                   ".\n# T_cn_cnm1 leads from cam0 to cam1, metres.\n" + pixelNote();
    text += "cam0:\n" + kalibrCamera(cameras.infrared, "infrared", 1) + "cam1:\n  T_cn_cnm1:\n";
    for (std::size_t row = 0; row < 3; ++row)
        text += "  - " + list({r[row * 3], r[row * 3 + 1], r[row * 3 + 2], t[row]}) + "\n";
    return text + "  - " + list({0, 0, 0, 1}) + "\n" + kalibrCamera(cameras.colour, pair.name(), 0);
}

QString exportedText(const CameraPair& pair, ExportFormat format) {
    switch (format) {
        case ExportFormat::Ros:
            return ros(pair);
        case ExportFormat::Tf:
            return tf(pair);
        case ExportFormat::Urdf:
            return urdf(pair);
        case ExportFormat::OpenCv:
            return openCv(pair);
        case ExportFormat::Kalibr:
            break;
    }
    return kalibr(pair);
}

}  // namespace

QByteArray exported(const CameraPair& pair, ExportFormat format) {
    return exportedText(pair, format).toUtf8();
}

}  // namespace fieldcal
