#include "devices/InfraredGeometry.h"
#include "tests/tools/SessionTool.h"

#include <Eigen/Dense>
#include <Eigen/Geometry>
#include <QRegExp>
#include <opencv2/core.hpp>

#include <algorithm>
#include <array>
#include <functional>
#include <utility>
#include <vector>

namespace fieldcal::testing {
namespace {

using Eigen::Matrix3d;
using Eigen::Vector2d;
using Eigen::Vector3d;
using RowMajor3d = Eigen::Matrix<double, 3, 3, Eigen::RowMajor>;

constexpr double kLargestDifferencePx = 0.01;
constexpr double kLargestRawDifferencePx = 0.03;  // no model of the raw image is exact, see docs/exports.md

/// The numbers of a YAML file by their keys, joined with dots. Supports maps in block style and lists in flow style.
class Yaml {
public:
    explicit Yaml(const QByteArray& text) {
        std::vector<std::pair<int, QString>> keys;
        for (QString line : QString(text).split('\n')) {
            const int indent = static_cast<int>(line.indexOf(QRegExp("\\S")));
            line = line.trimmed();
            if (line.isEmpty() || line.startsWith('#')) continue;
            if (!line.startsWith("- ")) {
                while (!keys.empty() && keys.back().first >= indent)
                    keys.pop_back();
                const QString parent = keys.empty() ? "" : keys.back().second + '.';
                keys.emplace_back(indent, parent + line.section(": ", 0, 0).section(':', 0, 0));
                line = line.section(": ", 1);
            }
            add(keys.back().second, line);
        }
    }

