#include "tools/CommandLine.h"
#include "tools/ConnectedModule.h"
#include "tools/Console.h"
#include "tools/RecordingWriter.h"

#include <chrono>

namespace fieldcal {
namespace {

constexpr int kFramesPerProgressLine = 50;

/// Begins with the wall clock's time, but intervals stay right if that clock is set meanwhile.
class RecordingClock {
public:
    std::int64_t nowNs() const {
        const std::chrono::nanoseconds now = begin_ + (std::chrono::steady_clock::now() - start_);
        return now.count();
    }

private:
    const std::chrono::nanoseconds begin_ = std::chrono::system_clock::now().time_since_epoch();
    const std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

bool record(ConnectedModule& module, const RecordOptions& options, RecordingWriter* recording, QString* why) {
    std::string reason;
    const RecordingClock clock;
    for (int done = 0; done < options.frames;) {
        session::FrameImages images;
        if (!module.grab(&images, why)) return false;
        if (!recording->add(std::move(images), &reason, {1, clock.nowNs()})) {
            *why = QString::fromStdString(reason);
            return false;
        }
        if (++done % kFramesPerProgressLine == 0 && done < options.frames) {
            printLine(QString("%1 of %2 frame sets").arg(done).arg(options.frames));
        }
    }
    // The recording is kept only if the module was closed without an error.
    if (!module.close(why)) return false;
    if (recording->finish(&reason)) return true;
    *why = QString::fromStdString(reason);
    return false;
}

}  // namespace

int run(const RecordOptions& options) {
    silenceLogs();
    QString why;
    ConnectedModule module;
    session::SessionDescription description;
    if (!module.open(true, &why) || !module.describe(&description, &why)) return fail(why);
    if (!module.hasRearCamera()) description.platform.reset();
    RecordingWriter recording(options.folder, description);
    std::string reason;
    if (!recording.start(&reason)) return fail(QString::fromStdString(reason));
    if (!record(module, options, &recording, &why)) return fail(why);
    printLine(QString("recorded %1 frame sets as %2 frames, %3, in %4")
                  .arg(options.frames)
                  .arg(recording.frameCount())
                  .arg(description.platform ? "with the rear camera" : "without a rear camera")
                  .arg(QString::fromStdString(options.folder)));
    return kSolved;
}

}  // namespace fieldcal
