#include "tools/ObservedModule.h"

#include <algorithm>
#include <utility>

namespace fieldcal {
namespace {

/// The operations in the order of `KXAPI.h`, and the functions exported by the library.
constexpr const char* kOperations[] = {"openDevice",
                                       "initDevice",
                                       "firmwareVersionText",
                                       "softwareVersionText",
                                       "serialNumber",
                                       "hardwareControl",
                                       "thirdCamera",
                                       "emitterControl",
                                       "setDepthStreamMode",
                                       "setDepthEnabled",
                                       "depthEnabled",
                                       "setLeftEnabled",
                                       "leftEnabled",
                                       "setRightEnabled",
                                       "rightEnabled",
                                       "setStreamOption",
                                       "startCapture",
                                       "stopCapture",
                                       "grab",
                                       "depthImage",
                                       "leftImage",
                                       "rightImage",
                                       "depthWidth",
                                       "depthHeight",
                                       "lrWidth",
                                       "lrHeight",
                                       "calibrationValid",
                                       "rectifiedLRIntrinsics",
                                       "zIntrinsics",
                                       "rectParameters",
                                       "platformCamera",
                                       "privateInterface",
                                       "resumeDevice",
                                       "setAutoExposure",
                                       "setGain",
                                       "setExposure",
                                       "setHardwareOption",
                                       "setThirdStreamMode",
                                       "setThirdEnabled",
                                       "thirdEnabled",
                                       "thirdImage",
                                       "thirdWidth",
                                       "thirdHeight",
                                       "rectifiedThirdIntrinsics",
                                       "zToThirdExtrinsics",
                                       "setEmitter",
                                       "setPlatformMode",
                                       "nonRectifiedIntrinsics",
                                       "rectifiedIntrinsics",
                                       "rectificationRotation",
                                       "zToPlatformExtrinsics",
                                       "writeRectParameters",
                                       "commitCalibration",
                                       "KXStatusString",
                                       "KXRectificationTable",
                                       "KXRectifyBGRA8ToBGRA8"};

bool isAnswer(bool answer) {
    return answer;
}
bool isAnswer(std::int32_t size) {
    return size > 0;
}
bool isAnswer(const char* text) {
    return text != nullptr && *text != '\0';
}
template <typename Pointed>
bool isAnswer(const Pointed* pointer) {
    return pointer != nullptr;
}

/// Forwards the calls of one interface of the library and counts them.
template <typename Interface>
class Observed : public Interface {
public:
    void observe(Interface* inner, OperationLog* log) {
        inner_ = inner;
        log_ = log;
    }

protected:
    Interface& inner() { return *inner_; }
    OperationLog& log() { return *log_; }

    /// Makes a call that counts as failed when it returns false, zero or null.
    template <typename Operation, typename... Arguments>
    auto observed(const char* name, Operation operation, Arguments... arguments) {
        return made(name, true, operation, arguments...);
    }
    /// Makes a call for which false, zero or null is a regular result.
    template <typename Operation, typename... Arguments>
    auto unrecorded(const char* name, Operation operation, Arguments... arguments) {
        return made(name, false, operation, arguments...);
    }

private:
    template <typename Operation, typename... Arguments>
    auto made(const char* name, bool mustAnswer, Operation operation, Arguments... arguments) {
        const auto begun = OperationLog::Clock::now();
        log_->begin(name);
        auto answer = (inner_->*operation)(arguments...);
        log_->end(name, begun, mustAnswer && !isAnswer(answer));
        return answer;
    }

    Interface* inner_ = nullptr;
    OperationLog* log_ = nullptr;
};

class ObservedHardwareControl final : public Observed<KXHardwareControl> {
public:
    /// Wraps `found`; null stays null.
    KXHardwareControl* around(KXHardwareControl* found) {
        if (found == nullptr) return nullptr;
        observe(found, &log());
        return this;
    }

    bool setAutoExposure(std::int32_t imagers, bool on) override {
        return observed("setAutoExposure", &KXHardwareControl::setAutoExposure, imagers, on);
    }
    bool setGain(float value, std::int32_t imagers) override {
        return observed("setGain", &KXHardwareControl::setGain, value, imagers);
    }
    bool setExposure(float milliseconds, std::int32_t imagers) override {
        return observed("setExposure", &KXHardwareControl::setExposure, milliseconds, imagers);
    }
    bool setHardwareOption(bool on, std::int32_t value) override {
        return observed("setHardwareOption", &KXHardwareControl::setHardwareOption, on, value);
    }
};

class ObservedThirdCamera final : public Observed<KXThirdCamera> {
public:
    /// Wraps `found`; null stays null.
    KXThirdCamera* around(KXThirdCamera* found) {
        if (found == nullptr) return nullptr;
        observe(found, &log());
        return this;
    }

