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

/// The message to the user, in the language of the interface, about a failed call of the camera library.
struct StatusNotice {
    bool missingDevice = false;  ///< selects the missing-camera notice; `text` is then empty
    QString text;                ///< "library's text - message"
};

/// The link to the camera module: the library, its companion, the device, and every call to it. Calls are monitored for
/// timeouts. The first failed call is fatal: it is reported once, and from then on only quiet calls are made. One
/// thread.
class ModuleLink {
public:
    struct Limits {
        std::chrono::milliseconds call{10000};    ///< time limit of one call
        std::chrono::milliseconds write{120000};  ///< time limit of calls that write the flash
    };

    ModuleLink(Limits limits, std::function<void(const StatusNotice&)> report)
        : limits_(limits), report_(std::move(report)) {}
    /// Closes the device.
    ~ModuleLink();
    ModuleLink(const ModuleLink&) = delete;
    ModuleLink& operator=(const ModuleLink&) = delete;

    /// Every call is abandoned soon after `*stop` becomes true, without a report. Null disables this. Returns the
    /// previous flag.
    const std::atomic<bool>* setStopFlag(const std::atomic<bool>* stop) { return std::exchange(stop_, stop); }
    const std::atomic<bool>* stopFlag() const { return stop_; }
    bool stopRequested() const { return stop_ != nullptr && *stop_; }

    void use(std::shared_ptr<const KXLibrary> library, std::shared_ptr<const KXRotationUpdater> updater);
    enum class Creation { Done, NoDevice, GivenUp };
    /// Makes the library create its device. A call that was abandoned has been reported, a missing device has not.
    Creation createDevice();
    void close();

    /// Makes one call of the library. `call` returns something that converts to true after a success: a bool, a pointer
    /// or an optional. After a failure the result is empty, and the failure has been reported with the status that the
    /// module gave in that very call. A call that does not return is abandoned, so it must capture values and shared
    /// records only, never a reference; the device is kept alive for it.
    template <typename Call>
    auto ask(Call call) {
        return answered(std::move(call), limits_.call, false);
    }
    /// The same for calls that write the flash, which may take long.
    template <typename Call>
    auto askPatiently(Call call) {
        return answered(std::move(call), limits_.write, false);
    }
    /// The same without a report. It is made even after a fault, unless an earlier call was abandoned.
    template <typename Call>
    auto askQuietly(Call call) {
        return answered(std::move(call), limits_.call, true);
    }
    template <typename Call>
    auto askQuietlyAndPatiently(Call call) {
        return answered(std::move(call), limits_.write, true);
    }

    /// Makes a query that fills a record.
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

    /// Reports a fault without a library status: "what - An unknown error has occured." `what`: English, marked for
    /// translation in the context "Interface".
    void reportFault(const char* what);
    /// Reports that the module has no valid calibration.
    void reportInvalidCalibration();

    bool faulted() const { return faulted_; }
    /// The fault in one line; empty without one.
    const QString& faultText() const { return faultText_; }

    /// Null until it is created. Every holder of the device keeps it alive.
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
