// When things run: turns, timers, queues beside a waiting main thread, loops inside loops.
#include <gtest/gtest.h>

#include "desk/time/ApplicationLoop.h"
#include "desk/time/WorkerQueue.h"

namespace {

using desk::WorkerQueue;
using platform::Date;
using platform::DispatchWorkItem;
using platform::NSEvent;
using platform::NSEventType;
using platform::seconds;
using Log = std::vector<std::string>;

constexpr platform::NSEventMask tracking = 68;

class Steps final : public desk::Driver {
public:
    bool step() override {
        if (left.empty()) return false;
        const auto next = std::move(left.front());
        left.erase(left.begin());
        next();
        return true;
    }
    std::vector<platform::Block> left;
};

class LoopTest : public testing::Test {
protected:
    desk::Scheduler scheduler{Date{seconds(1000)}};
    Log log;
    desk::ApplicationLoop loop{scheduler, [this](const NSEvent& event) { note("event " + nameOf(event)); }};
    std::vector<std::unique_ptr<platform::Timer>> timers;

    static std::string nameOf(const NSEvent& event) { return std::to_string(static_cast<int>(event.type)); }
    static NSEvent eventOf(NSEventType type) {
        NSEvent event;
        event.type = type;
        return event;
    }
    void note(const std::string& what) { log.push_back(what); }
    platform::Block noting(const std::string& what) {
        return [this, what] { note(what); };
    }
    // With the seconds since the start, in tenths.
    platform::Block stamping(const std::string& what) {
        return [this, what] {
            const auto tenths = (scheduler.now() - Date{seconds(1000)}) / std::chrono::milliseconds(100);
            note(what + " " + std::to_string(tenths));
        };
    }
    void every(double period, platform::Block block) {
        timers.push_back(loop.addTimer(seconds(period), true, {}, std::move(block)));
    }
};

TEST_F(LoopTest, WhatATurnPostsRunsInALaterTurnAfterTheEndOfThisOne) {
    loop.mainAsync([this] {
        note("a");
        loop.mainAsync(noting("d"));
        loop.atEndOfTurn([this] {
            note("end");
            loop.atEndOfTurn(noting("next end"));
        });
    });
    loop.postEvent(eventOf(NSEventType::keyDown));
    loop.mainTask(noting("c"));
    scheduler.settle();
    EXPECT_EQ(log, (Log{"a", "event 10", "c", "end", "d", "next end"}));
}

TEST_F(LoopTest, DelayedItemsRunInOrderOfDueTimeAndThenOfPosting) {
    const auto cancelled = std::make_shared<DispatchWorkItem>(stamping("cancelled"));
    loop.mainAfter(seconds(0.3), std::make_shared<DispatchWorkItem>(stamping("late")));
    loop.mainAfter(seconds(0.1), std::make_shared<DispatchWorkItem>(stamping("first")));
    loop.mainAfter(seconds(0.1), std::make_shared<DispatchWorkItem>(stamping("second")));
    loop.mainAfter(seconds(0.2), cancelled);
    scheduler.advance(seconds(0.15));
    cancelled->cancel();
    scheduler.advance(seconds(10));
    EXPECT_EQ(log, (Log{"first 1", "second 1", "late 3"}));
}

TEST_F(LoopTest, ARepeatingTimerKeepsItsGridAndFiresOnceForMissedBeats) {
    every(0.5, stamping("beat"));
    scheduler.advance(seconds(0.7));
    loop.blockFor(seconds(1.5));
    scheduler.advance(seconds(0.8));
    EXPECT_EQ(log, (Log{"beat 5", "beat 22", "beat 25", "beat 30"}));
}

TEST_F(LoopTest, CallbacksMayEndWhatIsRunningThem) {
    every(0.1, [this] {
        note("timer");
        timers.front()->invalidate();
        timers.clear();
    });
    auto item = std::make_shared<std::shared_ptr<DispatchWorkItem>>();
    *item = std::make_shared<DispatchWorkItem>([this, item] {
        item->reset();
        note("item");
    });
    loop.mainAfter(seconds(0.2), *item);
    scheduler.advance(seconds(1));
    EXPECT_EQ(log, (Log{"timer", "item"}));
    EXPECT_EQ(loop.timerCount(), 0U);
}

TEST_F(LoopTest, EndlessWorkAtOneInstantIsLeft) {
    platform::Block again = [&] { loop.mainAsync([&] { again(); }); };
    again();
    testing::internal::CaptureStderr();
    scheduler.advance(seconds(1));
    EXPECT_NE(testing::internal::GetCapturedStderr().find("never ends"), std::string::npos);
    EXPECT_EQ(scheduler.now(), Date{seconds(1001)});
}

TEST_F(LoopTest, QueuesOverlapAndEachIsBusyUntilItsBlockHasItsAnswer) {
    const auto slow = loop.makeSerialQueue("slow", platform::QualityOfService::userInitiated);
    const auto quick = loop.makeSerialQueue("quick", platform::QualityOfService::userInteractive);
    const auto fetch = [this](const std::string& name, double latency) {
        return [this, name, latency] {
            stamping("ask " + name)();
            EXPECT_FALSE(loop.isMainThread());
            EXPECT_TRUE(WorkerQueue::current()->waitFor(seconds(latency)));
            loop.mainAsync(stamping("answer " + name));
        };
    };
    slow->async(fetch("a", 3));
    slow->async(fetch("b", 1));
    quick->async(fetch("c", 1));
    note("posted");
    scheduler.advance(seconds(5));
    EXPECT_EQ(log, (Log{"posted", "ask a 0", "ask c 0", "answer c 10", "answer a 30", "ask b 30", "answer b 40"}));
}

TEST_F(LoopTest, TimeGoesOnForQueuesWhileTheMainThreadWaits) {
    const auto queue = loop.makeSerialQueue("queue", platform::QualityOfService::standard);
    queue->async([this] {
        WorkerQueue::current()->waitFor(seconds(1));
        stamping("queue")();
        loop.mainAsync(stamping("main"));
    });
    loop.mainAsync([this] {
        loop.blockFor(seconds(2));
        stamping("unblocked")();
    });
    scheduler.advance(seconds(5));
    EXPECT_EQ(log, (Log{"queue 10", "unblocked 20", "main 20"}));
}

TEST_F(LoopTest, ShuttingDownAnswersWaitingBlocksAndDropsTheOthers) {
    auto queue = loop.makeSerialQueue("queue", platform::QualityOfService::standard);
    queue->async([this] {
        note(WorkerQueue::current()->waitForResume() ? "resumed" : "refused");
        note(WorkerQueue::current()->waitFor(seconds(1)) ? "waited" : "refused again");
        loop.mainAsync(noting("never"));
    });
    queue->async(noting("never"));
    loop.mainAsync(noting("turn"));
    scheduler.settle();
    loop.mainAsync(noting("never"));
    loop.shutDown();
    queue->async(noting("never"));
    scheduler.advance(seconds(5));
    EXPECT_EQ(log, (Log{"turn", "refused", "refused again"}));
}

TEST_F(LoopTest, AQueueWaitsForResumeAndMayBeLetGoMeanwhile) {
    WorkerQueue* waiting = nullptr;
    auto queue = loop.makeSerialQueue("queue", platform::QualityOfService::standard);
    queue->async([&] {
        waiting = WorkerQueue::current();
        note(waiting->waitForResume() ? "resumed" : "refused");
    });
    queue->async(noting("never"));
    scheduler.advance(seconds(1));
    queue.reset();
    waiting->resume();
    waiting->resume();
    note("resuming");
    scheduler.settle();
    EXPECT_EQ(log, (Log{"resuming", "resumed"}));
}

TEST_F(LoopTest, ANestedLoopPullsTheDriverAndLeavesOtherEventsQueued) {
    Steps driver;
    driver.left = {[&] { loop.postEvent(eventOf(NSEventType::keyDown)); }, [&] { scheduler.advance(seconds(0.5)); },
                   [&] { loop.postEvent(eventOf(NSEventType::leftMouseDragged)); },
                   [&] { loop.postEvent(eventOf(NSEventType::leftMouseUp)); }};
    scheduler.setDriver(&driver);
    every(0.2, stamping("beat"));
    loop.mainAsync([this] {
        while (const auto event = loop.nextEvent(tracking, Date::distantFuture(), true))
            note("tracked " + nameOf(*event));
        note("left");
    });
    scheduler.settle();
    EXPECT_EQ(log, (Log{"beat 2", "beat 4", "tracked 6", "tracked 2", "left", "event 10"}));
}

TEST_F(LoopTest, ANestedLoopRunsWhatItsTurnHasLeftAndEndsAtItsDate) {
    Steps driver;
    driver.left = {[&] { scheduler.advance(seconds(3)); }, noting("not pulled")};
    scheduler.setDriver(&driver);
    loop.mainAsync([this] {
        note(loop.nextEvent(tracking, scheduler.now() + seconds(2), true) ? "event" : "none");
        note("outer");
    });
    loop.mainAsync(noting("ready before"));
    scheduler.settle();
    EXPECT_EQ(log, (Log{"ready before", "none", "outer"}));
    EXPECT_FALSE(loop.nextEvent(tracking, Date::distantPast(), true));
}

TEST_F(LoopTest, AMainThreadThatWaitsForThePersonPullsTheDriverButRunsNoBlock) {
    Steps driver;
    bool answered = false;
    driver.left = {[&] { loop.mainAsync(noting("block")); }, [&] { answered = true; }};
    scheduler.setDriver(&driver);
    EXPECT_TRUE(loop.blockUntil([&] { return answered; }));
    EXPECT_FALSE(loop.blockUntil([] { return false; }));
    EXPECT_EQ(log, Log{});
    scheduler.settle();
    EXPECT_EQ(log, Log{"block"});
}

TEST_F(LoopTest, MachineItemsRunInOrderOfPostingAndCanBeTakenBack) {
    scheduler.after(seconds(1), stamping("b"));
    const auto cancelled = scheduler.after(seconds(1), stamping("cancelled"));
    scheduler.after(seconds(0.5), [&] {
        stamping("a")();
        scheduler.cancel(cancelled);
        scheduler.after(seconds(0), stamping("a2"));
    });
    scheduler.advance(seconds(1e12));
    EXPECT_EQ(log, (Log{"a 5", "a2 5", "b 10"}));
}

}  // namespace
