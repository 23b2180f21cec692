#pragma once

#include "devices/ServiceControl.h"

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace fieldcal::testing {

/// A scripted service. `calls` records the operations in order; `failing` gives an operation's n-th call an error
/// number.
class FakeServiceControl : public ServiceControl {
public:
    Handle openManager(std::uint32_t access) override {
        return call("openManager " + std::to_string(access)) ? &manager_ : nullptr;
    }
    Handle openService(Handle, const char* name, std::uint32_t access) override {
        return call("openService " + std::string(name) + " " + std::to_string(access)) ? &service_ : nullptr;
    }
    void close(Handle handle) override { calls.push_back(handle == &service_ ? "close service" : "close manager"); }
    bool queryConfig(Handle, std::uint32_t bytes, std::uint32_t* type, std::uint32_t* needed) override {
        *needed = 300;
        if (!call("queryConfig " + std::to_string(bytes))) return false;
        error_ = 122;
        *type = startType;
        return bytes == 300;
    }
    bool changeConfig(Handle, std::uint32_t type, std::uint32_t start, std::uint32_t errorControl) override {
        if (!call("changeConfig " + std::to_string(start))) return false;
        startType = start;
        return type == 0xFFFFFFFF && errorControl == 0xFFFFFFFF;
    }
    bool queryState(Handle, std::uint32_t* state) override {
        if (!call("queryState")) return false;
        *state = states.front();
        if (states.size() > 1) states.pop_front();
        return true;
    }
    bool startService(Handle) override { return call("startService"); }
    bool controlService(Handle, std::uint32_t code) override { return call("controlService " + std::to_string(code)); }
    std::uint32_t lastError() override { return error_; }
    std::string errorText(std::uint32_t error) override { return "text " + std::to_string(error); }
    void sleepMs(std::uint32_t milliseconds) override {
        calls.push_back("sleep " + std::to_string(milliseconds));
        if (onSleep) onSleep();
    }

    /// From the n-th call (from 1) on, the operation fails with the error.
    void fail(const std::string& operation, int n, std::uint32_t error) { failing_[operation] = {n, error}; }

    std::uint32_t startType = 2;
    std::deque<std::uint32_t> states{4, 4, 3, 1};  ///< returned one after the other; the last one stays
    std::vector<std::string> calls;
    std::function<void()> onSleep;

private:
    bool call(const std::string& record) {
        calls.push_back(record);
        const std::string operation = record.substr(0, record.find(' '));
        const int n = ++counts_[operation];
        const auto failure = failing_.find(operation);
        if (failure == failing_.end() || n < failure->second.first) return true;
        error_ = failure->second.second;
        return false;
    }

    int manager_ = 0;
    int service_ = 0;
    std::uint32_t error_ = 0;
    std::map<std::string, std::pair<int, std::uint32_t>> failing_;
    std::map<std::string, int> counts_;
};

}  // namespace fieldcal::testing
