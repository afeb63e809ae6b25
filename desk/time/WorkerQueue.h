// A serial queue of an application. In virtual time its blocks run on a thread of their own that is never awake together with another: the
// scheduler hands control over, and gets it back when the block ends or waits for an answer. Made by ApplicationLoop.
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
    // On the queue's own thread: gives control back for that long; false when the application ended meanwhile.
    bool waitFor(platform::Duration duration);
    // The same until resume() is called from outside.
    bool waitForResume();
    void resume();

    // Its user let it go: blocks not yet begun are dropped, and none are taken any more.
    void close();
    bool isClosed() const { return closed; }
    // Waiting blocks wake with an error, pending ones are dropped, the thread is joined. Not on the queue's own thread.
    void shutDown();
    // No block has begun that hasn't ended.
    bool isIdle() const { return !busy; }

private:
    enum class Baton { scheduler, worker };

    void scheduleStart();
    void start();
    void handOver();
    void handBack();
    bool park();
    void wake(std::uint64_t wait);
    void threadMain();

    Scheduler& scheduler;
    std::string label;

    // The two fields under the mutex; everything else belongs to whoever holds the baton.
    std::mutex mutex;
    std::condition_variable passed;
    Baton baton = Baton::scheduler;

    std::thread thread;
    std::deque<platform::Block> pending;
    std::uint64_t waits = 0;  // counts the waits, so that a late wake-up doesn't end a later one
    bool startScheduled = false;
    bool busy = false;
    bool parked = false;
    bool closed = false;
    bool stopping = false;
};

}  // namespace desk
