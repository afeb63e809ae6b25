// The main run loop: timers, and the end of a turn, at which views are rebuilt. Timers are in the common modes, so they also fire while
// menus and drags are tracked. Main thread only.
#pragma once

#include <functional>
#include <memory>

#include "platform/Dispatch.h"
#include "platform/Time.h"

namespace platform {

// Fires until it is invalidated or goes; it may invalidate itself while it fires. A repeating timer keeps its grid and skips beats it missed.
class Timer {
public:
    virtual ~Timer() = default;
    virtual void invalidate() = 0;
};

class RunLoop {
public:
    virtual ~RunLoop() = default;

    // The first beat comes one period from now. A tolerance of zero asks for exact beats.
    virtual std::unique_ptr<Timer> addTimer(Duration period, bool repeats, Duration tolerance, Block block) = 0;

    // Runs the block once, at the end of the present turn, after everything that was ready; outside a turn, at the end of the next one.
    virtual void atEndOfTurn(Block block) = 0;
};

}  // namespace platform