    bool setThirdStreamMode(bool rectified, std::int32_t width, std::int32_t height, std::int32_t framesPerSecond,
                            std::int32_t pixelFormat) override {
        return observed("setThirdStreamMode", &KXThirdCamera::setThirdStreamMode, rectified, width, height,
                        framesPerSecond, pixelFormat);
    }
    bool setThirdEnabled(bool on) override { return observed("setThirdEnabled", &KXThirdCamera::setThirdEnabled, on); }
    bool thirdEnabled() override { return unrecorded("thirdEnabled", &KXThirdCamera::thirdEnabled); }
    const std::uint8_t* thirdImage() override { return unrecorded("thirdImage", &KXThirdCamera::thirdImage); }
    std::int32_t thirdWidth() override { return observed("thirdWidth", &KXThirdCamera::thirdWidth); }
    std::int32_t thirdHeight() override { return observed("thirdHeight", &KXThirdCamera::thirdHeight); }
    bool rectifiedThirdIntrinsics(KXCalibIntrinsicsRectified* out) override {
        return observed("rectifiedThirdIntrinsics", &KXThirdCamera::rectifiedThirdIntrinsics, out);
    }
    bool zToThirdExtrinsics(KXCalibExtrinsics* out) override {
        return observed("zToThirdExtrinsics", &KXThirdCamera::zToThirdExtrinsics, out);
    }
};

class ObservedEmitterControl final : public Observed<KXEmitterControl> {
public:
    /// Wraps `found`; null stays null.
    KXEmitterControl* around(KXEmitterControl* found) {
        if (found == nullptr) return nullptr;
        observe(found, &log());
        return this;
    }

    bool setEmitter(bool on) override { return observed("setEmitter", &KXEmitterControl::setEmitter, on); }
};

class ObservedPlatformCamera final : public Observed<KXPlatformCamera> {
public:
    /// Wraps `found`; null stays null.
    KXPlatformCamera* around(KXPlatformCamera* found) {
        if (found == nullptr) return nullptr;
        observe(found, &log());
        return this;
    }

    bool setPlatformMode(std::int32_t rectified, std::int32_t width, std::int32_t height) override {
        return observed("setPlatformMode", &KXPlatformCamera::setPlatformMode, rectified, width, height);
    }
    bool nonRectifiedIntrinsics(KXCalibIntrinsicsNonRectified* out) override {
        return observed("nonRectifiedIntrinsics", &KXPlatformCamera::nonRectifiedIntrinsics, out);
    }
    bool rectifiedIntrinsics(KXCalibIntrinsicsRectified* out) override {
        return observed("rectifiedIntrinsics", &KXPlatformCamera::rectifiedIntrinsics, out);
    }
    const double* rectificationRotation() override {
        return observed("rectificationRotation", &KXPlatformCamera::rectificationRotation);
    }
    bool zToPlatformExtrinsics(KXCalibExtrinsics* out) override {
        return observed("zToPlatformExtrinsics", &KXPlatformCamera::zToPlatformExtrinsics, out);
    }
};

class ObservedPrivate final : public Observed<KXPrivate> {
public:
    /// Wraps `found`; null stays null.
    KXPrivate* around(KXPrivate* found) {
        if (found == nullptr) return nullptr;
        observe(found, &log());
        return this;
    }

    bool writeRectParameters(const KXCalibRectParameters* parameters, bool permanent) override {
        return observed("writeRectParameters", &KXPrivate::writeRectParameters, parameters, permanent);
    }
    bool commitCalibration() override { return observed("commitCalibration", &KXPrivate::commitCalibration); }
};

class ObservedDevice final : public Observed<KXDevice> {
public:
    ObservedDevice(KXDevice* device, std::shared_ptr<OperationLog> log) : log_(std::move(log)) {
        observe(device, log_.get());
        hardware_.observe(nullptr, log_.get());
        third_.observe(nullptr, log_.get());
        emitter_.observe(nullptr, log_.get());
        platform_.observe(nullptr, log_.get());
        private_.observe(nullptr, log_.get());
    }
    KXDevice* device() { return &inner(); }

