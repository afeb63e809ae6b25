#include "desk/time/ApplicationLoop.h"

#include <algorithm>
#include <deque>
#include <map>
#include <utility>

#include "desk/time/WorkerQueue.h"

namespace desk {

namespace {

// What a platform makes of a period of zero or less.
constexpr platform::Duration shortestPeriod = std::chrono::microseconds(100);

using Key = std::pair<platform::Date, std::uint64_t>;

class Raised {
public:
    explicit Raised(int& theCount) : count(theCount) { ++count; }
    ~Raised() { --count; }
    Raised(const Raised&) = delete;
    Raised& operator=(const Raised&) = delete;

private:
    int& count;
};

}  // namespace

// Apart from the loop, since timers and what other threads post may outlive it. Main thread only.
struct ApplicationLoop::State {
    struct QueuedEvent {
        Key key;
        platform::NSEvent event;
    };

    std::map<Key, platform::Block> ready;
    std::deque<QueuedEvent> events;
    std::vector<platform::Block> endOfTurn;
    std::size_t timers = 0;
    bool dead = false;
};

class ApplicationLoop::LoopTimer final : public platform::Timer {
public:
    LoopTimer(Scheduler& theScheduler, const std::shared_ptr<State>& state, platform::Duration period, bool repeats,
              platform::Block block)
        : beat(std::make_shared<Beat>(
              Beat{theScheduler, state, std::move(block), std::max(period, shortestPeriod), repeats, true, {}})) {
        ++state->timers;
        Beat::post(beat, beat->scheduler.later(beat->period));
    }
    ~LoopTimer() override { beat->end(); }
    void invalidate() override { beat->end(); }

private:
    struct Beat {
        Scheduler& scheduler;
        std::weak_ptr<State> loop;
        platform::Block block;
        platform::Duration period;
        bool repeats;
        bool valid;
        Key key;

        static void post(const std::shared_ptr<Beat>& self, platform::Date due) {
            const auto held = self->loop.lock();
            if (!held) return;
            self->key = {due, self->scheduler.nextSequence()};
            held->ready.emplace(self->key, [self] { fire(self); });
        }

        static void fire(const std::shared_ptr<Beat>& self) {
            if (!self->valid) return;
            if (self->repeats)
                post(self, self->afterMissedBeats());
            else
                self->end();
            self->block();
        }

        platform::Date afterMissedBeats() const {
            const platform::Duration late = scheduler.now() - key.first;
            return key.first + (late / period + 1) * period;
        }

        void end() {
            if (!std::exchange(valid, false)) return;
            const auto held = loop.lock();
            if (!held) return;
            held->ready.erase(key);
            --held->timers;
        }
    };

