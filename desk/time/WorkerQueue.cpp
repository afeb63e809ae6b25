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

WorkerQueue::Visit::Visit() : queue(queueOfThread) {
    if (queue != nullptr && queue->scheduler.isRealTime() && !queue->visiting)
        queue->enter();
    else
        queue = nullptr;
}

WorkerQueue::Visit::~Visit() {
    if (queue != nullptr) queue->leave();
}

void WorkerQueue::async(platform::Block block) {
    {
        const std::lock_guard lock(mutex);
        if (closed || stopping) return;
        pending.push_back(std::move(block));
        if (scheduler.isRealTime()) {
            if (!thread.joinable()) thread = std::thread([this] { threadMain(); });
            passed.notify_all();
            return;
        }
        if (busy) return;
    }
    scheduleStart();
}

void WorkerQueue::scheduleStart() {
    if (std::exchange(startScheduled, true)) return;
    scheduler.at(scheduler.now(), [weak = weak_from_this()] {
        if (const auto queue = weak.lock()) queue->start();
    });
}

void WorkerQueue::start() {
    startScheduled = false;
    {
        const std::lock_guard lock(mutex);
        if (busy || stopping || pending.empty()) return;
        busy = true;
    }
    if (!thread.joinable()) thread = std::thread([this] { threadMain(); });
    handOver();
}

// Gives the baton to the worker, and comes back when its block has ended or waits.
void WorkerQueue::handOver() {
    std::unique_lock lock(mutex);
    wantsBaton = false;
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

// On the worker's thread, in real time. While the application shuts down, the main thread comes by of its own.
void WorkerQueue::enter() {
    {
        const std::lock_guard lock(mutex);
        wantsBaton = true;
        passed.notify_all();
    }
    scheduler.onMainThread([weak = weak_from_this()] {
        const auto queue = weak.lock();
        if (!queue) return;
        {
            const std::lock_guard lock(queue->mutex);
            if (!queue->wantsBaton) return;
        }
        queue->handOver();
    });
    std::unique_lock lock(mutex);
    passed.wait(lock, [this] { return baton == Baton::worker; });
    visiting = true;
}

void WorkerQueue::leave() {
    visiting = false;
    const std::lock_guard lock(mutex);
    baton = Baton::scheduler;
    passed.notify_all();
}

void WorkerQueue::threadMain() {
    queueOfThread = this;
    if (scheduler.isRealTime())
        runBeside();
    else
        runInTurns();
    queueOfThread = nullptr;
}

bool WorkerQueue::takeNext(platform::Block& block) {
    const std::lock_guard lock(mutex);
    busy = !stopping && !pending.empty();
    if (!busy) return false;
    block = std::move(pending.front());
    pending.pop_front();
    return true;
}

void WorkerQueue::runInTurns() {
    {
        std::unique_lock lock(mutex);
        passed.wait(lock, [this] { return baton == Baton::worker; });
    }
    platform::Block block;
    while (takeNext(block)) {
        block();
        block = nullptr;
        bool hasMore = false;
        {
            const std::lock_guard lock(mutex);
            busy = false;
            hasMore = !pending.empty();
        }
        if (hasMore) scheduleStart();
        handBack();
    }
    leave();
}

void WorkerQueue::runBeside() {
    platform::Block block;
    while (true) {
        {
            std::unique_lock lock(mutex);
            busy = false;
            passed.wait(lock, [this] { return stopping || !pending.empty(); });
        }
        if (!takeNext(block)) break;
        block();
        block = nullptr;
    }
    const std::lock_guard lock(mutex);
    ended = true;
    passed.notify_all();
}

bool WorkerQueue::waitFor(platform::Duration duration) {
    if (isStopping()) return false;
    scheduler.after(duration, [weak = weak_from_this(), wait = waits + 1] {
        if (const auto queue = weak.lock()) queue->wake(wait);
    });
    return park();
}

bool WorkerQueue::waitForResume() {
    return park();
}

bool WorkerQueue::park() {
    if (isStopping()) return false;
    ++waits;
    parked = true;
    handBack();
    return !isStopping();
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

bool WorkerQueue::isStopping() const {
    const std::lock_guard lock(mutex);
    return stopping;
}

// Not under the mutex: what a block held may end a queue.
void WorkerQueue::dropPending() {
    std::deque<platform::Block> dropped;
    const std::lock_guard lock(mutex);
    dropped.swap(pending);
}

void WorkerQueue::close() {
    {
        const std::lock_guard lock(mutex);
        closed = true;
    }
    dropPending();
}

bool WorkerQueue::isClosed() const {
    const std::lock_guard lock(mutex);
    return closed;
}

bool WorkerQueue::isIdle() const {
    const std::lock_guard lock(mutex);
    return !busy;
}

void WorkerQueue::shutDown() {
    {
        const std::lock_guard lock(mutex);
        stopping = true;
        passed.notify_all();
    }
    dropPending();
    std::unique_lock lock(mutex);
    if (!thread.joinable()) return;
    if (scheduler.isRealTime()) {
        // What has begun may still come by the machine, and is told that the application has ended.
        while (!ended) {
            passed.wait(lock, [this] { return ended || wantsBaton || parked; });
            if (ended) break;
            parked = false;
            lock.unlock();
            handOver();
            lock.lock();
        }
    } else {
        while (busy) {
            parked = false;
            lock.unlock();
            handOver();
            lock.lock();
        }
        // With nothing pending the thread ends.
        lock.unlock();
        handOver();
        lock.lock();
    }
    lock.unlock();
    thread.join();
}

}  // namespace desk
