// A serial queue of an application. In virtual time its blocks run on a thread of their own that is never awake together with another: the
// scheduler hands control over, and gets it back when the block ends or waits for an answer. Made by ApplicationLoop.
#pragma once

#include <condition_variable>
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

    // Waiting blocks wake with an error, pending ones are dropped, the thread is joined.
    void shutDown();
    bool isIdle() const;

private:
    struct State;
    Scheduler& scheduler;
    std::string label;
    std::unique_ptr<State> state;
};

}  // namespace desk
