// Real time for the scheduler: the toolkit's event loop, which lets in what the person at the display does, and wakes for what other threads post.
// It knows nothing of the machine; whoever pumps it runs what is due.
#pragma once

#include <QSocketNotifier>
#include <atomic>
#include <functional>
#include <memory>

#include "desk/time/Scheduler.h"

namespace desk {

class EventLoop final : public RealTime {
public:
    // In the main thread, with a GuiApplication.
    EventLoop();
    ~EventLoop() override;
    EventLoop(const EventLoop&) = delete;
    EventLoop& operator=(const EventLoop&) = delete;

    bool wait(platform::Duration atMost) override;
    void wake() override;

    // Before each wait: everything that was due has run.
    std::function<void()> atRest;

    // The wait under way and all later ones answer false. Any thread, and signal handlers.
    void end();
    bool hasEnded() const { return isEnding; }

private:
    int wakeDescriptor;
    std::unique_ptr<QSocketNotifier> woken;
    std::atomic<bool> isEnding = false;
};

}  // namespace desk
