#pragma once

#include "devices/WatchedCalls.h"
#include "kxapi/Library.h"
#include "kxapi/RotationUpdater.h"

#include <QString>

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace fieldcal {

/// What the user is told, in the language of the interface, about a failed call of the camera library.
struct StatusNotice {
    bool missingDevice = false;  ///< the missing-camera notice; `text` is empty then
    QString text;                ///< "library's text - message"
};

/// The link to the camera module: the library, its companion, the device, and every call that reaches it. The calls
/// are watched, and the first one that fails is fatal: it is reported once, and from then on only quiet calls are made.
/// One thread.
class ModuleLink {
public:
    struct Limits {
        std::chrono::milliseconds call{10000};    ///< how long one call may take
        std::chrono::milliseconds write{120000};  ///< the same for the calls that write the flash
    };

    ModuleLink(Limits limits, std::function<void(const StatusNotice&)> report)
        : limits_(limits), report_(std::move(report)) {}
    /// Closes the device.
    ~ModuleLink();
    ModuleLink(const ModuleLink&) = delete;
    ModuleLink& operator=(const ModuleLink&) = delete;

    /// Every call is given up soon after `*stop` becomes true, without a report. Null: nothing stops them. Gives the
    /// flag that was there before.
    const std::atomic<bool>* setStopFlag(const std::atomic<bool>* stop) { return std::exchange(stop_, stop); }
    const std::atomic<bool>* stopFlag() const { return stop_; }
    bool stopRequested() const { return stop_ != nullptr && *stop_; }

    void use(std::shared_ptr<const KXLibrary> library, std::shared_ptr<const KXRotationUpdater> updater);
    enum class Creation { Done, NoDevice, GivenUp };
    /// Has the library make its device. What was given up has been reported, a missing device has not.
    Creation createDevice();
    void close();

    /// Makes one call of the library. `call` answers something that is true after a success: a bool, a pointer or an
    /// optional. After a failure, which has been reported with the status that the module gave in that very call, the
    /// answer is empty. A call that does not return is given up: so it captures values and shared records only, never
    /// a reference (the device is kept for it).
    template <typename Call>
    auto ask(Call call) {
        return answered(std::move(call), limits_.call, false);
    }
    /// The same for calls that write the flash: those may take long.
    template <typename Call>
    auto askPatiently(Call call) {
        return answered(std::move(call), limits_.write, false);
    }
    /// The same without a report, also after a fault, unless an earlier call was given up.
    template <typename Call>
    auto askQuietly(Call call) {
        return answered(std::move(call), limits_.call, true);
    }
    template <typename Call>
    auto askQuietlyAndPatiently(Call call) {
        return answered(std::move(call), limits_.write, true);
    }

    /// A query that fills a record.
    template <typename Object, typename Record>
    std::optional<Record> read(Object* object, bool (Object::*query)(Record*)) {
        return ask([object, query] { return filled(object, query); });
    }
    template <typename Object, typename Record>
    static std::optional<Record> filled(Object* object, bool (Object::*query)(Record*)) {
        std::optional<Record> record(Record{});
        if (!(object->*query)(&*record)) record.reset();
        return record;
    }

    /// Reports a fault that no status tells of: "what - An unknown error has occured."
    /// `what`: English, marked for translation in the context "Interface".
    void reportFault(const char* what);
    /// Reports that the module has no valid calibration.
    void reportInvalidCalibration();

    bool faulted() const { return faulted_; }
    /// What the fault was, one line; empty without one.
    const QString& faultText() const { return faultText_; }

    /// Null until it is created. Whoever holds the device keeps it alive.
    const std::shared_ptr<KXDevice>& device() const { return device_; }
    const std::shared_ptr<const KXLibrary>& library() const { return library_; }
    const std::shared_ptr<const KXRotationUpdater>& rotationUpdater() const { return updater_; }

private:
    template <typename Call>
    auto answered(Call call, std::chrono::milliseconds limit, bool quietly) {
        using Answer = decltype(call());
        const auto answer = std::make_shared<Answer>();
        const auto keep = [call = std::move(call), answer] {
            *answer = call();
            return static_cast<bool>(*answer);
        };
        return make(keep, limit, quietly) ? std::move(*answer) : Answer{};
    }
    bool make(std::function<bool()> call, std::chrono::milliseconds limit, bool quietly);
    void reportFault(std::int32_t status, const QString& libraryText);
    void reportNoAnswer();

    const Limits limits_;
    const std::function<void(const StatusNotice&)> report_;
    const std::atomic<bool>* stop_ = nullptr;
    std::shared_ptr<const KXLibrary> library_;
    std::shared_ptr<const KXRotationUpdater> updater_;
    std::shared_ptr<KXDevice> device_;
    bool faulted_ = false;
    QString faultText_;
    WatchedCalls calls_;
};

}  // namespace fieldcal
