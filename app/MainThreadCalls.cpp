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
    // Together, so that the events come in the order of their work whoever else calls.
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