    bool openDevice(std::int32_t index) override { return observed("openDevice", &KXDevice::openDevice, index); }
    bool initDevice() override { return observed("initDevice", &KXDevice::initDevice); }
    const char* firmwareVersionText() override {
        return observed("firmwareVersionText", &KXDevice::firmwareVersionText);
    }
    const char* softwareVersionText() override {
        return observed("softwareVersionText", &KXDevice::softwareVersionText);
    }
    bool serialNumber(std::uint32_t* out) override { return observed("serialNumber", &KXDevice::serialNumber, out); }
    KXHardwareControl* hardwareControl() override {
        return hardware_.around(observed("hardwareControl", &KXDevice::hardwareControl));
    }
    KXThirdCamera* thirdCamera() override { return third_.around(observed("thirdCamera", &KXDevice::thirdCamera)); }
    KXEmitterControl* emitterControl() override {
        return emitter_.around(observed("emitterControl", &KXDevice::emitterControl));
    }
    bool setDepthStreamMode(bool rectified, std::int32_t width, std::int32_t height, std::int32_t framesPerSecond,
                            std::int32_t pixelFormat) override {
        return observed("setDepthStreamMode", &KXDevice::setDepthStreamMode, rectified, width, height, framesPerSecond,
                        pixelFormat);
    }
    bool setDepthEnabled(bool on) override { return observed("setDepthEnabled", &KXDevice::setDepthEnabled, on); }
    bool depthEnabled() override { return unrecorded("depthEnabled", &KXDevice::depthEnabled); }
    bool setLeftEnabled(bool on) override { return observed("setLeftEnabled", &KXDevice::setLeftEnabled, on); }
    bool leftEnabled() override { return unrecorded("leftEnabled", &KXDevice::leftEnabled); }
    bool setRightEnabled(bool on) override { return observed("setRightEnabled", &KXDevice::setRightEnabled, on); }
    bool rightEnabled() override { return unrecorded("rightEnabled", &KXDevice::rightEnabled); }
    bool setStreamOption(bool on) override { return observed("setStreamOption", &KXDevice::setStreamOption, on); }
    bool startCapture() override { return observed("startCapture", &KXDevice::startCapture); }
    bool stopCapture() override { return observed("stopCapture", &KXDevice::stopCapture); }
    bool grab(bool wait) override { return observed("grab", &KXDevice::grab, wait); }
    const std::uint16_t* depthImage() override { return unrecorded("depthImage", &KXDevice::depthImage); }
    const std::uint16_t* leftImage() override { return unrecorded("leftImage", &KXDevice::leftImage); }
    const std::uint16_t* rightImage() override { return unrecorded("rightImage", &KXDevice::rightImage); }
    std::int32_t depthWidth() override { return observed("depthWidth", &KXDevice::depthWidth); }
    std::int32_t depthHeight() override { return observed("depthHeight", &KXDevice::depthHeight); }
    std::int32_t lrWidth() override { return observed("lrWidth", &KXDevice::lrWidth); }
    std::int32_t lrHeight() override { return observed("lrHeight", &KXDevice::lrHeight); }
    std::int32_t lastStatus() override {
        const std::int32_t status = inner().lastStatus();
        log().noteStatus(status);
        return status;
    }
    bool calibrationValid() override { return unrecorded("calibrationValid", &KXDevice::calibrationValid); }
    bool rectifiedLRIntrinsics(KXCalibIntrinsicsRectified* out) override {
        return observed("rectifiedLRIntrinsics", &KXDevice::rectifiedLRIntrinsics, out);
    }
    bool zIntrinsics(KXCalibIntrinsicsRectified* out) override {
        return observed("zIntrinsics", &KXDevice::zIntrinsics, out);
    }
    bool rectParameters(KXCalibRectParameters* out) override {
        return observed("rectParameters", &KXDevice::rectParameters, out);
    }
    KXPlatformCamera* platformCamera() override {
        return platform_.around(unrecorded("platformCamera", &KXDevice::platformCamera));
    }
    KXPrivate* privateInterface() override {
        return private_.around(observed("privateInterface", &KXDevice::privateInterface));
    }
    bool resumeDevice() override { return observed("resumeDevice", &KXDevice::resumeDevice); }

private:
    const std::shared_ptr<OperationLog> log_;
    ObservedHardwareControl hardware_;
    ObservedThirdCamera third_;
    ObservedEmitterControl emitter_;
    ObservedPlatformCamera platform_;
    ObservedPrivate private_;
};

/// What the functions below need. It is shared by the whole process, because the library's exported functions are plain
/// functions without a context.
struct Observation {
    std::shared_ptr<const KXLibrary> library;
    std::shared_ptr<OperationLog> log;
};

Observation& observation() {
    static Observation current;
    return current;
}

KXDevice* createObserved(std::int32_t platform) {
    const Observation& current = observation();
    KXDevice* device = current.library->create(platform);
    return device != nullptr ? new ObservedDevice(device, current.log) : nullptr;
}

void destroyObserved(KXDevice* device) {
    auto* observed = static_cast<ObservedDevice*>(device);
    if (observed != nullptr) observation().library->destroy(observed->device());
    delete observed;
}

template <typename Call>
void timed(const char* name, Call call) {
    const auto begun = OperationLog::Clock::now();
    const std::shared_ptr<OperationLog> log = observation().log;
    log->begin(name);
    log->end(name, begun, !call());
}

const char* observedStatusString(std::int32_t status) {
    const char* text = nullptr;
    timed("KXStatusString", [&] {
        text = observation().library->statusString(status);
        return text != nullptr;
    });
    return text;
}

void observedTable(const KXCalibIntrinsicsNonRectified* raw, const double* rotation,
                   const KXCalibIntrinsicsRectified* rectified, std::uint32_t* table) {
    timed("KXRectificationTable", [&] {
        observation().library->rectificationTable(raw, rotation, rectified, table);
        return true;
    });
}

void observedRectification(const std::uint32_t* table, const std::uint8_t* source, std::int32_t pitchPixels,
                           std::int32_t width, std::int32_t height, std::uint8_t* destination) {
    timed("KXRectifyBGRA8ToBGRA8", [&] {
        observation().library->rectifyBGRA8ToBGRA8(table, source, pitchPixels, width, height, destination);
        return true;
    });
}

std::shared_ptr<const KXLibrary> observedLibrary(std::shared_ptr<const KXLibrary> library,
                                                 const std::shared_ptr<OperationLog>& log) {
    if (library == nullptr) return nullptr;
    observation() = {std::move(library), log};
    auto observed = std::make_shared<KXLibrary>();
    observed->create = createObserved;
    observed->destroy = destroyObserved;
    observed->statusString = observedStatusString;
    observed->rectificationTable = observedTable;
    observed->rectifyBGRA8ToBGRA8 = observedRectification;
    return observed;
}

}  // namespace

void OperationLog::begin(const char* name) {
    const std::lock_guard guard(mutex_);
    OperationRecord& record = records_[name];
    ++record.calls;
    record.underWay = true;
}

void OperationLog::end(const char* name, Clock::time_point begun, bool failed) {
    const double ms = std::chrono::duration<double, std::milli>(Clock::now() - begun).count();
    const std::lock_guard guard(mutex_);
    OperationRecord& record = records_[name];
    record.underWay = false;
    if (record.calls == 1) {
        record.firstMs = ms;
    } else {
        record.longestLaterMs = std::max(record.longestLaterMs, ms);
    }
    record.longestMs = std::max(record.longestMs, ms);
    if (!failed) return;
    ++record.failures;
    lastFailure_ = name;
}

void OperationLog::noteStatus(std::int32_t status) {
    const std::lock_guard guard(mutex_);
    if (lastFailure_.empty()) return;
    OperationRecord& record = records_[lastFailure_];
    if (!record.status) record.status = status;
    lastFailure_.clear();
}

std::vector<OperationRecord> OperationLog::records() const {
    const std::lock_guard guard(mutex_);
    std::vector<OperationRecord> all;
    for (const char* name : kOperations) {
        const auto found = records_.find(name);
        all.push_back(found != records_.end() ? found->second : OperationRecord{});
        all.back().name = name;
    }
    return all;
}

/// A simulated module provides its rear camera through the library itself.
SensorEnvironment observedEnvironment(const std::shared_ptr<OperationLog>& log) {
    SensorEnvironment environment = systemEnvironment();
    environment.loadLibrary = [log, load = environment.loadLibrary](std::string* why) {
        return observedLibrary(load(why), log);
    };
    environment.createPlatformCamera = [create =
                                            environment.createPlatformCamera](const std::shared_ptr<const KXLibrary>&) {
        return create(observation().library);
    };
    return environment;
}

}  // namespace fieldcal
