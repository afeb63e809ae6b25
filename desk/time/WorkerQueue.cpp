#include "desk/time/WorkerQueue.h"

#include <utility>

namespace desk {

namespace {

thread_local WorkerQueue* queueOfThread = nullptr;

}  // namespace

WorkerQueue::WorkerQueue(Scheduler& theScheduler, std::string theLabel)
    : scheduler(theScheduler), label(std::move(theLabel)) {}

WorkerQueue::~WorkerQueue() {
    shutDown();
}

WorkerQueue* WorkerQueue::current() {
    return queueOfThread;
}

void WorkerQueue::async(platform::Block block) {
    if (closed || stopping) return;
    pending.push_back(std::move(block));
    if (!busy) scheduleStart();
}

void WorkerQueue::scheduleStart() {
    if (std::exchange(startScheduled, true)) return;
    scheduler.at(scheduler.now(), [weak = weak_from_this()] {
        if (const auto queue = weak.lock()) queue->start();
    });
}

void WorkerQueue::start() {
    startScheduled = false;
    if (busy || stopping || pending.empty()) return;
    busy = true;
    if (!thread.joinable()) thread = std::thread([this] { threadMain(); });
    handOver();
}

// Gives the baton to the worker, and comes back when its block has ended or waits.
void WorkerQueue::handOver() {
    std::unique_lock lock(mutex);
    baton = Baton::worker;
    passed.notify_all();
    passed.wait(lock, [this] { return baton == Baton::scheduler; });
}

// The other way round, on the worker's thread.
void WorkerQueue::handBack() {
    std::unique_lock lock(mutex);
    baton = Baton::scheduler;
    passed.notify_all();
    passed.wait(lock, [this] { return baton == Baton::worker; });
}

void WorkerQueue::threadMain() {
    queueOfThread = this;
    {
        std::unique_lock lock(mutex);
        passed.wait(lock, [this] { return baton == Baton::worker; });
    }
    while (!pending.empty()) {
        platform::Block block = std::move(pending.front());
        pending.pop_front();
        block();
        block = nullptr;
        busy = false;
        if (!pending.empty()) scheduleStart();
        handBack();
    }
    std::unique_lock lock(mutex);
    baton = Baton::scheduler;
    passed.notify_all();
}

bool WorkerQueue::waitFor(platform::Duration duration) {
    if (stopping) return false;
    scheduler.after(duration, [weak = weak_from_this(), wait = waits + 1] {
        if (const auto queue = weak.lock()) queue->wake(wait);
    });
    return park();
}

bool WorkerQueue::waitForResume() {
    return !stopping && park();
}

bool WorkerQueue::park() {
    ++waits;
    parked = true;
    handBack();
    return !stopping;
}

void WorkerQueue::resume() {
    scheduler.at(scheduler.now(), [weak = weak_from_this(), wait = waits] {
        if (const auto queue = weak.lock()) queue->wake(wait);
    });
}

void WorkerQueue::wake(std::uint64_t wait) {
    if (!parked || waits != wait) return;
    parked = false;
    handOver();
}

void WorkerQueue::close() {
    closed = true;
    pending.clear();
}

void WorkerQueue::shutDown() {
    stopping = true;
    pending.clear();
    if (!thread.joinable()) return;
    while (busy) {
        parked = false;
        handOver();
    }
    // With nothing pending the thread ends.
    handOver();
    thread.join();
}

}  // namespace desk
