#include "app/MainThreadCalls.h"

#include <QCoreApplication>
#include <QEvent>
#include <QThread>

#include <utility>

namespace fieldcal {

void MainThreadCalls::call(std::function<void()> work) {
    if (QThread::currentThread() == thread()) {
        work();
        return;
    }
    // Both steps are made under the lock, so that the order of the events matches the order of their work when several
    // threads call.
    const std::lock_guard lock(mutex_);
    waiting_.push_back(std::move(work));
    QCoreApplication::postEvent(this, new QEvent(QEvent::User));
}

void MainThreadCalls::customEvent(QEvent*) {
    std::function<void()> work;
    {
        const std::lock_guard lock(mutex_);
        work = std::move(waiting_.front());
        waiting_.pop_front();
    }
    work();
}

}  // namespace fieldcal
