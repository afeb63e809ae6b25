#include "desk/time/Scheduler.h"

#include <algorithm>
#include <chrono>
#include <iostream>

#include "desk/time/ApplicationLoop.h"

namespace desk {

namespace {

// Far beyond what any story needs at one instant; reached only by work that posts itself anew for ever.
constexpr std::int64_t mostRoundsOfInstant = 1'000'000;

platform::Duration hostTime() {
    return std::chrono::steady_clock::now().time_since_epoch();
}

}  // namespace

Scheduler::Scheduler(platform::Date start) : clock(start) {}

Scheduler::~Scheduler() = default;

void Scheduler::useRealTime(RealTime& theRealTime) {
    const platform::Duration sinceEpoch = std::chrono::system_clock::now().time_since_epoch();
    hostToClock = sinceEpoch - hostTime();
    mainThread = std::this_thread::get_id();
    realTime = &theRealTime;
}

platform::Date Scheduler::now() const {
    return isRealTime() ? platform::Date{hostTime() + hostToClock} : clock;
}

void Scheduler::onMainThread(platform::Block block) {
    {
        const std::lock_guard lock(postedMutex);
        posted.push_back(std::move(block));
    }
    realTime->wake();
}

void Scheduler::takePosted() {
    if (!isRealTime()) return;
    std::vector<platform::Block> taken;
    {
        const std::lock_guard lock(postedMutex);
        taken.swap(posted);
    }
    for (const auto& block : taken) block();
}

std::uint64_t Scheduler::at(platform::Date due, platform::Block block) {
    const std::uint64_t item = nextSequence();
    items.emplace(std::pair(due, item), std::move(block));
    dueOf.emplace(item, due);
    return item;
}

void Scheduler::cancel(std::uint64_t item) {
    const auto entry = dueOf.find(item);
    if (entry == dueOf.end()) return;
    items.erase({entry->second, item});
    dueOf.erase(entry);
}

platform::Date Scheduler::later(platform::Duration delay) const {
    const platform::Date present = now();
    if (delay <= platform::Duration(0)) return present;
    if (delay >= platform::Date::distantFuture() - present) return platform::Date::distantFuture();
    return present + delay;
}

void Scheduler::settle() {
    settled();
}

bool Scheduler::settled() {
    roundsOfInstant = 0;
    while (runDueOnce()) {}
    return roundsOfInstant < mostRoundsOfInstant;
}

void Scheduler::advance(platform::Duration duration) {
    const platform::Date target = later(duration);
    settle();
    if (isRealTime()) {
        while (now() < target && waitForMore(target)) settle();
        return;
    }
    while (advanceToNext(target)) {}
    if (clock >= target) return;
    clock = target;
    settle();
}

bool Scheduler::advanceToNext(platform::Date limit) {
    const platform::Date next = nextDue();
    if (next > limit || next == platform::Date::distantFuture()) return false;
    clock = std::max(clock, next);
    return settled();
}

bool Scheduler::runDueOnce() {
    if (roundsOfInstant >= mostRoundsOfInstant) return false;
    takePosted();
    const bool ranItems = runItems();
    const bool ranTurns = runTurns();
    if (!ranItems && !ranTurns) return false;
    ++rounds;
    if (++roundsOfInstant == mostRoundsOfInstant)
        std::cerr << "desk: work at one instant never ends; " << mostRoundsOfInstant << " rounds were run\n";
    return true;
}

// An item may run others' items through a nested loop, so each one is looked up anew.
bool Scheduler::runItems() {
    const std::uint64_t last = sequence;
    const platform::Date began = now();
    bool ran = false;
    auto next = items.begin();
    while (next != items.end() && next->first.first <= began) {
        const auto key = next->first;
        if (key.second > last) {
            ++next;
            continue;
        }
        const platform::Block block = std::move(next->second);
        items.erase(next);
        dueOf.erase(key.second);
        ran = true;
        block();
        next = items.upper_bound(key);
    }
    return ran;
}

bool Scheduler::runTurns() {
    bool ran = false;
    // By index: loops come and go while one of them takes its turn.
    for (std::size_t index = 0; index < loops.size(); ++index) ran = loops[index]->turn() || ran;
    return ran;
}

bool Scheduler::stepDriver(platform::Date until) {
    roundsOfInstant = 0;
    if (user != nullptr && user->step()) return true;
    return isRealTime() && waitForMore(until);
}

bool Scheduler::waitForMore(platform::Date until) {
    roundsOfInstant = 0;
    return realTime->wait(std::min(until, nextDue()) - now());
}

platform::Date Scheduler::nextDue() const {
    platform::Date next = platform::Date::distantFuture();
    if (!items.empty()) next = items.begin()->first.first;
    for (const ApplicationLoop* loop : loops) next = std::min(next, loop->nextDue());
    return next;
}

void Scheduler::add(ApplicationLoop& loop) {
    loops.push_back(&loop);
}

void Scheduler::remove(ApplicationLoop& loop) {
    std::erase(loops, &loop);
}

}  // namespace desk
