#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

namespace fieldcal {

/// A thread that stays in COM's multithreaded apartment. Objects created on it are used and released on it, whichever
/// thread makes the request. Calls run one at a time in the order of the requests.
class ComThread {
public:
    ComThread();
    ~ComThread();
    ComThread(const ComThread&) = delete;
    ComThread& operator=(const ComThread&) = delete;

    /// Runs `call` on the thread and waits for its end. Returns false without calling it when the thread could not
    /// enter the apartment.
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
