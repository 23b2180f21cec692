#include "tools/ModuleCheck.h"

#include "tools/BlockCheck.h"

#include <algorithm>
#include <chrono>
#include <set>
#include <utility>

namespace fieldcal {
namespace {

constexpr int kWarmUpSets = 30;
constexpr int kTimedSets = 180;
constexpr int kMaxSets = 3600;
constexpr int kStillRepeats = 26;
constexpr int kSetsAfterStills = 60;
constexpr int kPatientSets = 1200;  ///< number of frame sets without a new still after which capture ends
constexpr int kLargestStatus = 12;
constexpr int kUnknownStatus = 77;
constexpr double kLongestCallMs = 3000;
constexpr int kNamedStatuses[] = {
    KX_STATUS_OK,           KX_STATUS_FAILED,      KX_STATUS_NOT_CALIBRATED,  KX_STATUS_NO_DEVICE,
    KX_STATUS_DEVICE_ERROR, KX_STATUS_DEVICE_BUSY, KX_STATUS_FIRMWARE_TOO_OLD};
constexpr std::int32_t kBothImagers = 3;

bool fits(const char* name, const std::optional<KXCalibIntrinsicsRectified>& record, std::int32_t width,
          std::int32_t height, QStringList* texts) {
    if (!record) return true;
    *texts << QString("%1: intrinsics for %2 x %3, images of %4 x %5")
                  .arg(name)
                  .arg(record->w)
                  .arg(record->h)
                  .arg(width)
                  .arg(height);
    return record->w == width && record->h == height;
}

}  // namespace

ModuleCheck::ModuleCheck(const CheckOptions& options, std::function<void(const QString&)> showProgress)
    : options_(options), showProgress_(std::move(showProgress)), module_(observedEnvironment(log_)) {}

ModuleFindings ModuleCheck::run() {
    if (open()) look();
    finish();
    return std::move(found_);
}

bool ModuleCheck::open() {
    reportProgress("Opening the module.");
    QString why;
    return module_.open(true, &why) || stop(why);
}

bool ModuleCheck::look() {
    found_.module = module_.info();
    add({"calibration", "the module reports that it is calibrated", verdictOf(found_.module.calibrationValid), ""});
    checkTexts();
    const bool sizesFit = checkSizes();
    BlockFindings block = checkBlock(module_);
    found_.block = block.block;
    for (const CheckLine& line : block.lines)
        add(line);
    // The calibration is read only if its sizes fit, because the module cannot be used any further after reading one
    // that does not fit.
    session::SessionDescription description;
    QString why;
    const bool described = sizesFit && (module_.describe(&description, &why) || stop(why));
    const bool captured = timeStreams(described) && described && capture(description);
    for (const CheckLine& line : watch_->lines())
        add(line);
    if (captured) checkScene();
    add(companionLine(block, shown_));
    checkRest();
    if (options_.writeBackUnchanged && block.block) add(writeBackUnchanged(module_, *block.block));
    return true;
}

void ModuleCheck::checkTexts() {
    const KXLibrary& library = *module_.sensor().link().library();
    std::set<QString> texts;
    for (int status = 0; status <= kLargestStatus; ++status) {
        const char* text = library.statusString(status);
        found_.statusTexts[status] = QString::fromUtf8(text != nullptr ? text : "");
    }
    const bool survives = library.statusString(kUnknownStatus) != nullptr;
    bool named = true;
    for (const int status : kNamedStatuses) {
        named = named && !found_.statusTexts[status].isEmpty();
        texts.insert(found_.statusTexts[status]);
    }
    const bool differ = texts.size() == std::size(kNamedStatuses);
    QString text = "each of the seven statuses that the program distinguishes has its own text";
    if (!differ) text = "two of the seven statuses that the program distinguishes have the same text";
    if (!named) text = "one of the seven statuses that the program distinguishes has no text";
    if (!survives) text = "an unknown status number has no text";
    add({"status-texts", "status texts are complete and distinct", verdictOf(named && differ && survives), text});
}

/// Checks the sizes one by one. The calibration as a whole is read later, because that ends at the first value that
/// does not fit.
bool ModuleCheck::checkSizes() {
    ModuleLink& link = module_.sensor().link();
    KXDevice* device = module_.sensor().device().get();
    KXThirdCamera* third = module_.sensor().thirdCamera();
    const auto infrared = link.read(device, &KXDevice::rectifiedLRIntrinsics);
    const auto depth = link.read(device, &KXDevice::zIntrinsics);
    const auto colour = link.read(third, &KXThirdCamera::rectifiedThirdIntrinsics);
    CheckLine line{"intrinsics", "intrinsics match the image sizes", Verdict::CannotTell,
                   "the intrinsics could not be read"};
    if (infrared && depth && colour) {
        QStringList texts;
        const bool left = fits("infrared", infrared, device->lrWidth(), device->lrHeight(), &texts);
        const bool z = fits("depth", depth, device->depthWidth(), device->depthHeight(), &texts);
        const bool rgb = fits("third", colour, third->thirdWidth(), third->thirdHeight(), &texts);
        line.verdict = verdictOf(left && z && rgb);
        line.text = texts.join(", ");
    }
    add(line);
    return line.verdict == Verdict::Fits;
}

bool ModuleCheck::timeStreams(bool described) {
    reportProgress("Point the module at scenery with detail, some of it near, and hold it still.");
    // The rear camera delivers images as soon as its calibration is known.
    watch_.emplace(described && module_.hasRearCamera());
    for (int i = 0; i < kWarmUpSets + kTimedSets; ++i) {
        if (i == kWarmUpSets) watch_->setTiming(true);
        session::FrameImages images;
        QString why;
        if (!module_.grabAvailable(&images, &why)) return stop(why);
        watch_->take(images, StreamWatch::Clock::now());
    }
    watch_->setTiming(false);
    return true;
}

bool ModuleCheck::capture(session::SessionDescription description) {
    QString why;
    const bool withRear = module_.hasRearCamera() && description.platform.has_value();
    if (!withRear) description.platform.reset();
    if (!startRecording(description)) return false;
    std::vector<StillCapture> captures;
    const auto wanted = static_cast<std::size_t>(options_.stills);
    captures.emplace_back(false, wanted);
    if (withRear) captures.emplace_back(true, wanted);
    int setsLeft = kPatientSets;
    for (int i = 0; i < setsLeft; ++i) {
        session::FrameImages images;
        if (!module_.grabAvailable(&images, &why)) return stop(why);
        watch_->take(images, StreamWatch::Clock::now());
        bool taken = false, complete = true;
        for (std::size_t c = 0; c < captures.size(); ++c) {
            if (module_.sensor().isFreshPair(kColourCameras[c]))
                taken = captures[c].take(module_.sensor().frames()) || taken;
            complete = complete && captures[c].isComplete();
        }
        if (taken) keepStill(images);
        if (taken) setsLeft = std::min(kMaxSets, i + kPatientSets);
        if (complete) setsLeft = std::min(setsLeft, i + kSetsAfterStills);
        const StillCapture& slower = captures.back().isComplete() ? captures.front() : captures.back();
        reportProgress(
            QString("%1 of %2 stills. %3").arg(slower.stills().size()).arg(options_.stills).arg(slower.advice()));
    }
    for (std::size_t c = 0; c < captures.size(); ++c)
        cameras_.push_back({c == 1, captures[c].stills()});
    return true;
}

bool ModuleCheck::startRecording(const session::SessionDescription& description) {
    if (options_.folder.empty()) return true;
    recording_ = std::make_unique<RecordingWriter>(options_.folder + "/recording", description);
    std::string why;
    return recording_->start(&why) || stop(QString::fromStdString(why));
}

/// Records a still with enough repeats for the selection of photos to find it again.
void ModuleCheck::keepStill(const session::FrameImages& images) {
    if (recording_ == nullptr) return;
    std::string why;
    if (recording_->add(images, &why, {kStillRepeats, {}})) return;
    stop(QString::fromStdString(why));
    recording_.reset();
}

void ModuleCheck::checkScene() {
    reportProgress("Comparing the cameras. This takes some seconds.");
    add(checkTranslations(module_.parameters(), cameras_.size() > 1));
    QStringList prerequisites{"stream-left", "stream-right", "stream-depth", "packed-rows", "same-moment"};
    for (const CheckLine& line : checkStereo(cameras_.front().stills, module_.parameters()))
        add(qualifiedBy(line, found_.lines, prerequisites));
    const CheckLines trusted = found_.lines;
    prerequisites << "stream-third"
                  << "stream-rear"
                  << "translation-unit"
                  << "imagers"
                  << "stereo-rows"
                  << "baseline";
    for (const CameraStills& camera : cameras_) {
        Direction direction = Direction::Unknown;
        for (const CheckLine& line : checkCamera(camera, module_.parameters(), trusted, &direction))
            add(qualifiedBy(line, trusted, prerequisites));
        if (direction != Direction::Unknown && shown_ == Direction::Unknown) shown_ = direction;
    }
}

/// Calls the remaining operations that the program uses in the course of its work.
void ModuleCheck::checkRest() {
    ModuleLink& link = module_.sensor().link();
    KXDevice* device = module_.sensor().device().get();
    KXHardwareControl* hardware = link.ask([device] { return device->hardwareControl(); });
    const SensorSettings settings = applicationSettings();
    const bool good = hardware != nullptr && link.ask([=] { return hardware->setAutoExposure(kBothImagers, false); }) &&
                      link.ask([=] { return hardware->setGain(settings.gain, kBothImagers); }) &&
                      link.ask([=] { return hardware->setExposure(settings.exposure, kBothImagers); }) &&
                      link.ask([=] { return hardware->setAutoExposure(kBothImagers, true); }) &&
                      link.ask([=] { return device->privateInterface(); }) != nullptr &&
                      link.ask([=] { return device->stopCapture(); }) &&
                      link.ask([=] { return device->resumeDevice(); });
    session::FrameImages images;
    QString why;
    CheckLine line{"resume", "images continue after stopping and resuming", Verdict::CannotTell, ""};
    if (good)
        line.verdict =
            verdictOf(module_.grabAvailable(&images, &why) && !(images.infrared.empty() && images.third.empty()));
    add(line);
}

void ModuleCheck::finish() {
    QString why;
    if (!module_.close(&why)) stop(why);
    std::string reason;
    if (recording_ != nullptr && recording_->frameCount() > 0 && !recording_->finish(&reason)) {
        stop(QString::fromStdString(reason));
    }
    if (watch_) {
        for (std::size_t stream = 0; stream < kStreamCount; ++stream)
            found_.streams[stream] = watch_->statistics(stream);
    }
    found_.operations = log_->records();
    found_.lines.insert(found_.lines.begin(), timeLine());
    found_.lines.insert(found_.lines.begin(), operationLine());
}

CheckLine ModuleCheck::operationLine() const {
    CheckLine line{"operations", "every operation responds", Verdict::Fits, ""};
    const std::set<QString> ofWriting{"writeRectParameters", "commitCalibration"};
    const std::set<QString> ofRearCamera{"setPlatformMode",       "nonRectifiedIntrinsics", "rectifiedIntrinsics",
                                         "rectificationRotation", "zToPlatformExtrinsics",  "KXRectificationTable",
                                         "KXRectifyBGRA8ToBGRA8"};
    QStringList failed, uncalled;
    for (const OperationRecord& record : found_.operations) {
        const QString name = QString::fromStdString(record.name);
        const QString status = record.status ? QString(" (status %1)").arg(*record.status) : QString();
        if (record.underWay) failed << name + " does not return";
        if (record.failures > 0) failed << QString("%1 failed%2").arg(name, status);
        const bool mayBeMissing = (ofWriting.count(name) > 0 && !options_.writeBackUnchanged) ||
                                  (ofRearCamera.count(name) > 0 && cameras_.size() < 2);
        if (record.calls == 0 && !mayBeMissing) uncalled << name;
    }
    const auto called = std::count_if(found_.operations.begin(), found_.operations.end(),
                                      [](const OperationRecord& record) { return record.calls > 0; });
    line.text = QString("%1 of %2 operations were called").arg(called).arg(found_.operations.size());
    if (!uncalled.isEmpty()) line.verdict = Verdict::CannotTell;
    if (!failed.isEmpty()) line.verdict = Verdict::DoesNotFit;
    if (!failed.isEmpty()) line.text += "; " + failed.join(", ");
    if (!uncalled.isEmpty()) line.text += QString("; not called: %1").arg(uncalled.mid(0, 5).join(", "));
    return line;
}

CheckLine ModuleCheck::timeLine() const {
    CheckLine line{"call-times", "calls return in time", Verdict::CannotTell, "no call was made"};
    double longestMs = 0;
    for (const OperationRecord& record : found_.operations) {
        // The first frame set may take long.
        const double ms = record.name == "grab" ? record.longestLaterMs : record.longestMs;
        if (ms <= longestMs) continue;
        longestMs = ms;
        line.text = QString("%1 took the longest, %2 ms").arg(QString::fromStdString(record.name)).arg(ms, 0, 'f', 1);
    }
    if (longestMs > 0) line.verdict = verdictOf(longestMs <= kLongestCallMs);
    return line;
}

/// A line equal to the previous one is not repeated.
void ModuleCheck::reportProgress(const QString& line) {
    if (showProgress_ && line != lastProgress_) showProgress_(line);
    lastProgress_ = line;
}

/// Keeps the first reason only.
bool ModuleCheck::stop(const QString& why) {
    if (found_.ended.isEmpty()) found_.ended = why;
    return false;
}

}  // namespace fieldcal
