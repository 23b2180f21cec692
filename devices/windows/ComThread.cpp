#include "devices/windows/ComThread.h"

#include "devices/windows/ComResult.h"

#include <objbase.h>

namespace fieldcal {

ComThread::ComThread() : thread_([this] { work(); }) {}

ComThread::~ComThread() {
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    changed_.notify_all();
    thread_.join();
}

bool ComThread::run(const std::function<bool()>& call) {
    const std::lock_guard turn(turn_);
    std::unique_lock lock(mutex_);
    if (ending_) return false;
    call_ = &call;
    changed_.notify_all();
    changed_.wait(lock, [this] { return call_ == nullptr; });
    return result_;
}

void ComThread::work() {
    const bool entered = succeeded(CoInitializeEx(nullptr, COINIT_MULTITHREADED), "CoInitializeEx");
    const std::function<bool()> refuse = [] { return false; };
    std::unique_lock lock(mutex_);
    while (true) {
        changed_.wait(lock, [this] { return ending_ || call_ != nullptr; });
        if (call_ == nullptr) break;
        const std::function<bool()>& call = entered ? *call_ : refuse;
        lock.unlock();
        const bool result = call();
        lock.lock();
        result_ = result;
        call_ = nullptr;
        changed_.notify_all();
    }
    if (entered) CoUninitialize();
}

}  // namespace fieldcal
