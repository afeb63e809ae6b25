// The main run loop of one launched application: one ready list, ordered by due time and then by sequence, for main-queue blocks, tasks,
// timers, notifications and events; and the end of the turn, at which views are rebuilt. It implements the system's Dispatch and RunLoop.
// A turn runs what was ready when it began; what is posted meanwhile runs in a later turn.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
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
    void detachedTask(platform::QualityOfService qualityOfService, platform::Block block) override;
    bool isMainThread() const override;
    std::unique_ptr<platform::Timer> addTimer(platform::Duration period, bool repeats, platform::Duration tolerance,
                                              platform::Block block) override;
    void atEndOfTurn(platform::Block block) override;

    // An event for this application, its location on the screen whatever its window; it is handed to the dispatcher in a turn, or taken out by nextEvent.
    void postEvent(platform::NSEvent event);
    // Queued events of a window that is going stay, without it.
    void forgetWindow(const platform::NSWindow* window);
    // Runs turns, without dispatching events, until an event matches or the date has passed; with nothing due, pulls the driver's steps.
    std::optional<platform::NSEvent> nextEvent(platform::NSEventMask mask, platform::Date until, bool dequeue);

    // The application waits on its main thread: time moves on for everything else. Untrue calls nest.
    void blockFor(platform::Duration duration);
    // The same until the condition holds, pulling the driver's steps; false when the driver ended first.
    bool blockUntil(const std::function<bool()>& condition);
    // The application's code is running or waiting.
    bool isOnStack() const { return turns + nested + blocked > 0; }

    // One turn if anything is ready; answers whether it ran.
    bool turn();
    // The distant future when nothing is posted, or nothing of it can run now.
    platform::Date nextDue() const;

    // Nothing more is delivered, waiting queues are answered with an error and joined. What is still posted is dropped once no turn is on the stack: at
    // once, or by another call.
    void shutDown();
    bool isShutDown() const;

    // Timers alive, work pending, for tests of leaks.
    std::size_t timerCount() const;

private:
    struct State;
    class LoopTimer;
    class QueueHandle;

    bool canTurn() const { return !isShutDown() && blocked == 0 && turns <= nested; }
    void post(platform::Duration delay, platform::Block block);
    void runReady();
    bool runOne(platform::Date began, std::uint64_t last);
    void runEndOfTurn();
    void pruneQueues();

    Scheduler& scheduler;
    std::function<void(const platform::NSEvent&)> dispatchEvent;
    std::shared_ptr<State> state;
    std::vector<std::shared_ptr<WorkerQueue>> queues;
    int blocked = 0;
    int nested = 0;  // loops that pull events; while there is one, turns dispatch none
    int turns = 0;
};

}  // namespace desk
