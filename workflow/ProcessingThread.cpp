#include "workflow/ProcessingThread.h"

#include <chrono>
#include <cstdlib>
#include <random>

namespace fieldcal {
namespace {

constexpr std::chrono::milliseconds kPause{5};

}  // namespace

ProcessingThread::ProcessingThread(CalibrationLoop& loop)
    : loop_(loop), thread_(run, std::ref(loop), QThread::currentThread()) {}

ProcessingThread::~ProcessingThread() {
    stop(Stop::ToLeave);
}

void ProcessingThread::stop(Stop stop) {
    loop_.requestStop(stop);
    if (thread_.joinable()) thread_.join();
}

void ProcessingThread::run(CalibrationLoop& loop, QThread* finalThread) {
    // On some systems each thread has its own state of the C library's random number generator, so it is seeded on the
    // thread that draws.
    std::srand(std::random_device{}());
    while (!loop.stopRequested()) {
        if (!loop.pass()) std::this_thread::sleep_for(kPause);
    }
    loop.handOver(finalThread);
}

}  // namespace fieldcal
