#pragma once

#include <QObject>

#include <deque>
#include <functional>
#include <mutex>

namespace fieldcal {

/// Work for the thread that made this object, from any thread. From its own it is done at once; from another it is
/// queued and never waited for, in one order with the signals that the other thread emits.
class MainThreadCalls : public QObject {
public:
    void call(std::function<void()> work);

protected:
    void customEvent(QEvent* event) override;

private:
    std::mutex mutex_;
    std::deque<std::function<void()>> waiting_;  ///< one for each event under way
};

}  // namespace fieldcal
