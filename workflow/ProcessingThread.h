#pragma once

#include "workflow/CalibrationLoop.h"

#include <QThread>

#include <thread>

namespace fieldcal {

/// Runs a calibration loop on its own thread. When the loop ends, the sensor is moved to the thread that created this
/// object.
class ProcessingThread {
public:
    /// Starts the thread. `loop` must outlive this object.
    explicit ProcessingThread(CalibrationLoop& loop);
    /// Stops the thread.
    ~ProcessingThread();
    ProcessingThread(const ProcessingThread&) = delete;
    ProcessingThread& operator=(const ProcessingThread&) = delete;

    /// Ends the loop and waits for it. With `ToLeave`, this takes less than a second, whatever the loop is waiting for.
    /// Further calls have no effect.
    void stop(Stop stop);

private:
    static void run(CalibrationLoop& loop, QThread* finalThread);

    CalibrationLoop& loop_;
    std::thread thread_;
};

}  // namespace fieldcal
