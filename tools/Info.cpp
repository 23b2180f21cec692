#include "session/RecordedSession.h"
#include "tools/CalibrationReport.h"
#include "tools/CommandLine.h"
#include "tools/Verbs.h"

#include <cstdio>

namespace fieldcal {
namespace {

void printIntrinsics(const char* name, const session::Intrinsics& camera) {
    std::printf("%-12s %d x %d, fx %.2f fy %.2f cx %.2f cy %.2f\n", name, camera.width, camera.height, camera.fx,
                camera.fy, camera.cx, camera.cy);
}

void printTruth(const char* name, const std::optional<Matrix3>& truth, const Matrix3& factory) {
    if (truth)
        std::printf("%-12s %.4f degrees off the factory rotation\n", name, rotationDifferenceDeg(*truth, factory));
}

}  // namespace

int runInfo(const QStringList& arguments) {
    if (arguments.size() != 1 || arguments[0].startsWith('-')) return refuseUsage("info takes one folder");
    const std::string folder = arguments[0].toStdString();
    session::SessionDescription session;
    std::string why;
    if (!session::readDescription(folder, &session, &why) || !session::verify(folder, &why)) {
        std::fprintf(stderr, "%s\n", why.c_str());
        return kFailed;
    }
    std::printf("%-12s serial %u, firmware %s, software %s, calibration %s\n", "module", session.module.serial,
                session.module.firmware.c_str(), session.module.software.c_str(),
                session.module.calibrationValid ? "valid" : "INVALID");
    printIntrinsics("infrared", session.infrared);
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

}  // namespace fieldcal
