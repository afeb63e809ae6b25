// What time of day it is on the machine: the scheduler's time and an offset that whoever sets the clock changes. Nothing comes due by it.
#pragma once

#include <atomic>

#include "desk/time/Scheduler.h"

namespace desk {

class WallClock final : public platform::Clock {
public:
    explicit WallClock(const Scheduler& theScheduler) : scheduler(theScheduler) {}

    // Any thread.
    platform::Date now() const override { return scheduler.now() + offset(); }
    // When the scheduler's time will be what this clock shows at that date, if nobody sets it until then.
    platform::Date due(platform::Date date) const {
        const bool isReal = date != platform::Date::distantFuture() && date != platform::Date::distantPast();
        return isReal ? date + -offset() : date;
    }
    void set(platform::Date date) { ahead = (date - scheduler.now()).count(); }

private:
    platform::Duration offset() const { return platform::Duration(ahead.load()); }

    const Scheduler& scheduler;
    std::atomic<platform::Duration::rep> ahead = 0;
};

}  // namespace desk
