#include "devices/ServiceControl.h"

#include <chrono>
#include <thread>

namespace fieldcal {
namespace {

constexpr std::uint32_t kServiceDoesNotExist = 1060;

/// A service manager without any services.
class NoServices : public ServiceControl {
public:
    Handle openManager(std::uint32_t) override { return this; }
    Handle openService(Handle, const char*, std::uint32_t) override { return nullptr; }
    void close(Handle) override {}
    bool queryConfig(Handle, std::uint32_t, std::uint32_t*, std::uint32_t*) override { return false; }
    bool changeConfig(Handle, std::uint32_t, std::uint32_t, std::uint32_t) override { return false; }
    bool queryState(Handle, std::uint32_t*) override { return false; }
    bool startService(Handle) override { return false; }
    bool controlService(Handle, std::uint32_t) override { return false; }
    std::uint32_t lastError() override { return kServiceDoesNotExist; }
    std::string errorText(std::uint32_t) override {
        return "The specified service does not exist as an installed service.";
    }
    void sleepMs(std::uint32_t milliseconds) override {
        std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
    }
};

}  // namespace

std::unique_ptr<ServiceControl> emptyServiceControl() {
    return std::make_unique<NoServices>();
}

}  // namespace fieldcal
