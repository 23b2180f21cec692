#pragma once

#include "workflow/Workflow.h"

#include <QThread>

#include <thread>

namespace fieldcal {

/// Runs a workflow's loop on its own thread. When the loop ends, the sensor is moved to the thread that created this
/// object.
class ProcessingThread {
public:
    /// Starts the thread. `workflow` must outlive this object.
    explicit ProcessingThread(Workflow& workflow);
    /// Stops the thread.
    ~ProcessingThread();
    ProcessingThread(const ProcessingThread&) = delete;
    ProcessingThread& operator=(const ProcessingThread&) = delete;

    /// Ends the loop and waits for it. With `ToLeave`, this takes less than a second, whatever the loop is waiting for.
    /// Further calls have no effect.
    void stop(Stop stop);

private:
    static void run(Workflow& workflow, QThread* finalThread);

    Workflow& workflow_;
    std::thread thread_;
};

}  // namespace fieldcal
