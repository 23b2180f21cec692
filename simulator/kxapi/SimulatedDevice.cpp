#include "simulator/kxapi/SimulatedDevice.h"

#include "simulator/kxapi/Calibration.h"
#include "simulator/kxapi/ParameterBlock.h"
#include "simulator/kxapi/RearCamera.h"
#include "simulator/kxapi/SessionPlayer.h"
#include "simulator/kxapi/WorldSource.h"

#include <QDir>
#include <QStandardPaths>

#include <thread>
#include <utility>

namespace kxsim {
namespace {

/// Returns whether there is a source of images: a recording, or a world where this build can render one.
bool hasSource(const Settings& settings) {
    return !settings.session.empty() || kCanRenderWorlds;
}

/// Opens the recording or the world that the settings name. Returns null with `why` (one line) when something is wrong
/// with it.
std::unique_ptr<FrameSource> openSource(const Settings& settings, std::string* why) {
    if (!settings.session.empty()) return SessionPlayer::open(settings.session, why);
    return openWorld(settings, why);
}

/// Returns the file of the module's parameter block: that of the settings; otherwise, for a rendered module, its own
/// file in the user's data folder; otherwise none (empty).
std::string blockFile(const Settings& settings, std::uint32_t serial) {
    if (!settings.flash.empty() || !settings.session.empty()) return settings.flash;
    const QString folder =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/simulated-deepvane";
    QDir().mkpath(folder);
    return QString("%1/module-%2.block").arg(folder).arg(serial).toStdString();
}

}  // namespace

SimulatedDevice::SimulatedDevice(Settings settings)
    : hardware_(&state_), third_(&state_), emitter_(&state_), platform_(&state_), private_(&state_) {
    state_.settings = std::move(settings);
}

bool SimulatedDevice::openDevice(std::int32_t index) {
    const Settings& settings = state_.settings;
    if (!settings.problem.empty()) {
        reportOnce(settings.problem);
        return state_.fail(KX_STATUS_FAILED);
    }
    return state_.perform("openDevice", Stage::closed, [&] {
        if (state_.stage != Stage::closed) return state_.fail(KX_STATUS_FAILED);
        if (!hasSource(settings) || index < -1 || index > 0) return state_.fail(KX_STATUS_NO_DEVICE);
        return plugIn();
    });
}

/// Creates the module's parts: its images and its parameter block.
bool SimulatedDevice::plugIn() {
    std::string why;
    std::unique_ptr<FrameSource> source = openSource(state_.settings, &why);
    if (source == nullptr) {
        report(why);
        return state_.fail(KX_STATUS_DEVICE_ERROR);
    }
    const fieldcal::session::SessionDescription& description = source->description();
    BlockStore block(blockFile(state_.settings, description.module.serial));
    const BlockResult loaded = block.open(factoryBlock(source->factory()), &state_.activeBlock);
    state_.blockIsValid = loaded.ok();
    // An invalid block makes the calibration invalid; the module itself works, and its block can be written.
    if (!state_.succeeds(loaded) && !block.read(&state_.activeBlock).ok()) return false;
    const auto& depth = description.depth;
    noDepth_.assign(static_cast<std::size_t>(depth.width) * static_cast<std::size_t>(depth.height), 0);
    state_.streams.emplace(state_.settings.right);
    state_.source = std::move(source);
    state_.block = std::move(block);
    state_.stage = Stage::opened;
    return true;
}

bool SimulatedDevice::initDevice() {
    return state_.perform("initDevice", Stage::opened, [&] {
        if (state_.stage != Stage::opened) return state_.fail(KX_STATUS_FAILED);
        state_.stage = Stage::ready;
        return true;
    });
}

const char* SimulatedDevice::firmwareVersionText() {
    return state_.enter("firmwareVersionText", Stage::opened) ? state_.description().module.firmware.c_str() : "";
}

const char* SimulatedDevice::softwareVersionText() {
    return state_.enter("softwareVersionText", Stage::opened) ? state_.description().module.software.c_str() : "";
}

bool SimulatedDevice::serialNumber(std::uint32_t* out) {
    if (!state_.enter("serialNumber", Stage::opened)) return false;
    *out = state_.description().module.serial;
    return true;
}

KXHardwareControl* SimulatedDevice::hardwareControl() {
    return state_.enter("hardwareControl", Stage::opened) ? &hardware_ : nullptr;
}

KXThirdCamera* SimulatedDevice::thirdCamera() {
    return state_.enter("thirdCamera", Stage::opened) ? &third_ : nullptr;
}

KXEmitterControl* SimulatedDevice::emitterControl() {
    return state_.enter("emitterControl", Stage::opened) ? &emitter_ : nullptr;
}

bool SimulatedDevice::setDepthStreamMode(bool rectified, std::int32_t width, std::int32_t height,
                                         std::int32_t framesPerSecond, std::int32_t pixelFormat) {
    return state_.performAtRest("setDepthStreamMode", [&] {
        state_.depthModeSet =
            rectified && width > 0 && height > 0 && framesPerSecond > 0 && pixelFormat == KX_PIXEL_FORMAT_16_BIT;
        return state_.depthModeSet || state_.fail(KX_STATUS_FAILED);
    });
}

bool SimulatedDevice::setEnabled(const char* operation, bool* stream, bool on) {
    return state_.performAtRest(operation, [&] {
        *stream = on;
        return true;
    });
}

bool SimulatedDevice::setDepthEnabled(bool on) {
    return setEnabled("setDepthEnabled", &state_.depthEnabled, on);
}

bool SimulatedDevice::depthEnabled() {
    return state_.enter("depthEnabled", Stage::opened) && state_.depthEnabled;
}

bool SimulatedDevice::setLeftEnabled(bool on) {
    return setEnabled("setLeftEnabled", &state_.leftEnabled, on);
}

bool SimulatedDevice::leftEnabled() {
    return state_.enter("leftEnabled", Stage::opened) && state_.leftEnabled;
}

bool SimulatedDevice::setRightEnabled(bool on) {
    return setEnabled("setRightEnabled", &state_.rightEnabled, on);
}

bool SimulatedDevice::rightEnabled() {
    return state_.enter("rightEnabled", Stage::opened) && state_.rightEnabled;
}

bool SimulatedDevice::setStreamOption(bool) {
    return state_.performAtRest("setStreamOption", [] { return true; });
}

bool SimulatedDevice::startCapture() {
    return state_.performAtRest("startCapture", [this] { return beginCapture(); });
}

bool SimulatedDevice::beginCapture() {
    const bool depthStreams = state_.depthEnabled || state_.leftEnabled || state_.rightEnabled;
    const bool modesSet = (state_.depthModeSet || !depthStreams) && (state_.thirdModeSet || !state_.thirdEnabled);
    if (!modesSet || (!depthStreams && !state_.thirdEnabled)) return state_.fail(KX_STATUS_FAILED);
    state_.stage = Stage::capturing;
    state_.resting = false;
    pace_.start(state_.source->grabsPerSecond(), state_.settings.speed);
    return true;
}

bool SimulatedDevice::stopCapture() {
    return state_.perform("stopCapture", Stage::capturing, [this] {
        state_.stage = Stage::ready;
        state_.resting = true;
        return true;
    });
}

bool SimulatedDevice::grab(bool wait) {
    return state_.perform("grab", Stage::capturing, [&] { return nextFrame(wait); });
}

bool SimulatedDevice::nextFrame(bool wait) {
    if (!pace_.frameDue(wait)) return true;
    std::string why;
    const std::uint64_t before = state_.source->grabs();
    state_.source->setEmitter(emitter_.isOn());
    state_.source->setPlatformWanted(RearCamera::instance().streams());
    if (!state_.source->advance(&why)) {
        report(why);
        return state_.fail(KX_STATUS_DEVICE_ERROR);
    }
    if (state_.source->grabs() == before) {
        if (state_.source->current() == nullptr) RearCamera::instance().showDark();
        return true;
    }
    state_.streams->follow(*state_.source->current(), state_.source->hasNewPlatformImage(), state_.settings.faults);
    showToRearCamera();
    return true;
}

void SimulatedDevice::showToRearCamera() const {
    const std::uint8_t* nv12 = state_.streams->platform();
    const double seconds = static_cast<double>(state_.source->grabs()) / state_.source->grabsPerSecond();
    if (nv12 != nullptr) RearCamera::instance().show(nv12, seconds);
}

const std::uint16_t* SimulatedDevice::depthImage() {
    if (!state_.enter("depthImage", Stage::opened) || !state_.depthEnabled || state_.frame() == nullptr) return nullptr;
    return state_.streams->hasDepth() ? state_.streams->depth() : noDepth_.data();
}

const std::uint16_t* SimulatedDevice::leftImage() {
    if (!state_.enter("leftImage", Stage::opened) || !state_.leftEnabled || state_.frame() == nullptr) return nullptr;
    return state_.streams->left();
}

const std::uint16_t* SimulatedDevice::rightImage() {
    if (!state_.enter("rightImage", Stage::opened) || !state_.rightEnabled || state_.frame() == nullptr) return nullptr;
    return state_.streams->right();
}

std::int32_t SimulatedDevice::depthWidth() {
    return state_.enter("depthWidth", Stage::opened) ? state_.description().depth.width : 0;
}

std::int32_t SimulatedDevice::depthHeight() {
    return state_.enter("depthHeight", Stage::opened) ? state_.description().depth.height : 0;
}

std::int32_t SimulatedDevice::lrWidth() {
    return state_.enter("lrWidth", Stage::opened) ? state_.description().infrared.width : 0;
}

std::int32_t SimulatedDevice::lrHeight() {
    return state_.enter("lrHeight", Stage::opened) ? state_.description().infrared.height : 0;
}

std::int32_t SimulatedDevice::lastStatus() {
    const bool knows = !state_.settings.faults.threadBoundStatus() || state_.failedOn == std::this_thread::get_id();
    return knows ? state_.lastStatus : KX_STATUS_OK;
}

bool SimulatedDevice::calibrationValid() {
    return state_.enter("calibrationValid", Stage::opened) && state_.calibrationValid();
}

bool SimulatedDevice::rectifiedLRIntrinsics(KXCalibIntrinsicsRectified* out) {
    if (!state_.enterCalibration("rectifiedLRIntrinsics")) return false;
    *out = rectifiedIntrinsics(state_.description().infrared);
    if (state_.settings.faults.wrongSize()) out->w += 2;
    return true;
}

bool SimulatedDevice::zIntrinsics(KXCalibIntrinsicsRectified* out) {
    if (!state_.enterCalibration("zIntrinsics")) return false;
    *out = rectifiedIntrinsics(state_.description().depth);
    return true;
}

bool SimulatedDevice::rectParameters(KXCalibRectParameters* out) {
    if (!state_.enter("rectParameters", Stage::ready)) return false;
    const std::optional<Fault>& fault = state_.fault();
    const bool old = fault && fault->kind == FaultKind::old;
    if (!state_.succeeds(old ? state_.block->readPrevious(out) : state_.block->read(out))) return false;
    if (fault && fault->kind == FaultKind::garble) garble(out, fault->number);
    return true;
}

KXPlatformCamera* SimulatedDevice::platformCamera() {
    return state_.enter("platformCamera", Stage::opened) && state_.description().platform ? &platform_ : nullptr;
}

KXPrivate* SimulatedDevice::privateInterface() {
    return state_.enter("privateInterface", Stage::opened) ? &private_ : nullptr;
}

void SimulatedDevice::close() {
    state_.perform("destroyDevice", Stage::closed, [] { return true; });
}

bool SimulatedDevice::resumeDevice() {
    return state_.performAtRest("resumeDevice", [this] {
        return state_.resting ? state_.loadCalibration() && beginCapture() : state_.fail(KX_STATUS_FAILED);
    });
}

}  // namespace kxsim