    std::shared_ptr<Beat> beat;
};

class ApplicationLoop::QueueHandle final : public platform::SerialQueue {
public:
    explicit QueueHandle(std::shared_ptr<WorkerQueue> theQueue) : queue(std::move(theQueue)) {}
    ~QueueHandle() override { queue->close(); }
    void async(platform::Block block) override { queue->async(std::move(block)); }

private:
    std::shared_ptr<WorkerQueue> queue;
};

ApplicationLoop::ApplicationLoop(Scheduler& theScheduler,
                                 std::function<void(const platform::NSEvent&)> theDispatchEvent)
    : scheduler(theScheduler), dispatchEvent(std::move(theDispatchEvent)), state(std::make_shared<State>()) {
    scheduler.add(*this);
}

ApplicationLoop::~ApplicationLoop() {
    shutDown();
    scheduler.remove(*this);
}

void ApplicationLoop::mainAsync(platform::Block block) {
    post({}, std::move(block));
}

void ApplicationLoop::mainAfter(platform::Duration delay, std::shared_ptr<platform::DispatchWorkItem> item) {
    if (item) post(delay, [item = std::move(item)] { item->perform(); });
}

void ApplicationLoop::post(platform::Duration delay, platform::Block block) {
    if (scheduler.isOffMainThread()) {
        scheduler.onMainThread([&scheduler = scheduler, delay, weak = std::weak_ptr(state), block = std::move(block)] {
            const auto held = weak.lock();
            if (held && !held->dead) held->ready.emplace(Key{scheduler.later(delay), scheduler.nextSequence()}, block);
        });
        return;
    }
    if (!isShutDown()) state->ready.emplace(Key{scheduler.later(delay), scheduler.nextSequence()}, std::move(block));
}

bool ApplicationLoop::isShutDown() const {
    return state->dead;
}

void ApplicationLoop::mainTask(platform::Block block) {
    mainAsync(std::move(block));
}

std::unique_ptr<platform::SerialQueue> ApplicationLoop::makeSerialQueue(
    std::string label, platform::QualityOfService /*qualityOfService*/) {
    pruneQueues();
    queues.push_back(std::make_shared<WorkerQueue>(scheduler, std::move(label)));
    if (isShutDown()) queues.back()->close();
    return std::make_unique<QueueHandle>(queues.back());
}

// The queue goes in a turn after its one block; a shut-down ends it with the others.
void ApplicationLoop::detachedTask(platform::QualityOfService /*qualityOfService*/, platform::Block block) {
    if (isShutDown()) return;
    queues.push_back(std::make_shared<WorkerQueue>(scheduler, "detached"));
    queues.back()->async([this, queue = queues.back().get(), block = std::move(block)] {
        block();
        mainAsync([this, queue] { std::erase_if(queues, [&](const auto& each) { return each.get() == queue; }); });
    });
}

void ApplicationLoop::pruneQueues() {
    std::erase_if(queues, [](const auto& queue) { return queue->isClosed() && queue->isIdle(); });
}

bool ApplicationLoop::isMainThread() const {
    return WorkerQueue::current() == nullptr;
}

std::unique_ptr<platform::Timer> ApplicationLoop::addTimer(platform::Duration period, bool repeats,
                                                           platform::Duration /*tolerance*/, platform::Block block) {
    return std::make_unique<LoopTimer>(scheduler, state, period, repeats, std::move(block));
}

void ApplicationLoop::atEndOfTurn(platform::Block block) {
    if (!isShutDown()) state->endOfTurn.push_back(std::move(block));
}

void ApplicationLoop::postEvent(platform::NSEvent event) {
    if (!isShutDown()) state->events.push_back({{scheduler.now(), scheduler.nextSequence()}, std::move(event)});
}

void ApplicationLoop::forgetWindow(const platform::NSWindow* window) {
    for (auto& queued : state->events)
        if (queued.event.window == window) queued.event.window = nullptr;
}

bool ApplicationLoop::turn() {
    const platform::Date due = nextDue();
    if (due > scheduler.now() || due == platform::Date::distantFuture()) return false;
    const Raised running(turns);
    runReady();
    if (!isShutDown()) runEndOfTurn();
    return true;
}

void ApplicationLoop::runReady() {
    const platform::Date began = scheduler.now();
    const std::uint64_t last = scheduler.nextSequence();
    while (!isShutDown() && runOne(began, last)) {}
}

// The earliest of what was ready when the turn began and hasn't been run by a loop nested in it.
bool ApplicationLoop::runOne(platform::Date began, std::uint64_t last) {
    auto entry = state->ready.begin();
    while (entry != state->ready.end() && entry->first.first <= began && entry->first.second > last) ++entry;
    const bool hasBlock = entry != state->ready.end() && entry->first.first <= began;
    const bool hasEvent = nested == 0 && !state->events.empty() && state->events.front().key.second < last;
    if (hasEvent && (!hasBlock || state->events.front().key < entry->first)) {
        const platform::NSEvent event = std::move(state->events.front().event);
        state->events.pop_front();
        dispatchEvent(event);
        return true;
    }
    if (!hasBlock) return false;
    const platform::Block block = std::move(entry->second);
    state->ready.erase(entry);
    block();
    return true;
}

void ApplicationLoop::runEndOfTurn() {
    const auto blocks = std::exchange(state->endOfTurn, {});
    for (const auto& block : blocks)
        if (!isShutDown()) block();
}

platform::Date ApplicationLoop::nextDue() const {
    platform::Date next = platform::Date::distantFuture();
    if (!canTurn()) return next;
    if (!state->endOfTurn.empty()) return scheduler.now();
    if (!state->ready.empty()) next = state->ready.begin()->first.first;
    if (nested == 0 && !state->events.empty()) next = std::min(next, state->events.front().key.first);
    return next;
}

std::optional<platform::NSEvent> ApplicationLoop::nextEvent(platform::NSEventMask mask, platform::Date until,
                                                            bool dequeue) {
    const Raised pulling(nested);
    while (!isShutDown()) {
        const auto found = std::find_if(state->events.begin(), state->events.end(), [&](const auto& queued) {
            return (mask & platform::maskOf(queued.event.type)) != 0;
        });
        if (found != state->events.end()) {
            const platform::NSEvent event = found->event;
            if (dequeue) state->events.erase(found);
            return event;
        }
        if (scheduler.now() >= until) return std::nullopt;
        if (!scheduler.runDueOnce() && !scheduler.stepDriver(until)) return std::nullopt;
    }
    return std::nullopt;
}

void ApplicationLoop::blockFor(platform::Duration duration) {
    const Raised waiting(blocked);
    scheduler.advance(duration);
}

bool ApplicationLoop::blockUntil(const std::function<bool()>& condition) {
    const Raised waiting(blocked);
    while (!condition())
        if (isShutDown() || (!scheduler.runDueOnce() && !scheduler.stepDriver())) return false;
    return true;
}

void ApplicationLoop::shutDown() {
    state->dead = true;
    for (const auto& queue : queues) queue->shutDown();
    if (turns > 0) return;
    // Dropping a block can drop the last reference to what posts or ends others.
    const auto ready = std::exchange(state->ready, {});
    const auto endOfTurn = std::exchange(state->endOfTurn, {});
    state->events.clear();
}

std::size_t ApplicationLoop::timerCount() const {
    return state->timers;
}

}  // namespace desk
