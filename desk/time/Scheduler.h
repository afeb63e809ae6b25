// The time that passes on the machine and what comes due in it; what the clock on the wall shows is another thing. In virtual time only the driver moves the clock, and everything runs on one thread at a time; in real time
// the clock is the host's, and a wait lets the display's events in. It holds the machine's own items (Finder's late notifications, answers of scripts)
// and drives the loop of each launched application. It decides when things run, never what.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <thread>
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

// Whoever lets real time pass: the event loop of a display.
class RealTime {
public:
    virtual ~RealTime() = default;
    // Handles the display's events, waiting for them that long at most. It may come back early. False when the desk is to end.
    virtual bool wait(platform::Duration atMost) = 0;
    // Ends the wait under way, or the next one. Any thread.
    virtual void wake() = 0;
};

class Scheduler final {
public:
    explicit Scheduler(platform::Date start);
    ~Scheduler();

    // From now on the clock is the host's, and queues run beside the calling thread, which is the main one. Before anything is launched.
    void useRealTime(RealTime& theRealTime);
    bool isRealTime() const { return realTime != nullptr; }

    // Any thread.
    platform::Date now() const;

    // Any thread: in real time, and not the main one.
    bool isOffMainThread() const { return isRealTime() && std::this_thread::get_id() != mainThread; }
    // From such a thread: the block runs on the main one when that next looks for what is due.
    void onMainThread(platform::Block block);

    // A machine item. Items of one instant run in order of posting; the answer serves cancel().
    std::uint64_t at(platform::Date due, platform::Block block);
    std::uint64_t after(platform::Duration delay, platform::Block block) { return at(later(delay), std::move(block)); }
    void cancel(std::uint64_t item);

    // Runs everything that is due at the present instant, machine items and the turns of all loops that aren't blocked, until nothing is.
    void settle();
    // Moves the clock on, stopping at each instant at which something is due. In real time it waits, less long when the desk is to end.
    void advance(platform::Duration duration);
    // Moves on to the next instant at which something is due, but not past the limit; false when nothing was due before it. Virtual time only.
    bool advanceToNext(platform::Date limit);

    // One round: the machine items due when it begins, then a turn of each loop that isn't blocked. False when nothing was due.
    bool runDueOnce();
    // Counts the rounds in which something ran.
    std::uint64_t roundCount() const { return rounds; }

    void setDriver(Driver* driver) { user = driver; }
    Driver* driver() const { return user; }
    // With nothing due: lets the driver do its next thing. Without a driver, and at its end, real time passes until something is due, and no longer than to
    // the given date; virtual time doesn't. False when nothing more will come.
    bool stepDriver(platform::Date until = platform::Date::distantFuture());
    // With nothing due, in real time: lets it pass until something is, and no longer than to the date. False when the desk is to end.
    bool waitForMore(platform::Date until);

    // Loops register themselves.
    void add(ApplicationLoop& loop);
    void remove(ApplicationLoop& loop);
    std::uint64_t nextSequence() { return ++sequence; }

    // That much later, but never later than the distant future.
    platform::Date later(platform::Duration delay) const;

private:
    // False when it gave up because the present instant has no end.
    bool settled();
    void takePosted();
    bool runItems();
    bool runTurns();
    platform::Date nextDue() const;

    platform::Date clock;
    std::uint64_t sequence = 0;
    std::int64_t roundsOfInstant = 0;
    std::uint64_t rounds = 0;
    std::map<std::pair<platform::Date, std::uint64_t>, platform::Block> items;
    std::map<std::uint64_t, platform::Date> dueOf;
    std::vector<ApplicationLoop*> loops;
    Driver* user = nullptr;

    RealTime* realTime = nullptr;
    platform::Duration hostToClock{0};  // from the host's steady clock
    std::thread::id mainThread;
    std::mutex postedMutex;
    std::vector<platform::Block> posted;  // by other threads; under the mutex
};

}  // namespace desk
