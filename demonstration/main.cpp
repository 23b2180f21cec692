// Plays the whole workflow of the running program, from start to saved, by external events, with one or two cameras as
// in the recording. Reports the content of the simulated module's flash, the offset between overlay and image, and the
// reaction time of the interface while a photo was being processed.
//   walk-through RECORDING FOLDER [COMMAND...]        (on an X display; without a command the program beside it)
// With the folder of an earlier run, the program meets a practised user.
#include "demonstration/OverlayOffset.h"
#include "demonstration/WalkThrough.h"
#include "session/RecordedSession.h"
#include "tools/CalibrationReport.h"
#include "tools/ConnectedModule.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QScreen>
#include <QThread>
#include <opencv2/imgproc.hpp>

#include <cstdio>

namespace fieldcal::demonstration {
namespace {

using Key = X11Hand::Key;

constexpr int kFlashMs = 400;  // shorter than the confirmation shown with it
constexpr int kCaptureMs = 240000;
constexpr int kDemonstrationMs = 3000;  ///< until the refinement has compared by itself
constexpr int kMaxViews = 6;            ///< in which the overlay is measured
constexpr int kNextViewMs = 1500;
constexpr double kMinCorrelation = 0.05;
const QString kPairTaken = "Adding new infrared";
const QStringList kPairDecided{"Continue processing", "Could not get a sample set", "Found a good solution"};

/// The recording that is played, and the results.
struct Walk {
    WalkThrough& user;
    session::SessionDescription played;
    QString recording;
    QJsonObject* result;
    QJsonArray busyReactionsMs, idleReactionsMs;  ///< while a photo was being processed, and afterwards

