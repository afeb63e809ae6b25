// The main run loop of one launched application: one ready list, ordered by due time and then by sequence, for main-queue blocks, tasks,
// timers, notifications and events; and the end of the turn, at which views are rebuilt. It implements the system's Dispatch and RunLoop.
// A turn runs what was ready when it began; what is posted meanwhile runs in a later turn.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "desk/time/Scheduler.h"
#include "platform/Dispatch.h"
#include "platform/Events.h"
#include "platform/RunLoop.h"

namespace desk {

class WorkerQueue;

class ApplicationLoop final : public platform::Dispatch, public platform::RunLoop {
public:
    ApplicationLoop(Scheduler& theScheduler, std::function<void(const platform::NSEvent&)> theDispatchEvent);
    ~ApplicationLoop() override;

    // Dispatch and RunLoop. Posting is allowed from the application's own queues too.
    void mainAsync(platform::Block block) override;
    void mainAfter(platform::Duration delay, std::shared_ptr<platform::DispatchWorkItem> item) override;
    void mainTask(platform::Block block) override;
    std::unique_ptr<platform::SerialQueue> makeSerialQueue(std::string label,
                                                           platform::QualityOfService qualityOfService) override;
    bool isMainThread() const override;
    std::unique_ptr<platform::Timer> addTimer(platform::Duration period, bool repeats, platform::Duration tolerance,
                                              platform::Block block) override;
    void atEndOfTurn(platform::Block block) override;

    // An event for this application; it is handed to the dispatcher in a turn, or taken out by nextEvent.
    void postEvent(platform::NSEvent event);
    // Runs turns, without dispatching events, until an event matches or the date has passed; with nothing due, pulls the driver's steps.
    std::optional<platform::NSEvent> nextEvent(platform::NSEventMask mask, platform::Date until, bool dequeue);

    // The application waits on its main thread: time moves on for everything else. Untrue calls nest.
    void blockFor(platform::Duration duration);
    // The same until the condition holds, pulling the driver's steps; false when the driver ended first.
    bool blockUntil(const std::function<bool()>& condition);
    bool isBlocked() const { return blocked > 0; }

    // One turn if anything is ready; answers whether it ran.
    bool turn();
    platform::Date nextDue() const;

    // Nothing more is delivered, waiting queues are answered with an error and joined.
    void shutDown();
    bool isShutDown() const { return dead; }

    // Timers alive, work pending, for tests of leaks.
    std::size_t timerCount() const;

private:
    struct State;
    Scheduler& scheduler;
    std::function<void(const platform::NSEvent&)> dispatchEvent;
    std::unique_ptr<State> state;
    int blocked = 0;
    bool dead = false;
};

}  // namespace desk
