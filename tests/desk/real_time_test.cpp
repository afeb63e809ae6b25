// Real time: queues beside the main thread, the machine to one of them at a time, and an end in the middle of anything. No waiting time is looked at.
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <filesystem>
#include <iterator>
#include <mutex>
#include <thread>

#include "desk/time/ApplicationLoop.h"
#include "desk/time/WorkerQueue.h"
#include "tests/desk/Probe.h"

namespace {

using desk::WorkerQueue;
using platform::seconds;

// A display at which nothing happens.
class QuietDisplay final : public desk::RealTime {
public:
    bool wait(platform::Duration atMost) override {
        std::unique_lock lock(mutex);
        changed.wait_for(lock, std::min<platform::Duration>(atMost, std::chrono::hours(1)),
                         [this] { return woken || ended; });
        woken = false;
        return !ended;
    }
    void wake() override {
        const std::lock_guard lock(mutex);
        woken = true;
        changed.notify_all();
    }
    void end() {
        ended = true;
        wake();
    }

private:
    std::mutex mutex;
    std::condition_variable changed;
    bool woken = false;
    std::atomic<bool> ended = false;
};

class InRealTime : public testing::Test {
protected:
    InRealTime() { scheduler.useRealTime(display); }

    void runUntil(const std::function<bool()>& condition) {
        while (!condition()) {
            scheduler.settle();
            if (!condition() && !scheduler.stepDriver()) break;
        }
        EXPECT_TRUE(condition());
    }

    QuietDisplay display;
    desk::Scheduler scheduler{platform::Date{}};
    desk::ApplicationLoop loop{scheduler, [](const platform::NSEvent&) {}};
};

constexpr int rounds = 200;
constexpr double forEver = 1e6;

// What the two queues and the main thread count without a lock comes out right only if none of them meets another.
TEST_F(InRealTime, QueuesHaveTheMachineOneAtATimeAndAnswerOnTheMainThread) {
    int visits = 0;
    int answers = 0;
    bool answeredElsewhere = false;
    const auto first = loop.makeSerialQueue("first", platform::QualityOfService::standard);
    const auto second = loop.makeSerialQueue("second", platform::QualityOfService::standard);
    for (int i = 0; i < rounds; ++i)
        for (const auto& queue : {first.get(), second.get()})
            queue->async([&] {
                {
                    const WorkerQueue::Visit visit;
                    const WorkerQueue::Visit withinIt;
                    ++visits;
                    if (visits % 7 == 0) WorkerQueue::current()->waitFor(std::chrono::microseconds(1));
                    ++visits;
                }
                loop.mainTask([&] {
                    ++answers;
                    answeredElsewhere = answeredElsewhere || !loop.isMainThread();
                });
            });
    runUntil([&] { return answers == 2 * rounds; });
    EXPECT_EQ(visits, 4 * rounds);
    EXPECT_FALSE(answeredElsewhere);
}

TEST_F(InRealTime, MainThreadGoesOnWhileAQueueWaits) {
    bool isWaiting = false;
    bool ticked = false;
    const auto queue = loop.makeSerialQueue("slow", platform::QualityOfService::standard);
    queue->async([&] {
        const WorkerQueue::Visit visit;
        isWaiting = true;
        WorkerQueue::current()->waitFor(seconds(forEver));
    });
    const auto timer = loop.addTimer(std::chrono::milliseconds(1), true, {}, [&] { ticked = isWaiting; });
    runUntil([&] { return ticked; });
}

// Otherwise these hang.
TEST_F(InRealTime, EndTurnsAwayWhoWaitsAndWhoComesLater) {
    enum class Outcome { none, waited, refused };
    std::atomic<int> waiting = 0;
    std::atomic<int> begun = 0;
    Outcome outcome = Outcome::none;
    bool refusedAgain = false;
    const auto slow = loop.makeSerialQueue("slow", platform::QualityOfService::standard);
    const auto prompted = loop.makeSerialQueue("prompted", platform::QualityOfService::standard);
    const auto busy = loop.makeSerialQueue("busy", platform::QualityOfService::standard);
    slow->async([&] {
        const WorkerQueue::Visit visit;
        ++waiting;
        outcome = WorkerQueue::current()->waitFor(seconds(forEver)) ? Outcome::waited : Outcome::refused;
    });
    prompted->async([&] {
        {
            const WorkerQueue::Visit visit;
            ++waiting;
            WorkerQueue::current()->waitForResume();
        }
        // By now the application is ending; its machine is still there to be visited.
        const WorkerQueue::Visit visit;
        refusedAgain = !WorkerQueue::current()->waitFor(seconds(forEver));
    });
    runUntil([&] { return waiting == 2; });
    for (int i = 0; i < rounds; ++i)
        busy->async([&] {
            const WorkerQueue::Visit visit;
            if (++begun == 4) loop.mainTask([&] { loop.shutDown(); });
        });
    runUntil([&] { return loop.isShutDown(); });
    EXPECT_EQ(outcome, Outcome::refused);
    EXPECT_TRUE(refusedAgain);
    const int atTheEnd = begun;
    EXPECT_LT(atTheEnd, rounds);
    scheduler.settle();
    EXPECT_EQ(begun, atTheEnd);
}

std::ptrdiff_t threadCount() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/task"), {});
}

