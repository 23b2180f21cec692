#pragma once

#include "workflow/Workflow.h"

#include <QThread>

#include <thread>

namespace fieldcal {

/// Runs a workflow's loop on a thread of its own. The thread that makes this object gets the sensor when the loop ends.
class ProcessingThread {
public:
    /// Starts. `workflow` outlives this object.
    explicit ProcessingThread(Workflow& workflow);
    /// Stops.
    ~ProcessingThread();
    ProcessingThread(const ProcessingThread&) = delete;
    ProcessingThread& operator=(const ProcessingThread&) = delete;

    /// Ends the loop and waits for it. `ToLeave`: less than a second, whatever it is waiting for. Once is enough.
    void stop(Stop stop);

private:
    static void run(Workflow& workflow, QThread* heir);

    Workflow& workflow_;
    std::thread thread_;
};

}  // namespace fieldcal
