#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

namespace fieldcal {

/// A thread in COM's multithreaded apartment, which it enters first and leaves last. What is made on it is used and
/// released on it, whichever thread asks. Calls run one at a time, in turn.
class ComThread {
public:
    ComThread();
    ~ComThread();
    ComThread(const ComThread&) = delete;
    ComThread& operator=(const ComThread&) = delete;

    /// Runs `call` there and waits for its end. False, and nothing was called: the thread has no apartment.
    bool run(const std::function<bool()>& call);

private:
    void work();

    std::mutex turn_;  ///< one caller at a time
    std::mutex mutex_;
    std::condition_variable changed_;
    const std::function<bool()>* call_ = nullptr;
    bool result_ = false;
    bool ending_ = false;
    std::thread thread_;
};

}  // namespace fieldcal