    double number(const QString& key, int index = 0) const {
        const auto found = numbers_.find(key);
        const bool isThere = found != numbers_.end() && index < static_cast<int>(found->second.size());
        EXPECT_TRUE(isThere) << key.toStdString();
        return isThere ? found->second[static_cast<std::size_t>(index)] : 0;
    }
    Vector3d vector(const QString& key) const { return {number(key, 0), number(key, 1), number(key, 2)}; }
    Matrix3d matrix(const QString& key, int columns = 3) const {
        Matrix3d m;
        for (int i = 0; i < 9; ++i)
            m(i / 3, i % 3) = number(key, i / 3 * columns + i % 3);
        return m;
    }
    const std::map<QString, std::vector<double>>& numbers() const { return numbers_; }

private:
    void add(const QString& key, QString value) {
        for (const QString& item : value.remove('[').remove(']').remove("- ").split(',')) {
            bool isNumber = false;
            const double number = item.toDouble(&isNumber);
            if (isNumber) numbers_[key].push_back(number);
        }
    }
    std::map<QString, std::vector<double>> numbers_;
};

Matrix3d eigen(const session::Matrix3& matrix) {
    return RowMajor3d(matrix.data());
}

Matrix3d stored(const cv::FileStorage& file, const char* key) {
    cv::Mat matrix;
    file[key] >> matrix;
    EXPECT_TRUE(matrix.type() == CV_64F && matrix.rows == 3 && matrix.cols == 3) << key;
    return RowMajor3d(matrix.ptr<double>());
}

/// Rotation about the fixed axes X, Y and Z, in this order.
Matrix3d rollPitchYaw(const Vector3d& angles) {
    return (Eigen::AngleAxisd(angles.z(), Vector3d::UnitZ()) * Eigen::AngleAxisd(angles.y(), Vector3d::UnitY()) *
            Eigen::AngleAxisd(angles.x(), Vector3d::UnitX()))
        .matrix();
}

Vector3d vectorOf(const QStringList& texts) {
    EXPECT_EQ(texts.size(), 3);
    return {texts.value(0).toDouble(), texts.value(1).toDouble(), texts.value(2).toDouble()};
}

/// Radial and tangential distortion: k1 k2 p1 p2 k3.
Vector2d distorted(const Matrix3d& k, const std::array<double, 5>& d, const Vector3d& ray) {
    const double x = ray.x() / ray.z(), y = ray.y() / ray.z(), r2 = x * x + y * y;
    const double radial = 1 + r2 * (d[0] + r2 * (d[1] + r2 * d[4]));
    return (k * Vector3d(x * radial + 2 * d[2] * x * y + d[3] * (r2 + 2 * x * x),
                         y * radial + d[2] * (r2 + 2 * y * y) + 2 * d[3] * x * y, 1))
        .head<2>();
}

Matrix3d cameraMatrix(const session::Intrinsics& camera) {
    Matrix3d k;
    k << camera.fx, 0, camera.cx, 0, camera.fy, camera.cy, 0, 0, 1;
    return k;
}

/// A pixel of the delivered image, and the point that it shows.
struct Sight {
    Vector2d pixel;
    Vector3d inInfrared;
    Vector3d inColour;
};

/// The program's own projections at pixels over the whole image, by its models in the infrared geometry, at 1 to 20 m.
std::vector<Sight> sights(const session::SessionDescription& session, bool isPlatform) {
    const auto model = [](const session::Intrinsics& camera) {
        const auto narrow = [](double number) { return static_cast<float>(number); };
        return CameraModel{camera.width,      camera.height,     narrow(camera.fx),
                           narrow(camera.fy), narrow(camera.cx), narrow(camera.cy)};
    };
    const CameraModel delivered = model(isPlatform ? session.platform->rectified : session.third);
    CameraModel colour = delivered;
    ColourScaling scaling;
    EXPECT_TRUE(bringIntoInfraredGeometry(factorsToInfrared(colour, model(session.infrared)), &colour, &scaling));
    const Matrix3d rotation = eigen(isPlatform ? session.platform->rotation : session.third.rotation);
    const Vector3d translation((isPlatform ? session.platform->translation : session.third.translation).data());
    std::vector<Sight> all;
    for (int i = 0; i < 63; ++i) {
        const int column = i % 9, row = i / 9;
        const Vector2d pixel(column * (delivered.width - 1) / 8.0, row * (delivered.height - 1) / 6.0);
        const double x = (pixel.x() + 0.5) * colour.width / delivered.width * scaling.x - 0.5;
        const double y = (pixel.y() + 0.5) * colour.height / delivered.height * scaling.y - 0.5;
        for (const double metres : {1.0, 3.0, 20.0}) {
            const Vector3d seen(metres * (x - colour.cx) / colour.fx, metres * (y - colour.cy) / colour.fy, metres);
            all.push_back({pixel, rotation.transpose() * (seen - translation * 1e-3), seen});
        }
    }
    return all;
}

using Projection = std::function<Vector2d(const Vector3d&)>;

void expectSeen(const char* by, const std::vector<Sight>& seen, const Projection& projection) {
    double largest = 0;
    for (const Sight& sight : seen)
        largest = std::max(largest, (projection(sight.inInfrared) - sight.pixel).norm());
    EXPECT_LT(largest, kLargestDifferencePx) << by;
}

class ExportTest : public SessionToolTest {
protected:
    static QByteArray exported(const QString& source, const QString& format, const QStringList& more = {},
                               const std::map<QString, QString>& knobs = {}) {
        const Result result = run(QStringList{"export", source, "--format", format} + more, knobs);
        EXPECT_EQ(result.status, 0) << result.error.constData();
        return result.out;
    }
};

TEST_F(ExportTest, PointsLandWhereTheProgramSeesThem) {
    const session::SessionDescription session = described(recording());
    for (const bool isPlatform : {false, true}) {
        const QStringList camera{"--camera", isPlatform ? "platform" : "third"};
        const auto seen = sights(session, isPlatform);

        const Yaml ros(exported(recording(), "ros", camera));
        const Matrix3d p = ros.matrix("projection_matrix.data", 4);
        const auto posed = [&p](const Matrix3d& rotation, const Vector3d& translation) -> Projection {
            return [=](const Vector3d& point) -> Vector2d {
                return (p * rotation.transpose() * (point - translation)).hnormalized();
            };
        };
        const QByteArray tf = exported(recording(), "tf", camera);
        const Yaml parameters(tf);
        const auto named = [&parameters](const QString& group, const char* axis) {
            return parameters.number("static_transform_publisher.ros__parameters." + group + '.' + axis);
        };
        const Eigen::Quaterniond turn(named("rotation", "w"), named("rotation", "x"), named("rotation", "y"),
                                      named("rotation", "z"));
        EXPECT_NEAR(turn.norm(), 1, 1e-9);
        const Vector3d shift(named("translation", "x"), named("translation", "y"), named("translation", "z"));
        expectSeen("tf, parameters", seen, posed(turn.matrix(), shift));

        const auto argument = [words = QString(tf).split(QRegExp("\\s+"))](const char* name) {
            return words.value(words.indexOf(name) + 1);
        };
        expectSeen("tf, command line", seen,
                   posed(rollPitchYaw(vectorOf({argument("--roll"), argument("--pitch"), argument("--yaw")})),
                         vectorOf({argument("--x"), argument("--y"), argument("--z")})));

        const QString urdf = exported(recording(), "urdf", camera);
        const auto attribute = [&urdf](const QString& name) {
            return vectorOf(urdf.section(name + "=\"", 1, 1).section('"', 0, 0).split(' '));
        };
        expectSeen("urdf", seen, posed(rollPitchYaw(attribute("rpy")), attribute("xyz")));

        const std::string text = exported(recording(), "opencv", camera).toStdString();
        const cv::FileStorage file(text, cv::FileStorage::READ | cv::FileStorage::MEMORY);
        const Matrix3d m2 = stored(file, "M2"), r = stored(file, "R");
        cv::Mat t;
        file["T"] >> t;
        expectSeen("opencv", seen, [&](const Vector3d& point) -> Vector2d {
            return (m2 * (r * point + Vector3d(t.ptr<double>()))).hnormalized();
        });
        EXPECT_TRUE(stored(file, "M1").isApprox(cameraMatrix(session.infrared), 1e-9));

        const Yaml kalibr(exported(recording(), "kalibr", camera));
        const Matrix3d turned = kalibr.matrix("cam1.T_cn_cnm1", 4);
        const Vector3d moved(kalibr.number("cam1.T_cn_cnm1", 3), kalibr.number("cam1.T_cn_cnm1", 7),
                             kalibr.number("cam1.T_cn_cnm1", 11));
        expectSeen("kalibr", seen, [&](const Vector3d& point) -> Vector2d {
            const Vector2d place = (turned * point + moved).hnormalized();
            return {kalibr.number("cam1.intrinsics", 0) * place.x() + kalibr.number("cam1.intrinsics", 2),
                    kalibr.number("cam1.intrinsics", 1) * place.y() + kalibr.number("cam1.intrinsics", 3)};
        });
    }
}

TEST_F(ExportTest, TheRawPictureOfTheRearCameraIsDescribedToo) {
    const session::SessionDescription session = described(recording());
    const session::PlatformCamera& own = *session.platform;
    const Matrix3d rectifiedRay = eigen(own.rectification).transpose() * cameraMatrix(own.rectified).inverse();
    const Yaml ros(exported(recording(), "ros", {"--camera", "platform"}));
    std::array<double, 5> coefficients{};
    for (int i = 0; i < 5; ++i)
        coefficients[static_cast<std::size_t>(i)] = ros.number("distortion_coefficients.data", i);
    for (const Sight& sight : sights(session, true)) {
        const Vector2d raw =
            distorted(cameraMatrix(own.raw), {own.raw.k1, own.raw.k2, own.raw.p1, own.raw.p2, own.raw.k3},
                      rectifiedRay * sight.pixel.homogeneous());
        const Vector3d ray = ros.matrix("rectification_matrix.data").transpose() * sight.inColour;
        EXPECT_LT((distorted(ros.matrix("camera_matrix.data"), coefficients, ray) - raw).norm(),
                  kLargestRawDifferencePx);
    }
}

TEST_F(ExportTest, AResultIsEnough) {
    const QString file = path("result.json");
    ASSERT_EQ(run({"calibrate", recording(), "--camera", "platform", "--seed", "1", "--json", file}).status, 0);
    QFile input(file);
    ASSERT_TRUE(input.open(QIODevice::ReadOnly));
    const QByteArray json = input.readAll();
    const QJsonObject result = QJsonDocument::fromJson(json).object();
    const std::string text = exported(file, "opencv").toStdString();
    const cv::FileStorage found(text, cv::FileStorage::READ | cv::FileStorage::MEMORY);
    cv::Mat rotation, deviation;
    found["R"] >> rotation;
    found["R_std_dev"] >> deviation;
    for (int i = 0; i < 9; ++i)
        EXPECT_NEAR(rotation.ptr<double>()[i], result["rotation"].toArray()[i].toDouble(), 1e-9);
    for (int i = 0; i < 3; ++i)
        EXPECT_NEAR(deviation.at<double>(i) * 57.29577951308232, result["uncertaintyDeg"].toArray()[i].toDouble(),
                    1e-9);
    EXPECT_EQ(exported(file, "ros"), exported(recording(), "ros", {"--camera", "platform"}));

    const auto refused = [](const QByteArray& contents, const char* end) {
        const QString wrong = path("wrong.json");
        QFile output(wrong);
        EXPECT_TRUE(output.open(QIODevice::WriteOnly) && output.write(contents) == contents.size());
        output.close();
        const Result answer = run({"export", wrong, "--format", "tf", "--out", path("wrong.yaml")});
        EXPECT_EQ(answer.status, 1);
        EXPECT_TRUE(answer.error.startsWith(wrong.toUtf8() + ": ") && answer.error.endsWith(end))
            << answer.error.constData();
        EXPECT_FALSE(QFile::exists(path("wrong.yaml")));
    };
    refused(QByteArray(json).replace("\"solved\":true", "\"solved\":false"),
            "solved: there is no solution to export\n");
    refused(QByteArray(json).replace("\"schema\":1", "\"schema\":2"), "schema: only schema 1 can be read\n");
    refused(QByteArray(json).replace("\"raw\":", "\"r\":"), "cameras.raw: missing\n");
    refused(json.left(json.size() / 2), "\n");
    EXPECT_EQ(run({"export", file, "--format", "tf", "--camera", "third"}).status, 2);
    EXPECT_EQ(run({"export", squareRecording(), "--format", "tf", "--camera", "platform"}).status, 2);
}

TEST_F(ExportTest, TheConnectedModuleIsExportedAsItsRecording) {
    for (const QString camera : {"third", "platform"}) {
        for (const QString format : {"kalibr", "ros", "tf"}) {
            const Yaml recorded(exported(recording(), format, {"--camera", camera}));
            const Yaml connected(exported("module", format, {"--camera", camera}, {{"SESSION", recording()}}));
            ASSERT_EQ(recorded.numbers().size(), connected.numbers().size());
            for (const auto& [key, numbers] : recorded.numbers()) {
                for (int i = 0; i < static_cast<int>(numbers.size()); ++i)
                    EXPECT_NEAR(connected.number(key, i), recorded.number(key, i), 1e-4) << key.toStdString();
            }
        }
    }
}

}  // namespace
}  // namespace fieldcal::testing
