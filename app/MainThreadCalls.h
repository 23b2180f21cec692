#pragma once

#include <QObject>

#include <deque>
#include <functional>
#include <mutex>

namespace fieldcal {

/// Executes work on the thread that created this object, on behalf of any thread. A call from the same thread is
/// executed at once; a call from another thread is queued without waiting, in one order with the signals of that
/// thread.
class MainThreadCalls : public QObject {
public:
    void call(std::function<void()> work);

protected:
    void customEvent(QEvent* event) override;

private:
    std::mutex mutex_;
    std::deque<std::function<void()>> waiting_;  ///< one entry for each posted event
};

}  // namespace fieldcal
