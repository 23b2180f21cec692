#include "workflow/ProcessingThread.h"

#include <chrono>
#include <cstdlib>
#include <random>

namespace fieldcal {
namespace {

constexpr std::chrono::milliseconds kPause{5};

}  // namespace

ProcessingThread::ProcessingThread(Workflow& workflow)
    : workflow_(workflow), thread_(run, std::ref(workflow), QThread::currentThread()) {}

ProcessingThread::~ProcessingThread() {
    stop(Stop::ToLeave);
}

void ProcessingThread::stop(Stop stop) {
    workflow_.requestStop(stop);
    if (thread_.joinable()) thread_.join();
}

void ProcessingThread::run(Workflow& workflow, QThread* finalThread) {
    // On some systems each thread has its own state of the C library's random number generator, so it is seeded on the
    // thread that draws.
    std::srand(std::random_device{}());
    while (!workflow.stopRequested()) {
        if (!workflow.pass()) std::this_thread::sleep_for(kPause);
    }
    workflow.handOver(finalThread);
}

}  // namespace fieldcal
