#include "engine/Rotation.h"
#include "session/RecordedSession.h"
#include "tools/CalibrationReport.h"
#include "tools/CommandLine.h"
#include "tools/ConnectedModule.h"
#include "tools/Console.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace fieldcal {
namespace {

void printModule(const session::ModuleInfo& module) {
    std::printf("%-12s serial %u, firmware %s, software %s, calibration %s\n", "module", module.serial,
                module.firmware.c_str(), module.software.c_str(), module.calibrationValid ? "valid" : "INVALID");
}

void printIntrinsics(const char* name, const session::Intrinsics& camera) {
    std::printf("%-12s %d x %d, fx %.2f fy %.2f cx %.2f cy %.2f\n", name, camera.width, camera.height, camera.fx,
                camera.fy, camera.cx, camera.cy);
}

/// Rounds to four decimals, without a negative zero.
double shown(double angleDeg) {
    return std::round(angleDeg * 1e4) / 1e4 + 0.0;
}

void printAngles(const Matrix3& rotation) {
    const Eigen::Vector3d anglesDeg = vq::anglesFromRotation(vq::matrixOf(rotation)) * kDegreesPerRadian;
    std::printf("%-12s from depth: %.4f %.4f %.4f degrees about X, Y, Z\n", "", shown(anglesDeg[0]),
                shown(anglesDeg[1]), shown(anglesDeg[2]));
}

void printTruth(const char* name, const std::optional<Matrix3>& truth, const Matrix3& factory) {
    if (truth) std::printf("%-12s %.4f degrees off the factory rotation\n", name, angleBetweenDeg(*truth, factory));
}

void printRight(const std::vector<session::FrameEntry>& frames) {
    const auto count =
        std::count_if(frames.begin(), frames.end(), [](const auto& frame) { return !frame.right.empty(); });
    if (count > 0) std::printf("%-12s pictures of %zu frames\n", "right", static_cast<std::size_t>(count));
}

int describeRecording(const std::string& folder) {
    session::SessionDescription session;
    std::string why;
    if (!session::readDescription(folder, &session, &why) || !session::verify(folder, &why)) {
        return fail(QString::fromStdString(why));
    }
    printModule(session.module);
    printIntrinsics("infrared", session.infrared);
    printRight(session.frames);
    printIntrinsics("depth", session.depth);
    printIntrinsics("third", session.third);
    if (session.platform) {
        printIntrinsics("platform", session.platform->rectified);
        std::printf("%-12s %s\n", "", session.platform->name.c_str());
    }
    std::printf("%-12s %zu, played by %d grabs\n", "frames", session.frames.size(), session.grabCount());
    printTruth("true third", session.truthThird, session.third.rotation);
    if (session.platform) printTruth("true platform", session.truthPlatform, session.platform->rotation);
    return kSolved;
}

/// The rear camera is not opened, because its calibration is stored in the module.
int describeConnectedModule() {
    silenceLogs();
    ConnectedModule module;
    QString why;
    if (!module.open(false, &why)) return fail(why);
    session::SessionDescription description;
    description.module = module.info();
    const bool valid = description.module.calibrationValid;
    if ((valid && !module.describe(&description, &why)) || !module.close(&why)) return fail(why);
    printModule(description.module);
    if (!valid) return kSolved;
    printIntrinsics("infrared", description.infrared);
    printIntrinsics("depth", description.depth);
    printIntrinsics("third", description.third);
    printAngles(description.third.rotation);
    if (!description.platform) return kSolved;
    printIntrinsics("platform", description.platform->rectified);
    printAngles(description.platform->rotation);
    return kSolved;
}

}  // namespace

int run(const InfoOptions& options) {
    return options.folder.empty() ? describeConnectedModule() : describeRecording(options.folder);
}

}  // namespace fieldcal
