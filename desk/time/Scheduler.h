// The machine's clock and what comes due on it, in virtual time: only the driver moves the clock, and everything runs on one thread at a time.
// It holds the machine's own items (Finder's late notifications, answers of scripts) and drives the loop of each launched application.
// It decides when things run, never what.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <utility>
#include <vector>

#include "platform/Dispatch.h"
#include "platform/Time.h"

namespace desk {

class ApplicationLoop;

// Whoever plays the user: a script player, a test. Nested loops with nothing to do pull its next step.
class Driver {
public:
    virtual ~Driver() = default;
    // Does one thing (an input event, a command, a wait). False when there is nothing left.
    virtual bool step() = 0;
};

class Scheduler final : public platform::Clock {
public:
    explicit Scheduler(platform::Date start);
    ~Scheduler() override;

    platform::Date now() const override { return clock; }

    // A machine item. Items of one instant run in order of posting; the answer serves cancel().
    std::uint64_t at(platform::Date due, platform::Block block);
    std::uint64_t after(platform::Duration delay, platform::Block block) { return at(later(delay), std::move(block)); }
    void cancel(std::uint64_t item);

    // Runs everything that is due at the present instant, machine items and the turns of all loops that aren't blocked, until nothing is.
    void settle();
    // Moves the clock on, stopping at each instant at which something is due.
    void advance(platform::Duration duration);
    // Moves on to the next instant at which something is due, but not past the limit; false when nothing was due before it.
    bool advanceToNext(platform::Date limit);

    // One round: the machine items due when it begins, then a turn of each loop that isn't blocked. False when nothing was due.
    bool runDueOnce();

    void setDriver(Driver* driver) { user = driver; }
    Driver* driver() const { return user; }
    // Lets the driver do its next thing; false without a driver, and at its end.
    bool stepDriver();

    // Loops register themselves.
    void add(ApplicationLoop& loop);
    void remove(ApplicationLoop& loop);
    std::uint64_t nextSequence() { return ++sequence; }

    // That much later, but never later than the distant future.
    platform::Date later(platform::Duration delay) const;

private:
    // False when it gave up because the present instant has no end.
    bool settled();
    bool runItems();
    bool runTurns();
    platform::Date nextDue() const;

    platform::Date clock;
    std::uint64_t sequence = 0;
    std::int64_t roundsOfInstant = 0;
    std::map<std::pair<platform::Date, std::uint64_t>, platform::Block> items;
    std::map<std::uint64_t, platform::Date> dueOf;
    std::vector<ApplicationLoop*> loops;
    Driver* user = nullptr;
};

}  // namespace desk
