#include <gtest/gtest.h>

#include "tests/kit/FakePlatform.h"
#include "tracking/FinderWindowEventMonitor.h"

namespace brindle {
namespace {

using platform::AXAttributeValue;
using platform::CGRectMake;

struct Monitored {
    kit::FakePlatform fake;
    std::vector<FinderWindowEvent> events;
    std::vector<std::size_t> subscriptionsAtEvent;
    FinderWindowEventMonitor monitor{fake.platform, [this](const FinderWindowEvent& event) {
                                         events.push_back(event);
                                         subscriptionsAtEvent.push_back(fake.subscriptions.size());
                                     }};

    explicit Monitored(int windows) {
        for (int number = 1; number <= windows; ++number) add(number);
    }
    void add(std::int64_t number) {
        kit::FakeWindow window;
        window.number = number;
        window.frame = CGRectMake(10, 20, 300, 200);
        window.title = "Reports";
        fake.finderWindows.push_back(std::move(window));
    }
};

TEST(FinderWindowEventMonitor, HasOneSetOfSubscriptionsHoweverOftenItStarts) {
    Monitored m(2);
    m.monitor.start();
    m.monitor.start();
    EXPECT_EQ(m.fake.subscriptions.size(), 14U);
    EXPECT_EQ(m.fake.subscriptions[1].notification, "AXFocusedWindowChanged");
    EXPECT_TRUE(m.monitor.applicationElement());
    m.monitor.stop();
    EXPECT_TRUE(m.fake.subscriptions.empty());
    EXPECT_FALSE(m.monitor.applicationElement());
}

TEST(FinderWindowEventMonitor, StaysStoppedWithoutTrustOrFinder) {
    Monitored m(1);
    m.fake.isTrusted = false;
    m.monitor.start();
    EXPECT_FALSE(m.monitor.applicationElement());
    m.fake.isTrusted = true;
    m.fake.running = {"com.apple.dock"};
    m.monitor.start();
    EXPECT_FALSE(m.monitor.applicationElement());
}

TEST(FinderWindowEventMonitor, SubscribesToANewWindowAfterHandingTheEventOver) {
    Monitored m(1);
    m.monitor.start();
    m.add(2);
    m.fake.notify(0, "AXWindowCreated");
    m.fake.notify(2, "AXMoved");
    ASSERT_EQ(m.events.size(), 2U);
    EXPECT_EQ(m.subscriptionsAtEvent[0], 8U);
    EXPECT_EQ(m.events[1],
              (FinderWindowEvent{"AXMoved", CGRectMake(10, 20, 300, 200), "Reports", false, std::nullopt}));
}

TEST(FinderWindowEventMonitor, OnlyCreationAndDestructionRebuildTheSubscriptions) {
    Monitored m(2);
    m.monitor.start();
    m.fake.finderWindows.pop_back();
    m.fake.notify(0, "AXFocusedWindowChanged");
    m.fake.notify(1, "AXTitleChanged");
    EXPECT_EQ(m.fake.subscriptions.size(), 14U);
    m.fake.notify(2, "AXUIElementDestroyed");
    EXPECT_EQ(m.fake.subscriptions.size(), 8U);
    EXPECT_EQ(m.events.back(),
              (FinderWindowEvent{"AXUIElementDestroyed", std::nullopt, std::nullopt, false, std::nullopt}));
}

TEST(FinderWindowEventMonitor, WhatCannotBeReadStaysEmpty) {
    Monitored m(1);
    auto& attributes = m.fake.window(1).attributes;
    attributes["AXSize"] = std::nullopt;
    attributes["AXTitle"] = AXAttributeValue(3.0);
    attributes["AXMain"] = AXAttributeValue(1.0);
    attributes["AXFullScreen"] = AXAttributeValue(false);
    m.monitor.start();
    m.fake.notify(1, "AXResized");
    EXPECT_EQ(m.events.back(), (FinderWindowEvent{"AXResized", std::nullopt, std::nullopt, true, false}));
}

}  // namespace
}  // namespace brindle