    bool twoCameras() const { return played.platform.has_value(); }
};

void drag(WalkThrough* user) {
    const QSize screen = QGuiApplication::primaryScreen()->size();
    const int middle = screen.width() / 2;
    const auto moveSlowly = [&](int from, int to) {
        for (int step = 0; step <= 20; ++step) {
            user->hand().moveTo(from + (to - from) * step / 20, screen.height() / 2);
            QThread::msleep(15);
        }
    };
    user->hand().moveTo(middle, screen.height() / 2);
    user->hand().buttonDown();
    moveSlowly(middle, middle + screen.width() / 8);
    user->settle();
    user->look("refinement-dragged");
    moveSlowly(middle + screen.width() / 8, middle);  // reverses the correction made before
    user->hand().buttonUp();
    user->settle();
}

/// The colour images of the module.
std::vector<cv::Mat> playedImages(const Walk& walk) {
    std::vector<cv::Mat> images;
    session::FrameImages frame;
    std::string why;
    for (std::size_t i = 0; i < walk.played.frames.size(); ++i) {
        if (!readImages(walk.recording.toStdString(), walk.played, i, &frame, &why)) continue;
        const cv::Mat image(static_cast<int>(frame.third.height()), static_cast<int>(frame.third.width()), CV_8UC4,
                            frame.third.bytes());
        cv::cvtColor(image, images.emplace_back(), cv::COLOR_BGRA2BGR);
    }
    return images;
}

/// Returns the motion of the image centre on the screen when the true rotation replaces the stored one.
QJsonArray expectedOffset(const session::SessionDescription& played, int screenWidth) {
    const session::Matrix3& a = played.third.rotation;
    const session::Matrix3& b = *played.truthThird;
    std::array<double, 3> ray{};  // a · bᵀ · (0, 0, 1)
    for (int row = 0; row < 3; ++row)
        for (int k = 0; k < 3; ++k)
            ray[row] += a[3 * row + k] * b[6 + k];
    const double scale = static_cast<double>(screenWidth) / played.third.width;
    return {played.third.fx * ray[0] / ray[2] * scale, played.third.fy * ray[1] / ray[2] * scale};
}

/// Returns null where hardly anything has depth.
QJsonValue toJson(const OverlayOffset& offset) {
    if (offset.correlation < kMinCorrelation) return {};
    return QJsonObject{{"px", QJsonArray{offset.pixels[0], offset.pixels[1]}}, {"correlation", offset.correlation}};
}

/// Measures the overlay with the estimated rotation and, while the button is held, with the stored one. The recording
/// goes on meanwhile, and some of its views have hardly any depth, so it may take several views.
bool compareWithStored(Walk* walk) {
    WalkThrough& user = walk->user;
    const std::vector<cv::Mat> images = playedImages(*walk);
    QThread::msleep(kDemonstrationMs);
    user.hand().press(Key::Tab);  // to "Restart"
    user.hand().press(Key::Tab);
    for (int attempt = 0; attempt < kMaxViews; ++attempt) {
        QImage found, stored;
        if (!user.lookAt("refinementPage", "refinement", &found)) return false;
        user.hand().hold(Key::Space);
        const bool looked = user.lookAt("refinementPage", "refinement-stored", &stored);
        user.hand().release(Key::Space);
        user.settle();
        if (!looked) return false;
        const QJsonValue foundOffset = toJson(measureOverlayOffset(found, images));
        const QJsonValue storedOffset = toJson(measureOverlayOffset(stored, images));
        walk->result->insert("overlay", QJsonObject{{"found", foundOffset},
                                                    {"stored", storedOffset},
                                                    {"driftPx", expectedOffset(walk->played, found.width())}});
        if (!foundOffset.isNull() && !storedOffset.isNull()) return true;
        QThread::msleep(kNextViewMs);
    }
    return user.fail("the offset between overlay and image could not be measured");
}

/// Asks to leave and cancels, while the photo that has just been taken is being processed, and afterwards. Returns
/// false when a key was not answered.
bool measureReactions(Walk* walk) {
    bool answered = true;
    const auto askToLeave = [walk, &answered](bool busy) {
        for (int i = 0; i < 2; ++i) {
            const double milliseconds = walk->user.reactionMs([walk] { walk->user.hand().press(Key::Escape); });
            answered = answered && milliseconds >= 0;
            if (!busy && !walk->user.hasAppeared({kPairTaken})) walk->idleReactionsMs.append(milliseconds);
            if (busy && !walk->user.hasAppeared(kPairDecided)) walk->busyReactionsMs.append(milliseconds);
            // A fade in progress would count as the reaction to the next press, and a question that is about to open
            // does not accept keys yet. No photo is taken while a question is open.
            walk->user.settle();
        }
    };
    askToLeave(true);
    if (walk->user.waitForOne(kPairDecided, kCaptureMs) < 2) askToLeave(false);
    // The question stays when the attempt ends meanwhile.
    if (walk->user.page() == "leaveQuestion") walk->user.hand().press(Key::Escape);
    walk->user.settle();
    if (!answered) return walk->user.fail("a key was not answered within two seconds");
    return walk->user.page() != "leaveQuestion" || walk->user.fail("the question before leaving stays");
}

/// From the first photo to the page with the result.
bool capture(Walk* walk, const char* name, const char* foundLine) {
    WalkThrough& user = walk->user;
    if (!user.waitFor(kPairTaken, 60000)) return false;
    QThread::msleep(kFlashMs);
    user.look(name);
    if (!user.isOn("capturePage")) return false;
    int line = 0;
    while (line == 0) {
        line = user.waitForOne({kPairTaken, foundLine}, kCaptureMs);
        if (line == 0 && !measureReactions(walk)) return false;
    }
    return line > 0 && user.lookAt("foundPage", QString("found-%1").arg(name));
}

/// The check continues by itself for a practised user.
bool checkLight(WalkThrough* user) {
    if (user->practised()) return user->waitFor("The interface shows capturePage.", kCaptureMs);
    return user->lookAt("lightingPage", "sunlight") && user->pressTo("capturePage", Key::Return);
}

/// A practised user does not see the example.
bool readExample(WalkThrough* user) {
    return user->practised() ||
           (user->pressTo("tutorialPage", Key::Return) && user->lookAt("tutorialPage", "tutorial"));
}

bool playFirstCamera(Walk* walk) {
    WalkThrough& user = walk->user;
    if (!user.waitFor("changing qml to state 1", 60000) || !user.lookAt("introductionPage", "introduction") ||
        !user.pressTo("lightingPage", Key::Return) || !checkLight(&user) ||
        !capture(walk, "capture", "changing qml to state 9") || !readExample(&user) ||
        !user.pressTo("refinementPage", Key::Return) || !compareWithStored(walk)) {
        return false;
    }
    drag(&user);
    return user.isOn("refinementPage");
}

bool playSecondCamera(Walk* walk) {
    WalkThrough& user = walk->user;
    return user.pressTo("betweenPage", Key::Return) && user.lookAt("betweenPage", "between") &&
           user.pressTo("capturePage", Key::Return) && capture(walk, "capture-second", "changing qml to state 10") &&
           user.pressTo("refinementPage", Key::Return);
}

bool play(Walk* walk) {
    WalkThrough& user = walk->user;
    if (!playFirstCamera(walk) || (walk->twoCameras() && !playSecondCamera(walk))) return false;
    if (walk->busyReactionsMs.isEmpty() && walk->idleReactionsMs.isEmpty())
        return user.fail("no reaction of the interface was measured");
    QThread::msleep(kDemonstrationMs);
    if (!user.lookAt("refinementPage", "refinement-last") || !user.pressTo("savingPage", Key::Return) ||
        !user.waitFor("slot_saveAndQuit - cleaning up", kCaptureMs) || !user.lookAt("savingPage", "saved")) {
        return false;
    }
    // The confirmation stays for longer, unless it is touched.
    user.settle();
    user.hand().press(Key::Space);
    return true;
}

QJsonObject judge(const Matrix3& before, const Matrix3& after, const Matrix3& truth) {
    return {{"errorBeforeDeg", angleBetweenDeg(before, truth)}, {"errorAfterDeg", angleBetweenDeg(after, truth)}};
}

/// Compares the content of the module's flash with the recording's true rotation.
bool judgeFlash(const Walk& walk, QString* why) {
    session::SessionDescription stored;
    ConnectedModule module;
    if (!module.open(walk.twoCameras(), why) || !module.describe(&stored, why) || !module.close(why)) return false;
    walk.result->insert("third", judge(walk.played.third.rotation, stored.third.rotation, *walk.played.truthThird));
    if (!walk.twoCameras()) return true;
    if (!stored.platform) {
        *why = "the module has lost the rear camera's calibration";
        return false;
    }
    walk.result->insert("platform",
                        judge(walk.played.platform->rotation, stored.platform->rotation, *walk.played.truthPlatform));
    return true;
}

int run(const QString& recording, const QString& folder, const QStringList& command) {
    WalkThrough user(folder);
    QJsonObject result;
    Walk walk{user, {}, recording, &result, {}, {}};
    std::string whyNot;
    if (!readDescription(recording.toStdString(), &walk.played, &whyNot) || !walk.played.truthThird ||
        (walk.twoCameras() && !walk.played.truthPlatform)) {
        std::fprintf(stderr, "walk-through: no recording with truth: %s\n", whyNot.c_str());
        return 2;
    }
    QString problem;
    const bool played = user.start(recording, command) && play(&walk);
    if (!played) {
        user.look("stuck");
        problem = user.problem();
    }
    const int exitCode = played ? user.waitForEnd() : -1;
    const bool judged = exitCode == 0 && judgeFlash(walk, &problem);
    result.insert("finished", judged);
    result.insert("exitCode", exitCode);
    result.insert("problem", judged ? QString() : problem);
    result.insert("reactionsMs",
                  QJsonObject{{"whilePhotoIsWorkedOn", walk.busyReactionsMs}, {"otherwise", walk.idleReactionsMs}});
    result.insert("touchesUntilStored", user.mainButtonPresses());
    result.insert("screenshots", QJsonArray::fromStringList(user.pictures()));
    QFile file(folder + "/application.json");
    if (file.open(QIODevice::WriteOnly)) file.write(QJsonDocument(result).toJson());
    if (!judged) std::fprintf(stderr, "walk-through: %s\n", qPrintable(problem));
    return judged ? 0 : 1;
}

}  // namespace
}  // namespace fieldcal::demonstration

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 3) {
        std::fprintf(stderr, "usage: walk-through RECORDING FOLDER [COMMAND...]\n");
        return 2;
    }
    QDir().mkpath(arguments[2]);
    return fieldcal::demonstration::run(QDir(arguments[1]).absolutePath(), QDir(arguments[2]).absolutePath(),
                                        arguments.mid(3));
}
