// A serial queue of an application, whose blocks run on a thread of their own. In virtual time that thread is never awake together with another: the
// scheduler hands control over, and gets it back when the block ends or waits for an answer. In real time blocks run beside the main thread, and it is only
// while one deals with the machine that the main thread stands still for it. Made by ApplicationLoop.
#pragma once

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

#include "desk/time/Scheduler.h"
#include "platform/Dispatch.h"

namespace desk {

class WorkerQueue final : public platform::SerialQueue, public std::enable_shared_from_this<WorkerQueue> {
public:
    WorkerQueue(Scheduler& theScheduler, std::string theLabel);
    ~WorkerQueue() override;

    void async(platform::Block block) override;

    // The queue whose block is running on the calling thread; null on the main thread.
    static WorkerQueue* current();

    // A block has the machine to itself while it holds one of these; where the calling thread is the main one, or has the machine anyhow, it does nothing. In
    // real time taking it waits until the main thread comes by.
    class Visit {
    public:
        Visit();
        ~Visit();
        Visit(const Visit&) = delete;
        Visit& operator=(const Visit&) = delete;

    private:
        WorkerQueue* queue;
    };

    // On the queue's own thread, within a visit: gives control back for that long; false when the application ended meanwhile.
    bool waitFor(platform::Duration duration);
    // The same until resume() is called from outside.
    bool waitForResume();
    void resume();

    // Its user let it go: blocks not yet begun are dropped, and none are taken any more.
    void close();
    bool isClosed() const;
    // Waiting blocks wake with an error, pending ones are dropped, the thread is joined. Not on the queue's own thread.
    void shutDown();
    // No block has begun that hasn't ended.
    bool isIdle() const;

private:
    enum class Baton { scheduler, worker };

    void scheduleStart();
    void start();
    void enter();
    void leave();
    void handOver();
    void handBack();
    bool park();
    void wake(std::uint64_t wait);
    void threadMain();
    void runInTurns();
    void runBeside();
    bool takeNext(platform::Block& block);
    bool isStopping() const;
    void dropPending();

    Scheduler& scheduler;
    std::string label;

    // Under the mutex; what follows the thread belongs to whoever holds the baton.
    mutable std::mutex mutex;
    std::condition_variable passed;
    Baton baton = Baton::scheduler;
    bool wantsBaton = false;  // real time: the worker waits for the main thread to come by
    bool ended = false;       // real time: the thread does nothing more
    std::deque<platform::Block> pending;
    bool busy = false;
    bool closed = false;
    bool stopping = false;

    std::thread thread;
    std::uint64_t waits = 0;  // counts the waits, so that a late wake-up doesn't end a later one
    bool startScheduled = false;
    bool visiting = false;  // real time
    bool parked = false;
};

}  // namespace desk