// A thread that has been joined may be listed a moment longer.
bool threadsComeDownTo(std::ptrdiff_t count, desk::Scheduler& scheduler) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (threadCount() != count && std::chrono::steady_clock::now() < deadline) {
        scheduler.settle();
        std::this_thread::yield();
    }
    return threadCount() == count;
}

TEST_F(InRealTime, DetachedTasksGoWhenTheyHaveEndedAndAreEndedWithTheApplication) {
    const std::ptrdiff_t before = threadCount();
    int done = 0;
    for (int i = 0; i < rounds; ++i)
        loop.detachedTask(platform::QualityOfService::userInitiated, [&] {
            const WorkerQueue::Visit visit;
            ++done;
        });
    runUntil([&] { return done == rounds; });
    EXPECT_TRUE(threadsComeDownTo(before, scheduler));

    bool isWaiting = false;
    bool isRefused = false;
    loop.detachedTask(platform::QualityOfService::userInitiated, [&] {
        const WorkerQueue::Visit visit;
        isWaiting = true;
        isRefused = !WorkerQueue::current()->waitForResume();
    });
    runUntil([&] { return isWaiting; });
    loop.shutDown();
    EXPECT_TRUE(isRefused);
    EXPECT_TRUE(threadsComeDownTo(before, scheduler));
}

// The thread sanitizer would see the main thread and the queue meet.
TEST_F(InRealTime, ScriptsMayBeMadeWhileTheirApplicationEnds) {
    kit::Desk whole;
    kit::Probe& probe = kit::launchProbe(whole);
    whole.machine.useRealTime(display);
    const auto queue = probe.platform.dispatch.makeSerialQueue("scripts", platform::QualityOfService::standard);
    std::atomic<bool> begun = false;
    queue->async([&] {
        for (int i = 0; i < 100 * rounds; ++i) {
            const auto script = probe.platform.appleEvents.makeAppleScript("1");
            begun = true;
        }
    });
    while (!begun) std::this_thread::yield();
    probe.platform.application.terminate();
    EXPECT_TRUE(whole.machine.applications.all().front()->isDead());
}

TEST_F(InRealTime, DeskThatEndsLeavesEveryLoop) {
    scheduler.after(seconds(0), [&] { display.end(); });
    loop.blockFor(seconds(forEver));
    EXPECT_FALSE(loop.blockUntil([] { return false; }));
    EXPECT_FALSE(loop.nextEvent(~platform::NSEventMask{0}, platform::Date::distantFuture(), true).has_value());
}

}  // namespace
