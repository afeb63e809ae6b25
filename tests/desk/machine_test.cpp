// What connects the machine's parts: launching and ending applications, spaces, trust, the window list, the system prompt.
#include <gtest/gtest.h>

#include "tests/desk/Probe.h"

namespace {

using kit::Desk;
using kit::Probe;
using platform::AXError;
using platform::CGRectMake;
using platform::NSEvent;
using Log = std::vector<std::string>;

class MachineTest : public testing::Test {
protected:
    Desk desk;
};

TEST_F(MachineTest, StartsWithFinderInFrontAndNoWindow) {
    EXPECT_EQ(desk.machine.scheduler.now(), platform::Date{platform::seconds(1717405200)});
    EXPECT_EQ(desk.machine.processes.frontmost()->bundleIdentifier, "com.apple.finder");
    EXPECT_TRUE(desk.machine.windows.all().empty());
    EXPECT_EQ(desk.machine.disk.kind("/Applications/Orvane.app"), platform::FileKind::directory);
    EXPECT_EQ(desk.machine.alerts.shown(), nullptr);
}

TEST_F(MachineTest, LaunchCallbacksRunWhenTheMachineSettles) {
    auto& launched = desk.machine.applications.launch(
        desk::bundleAt(desk.machine.disk, "/Applications/Copy.app"),
        [](platform::Platform& platform) { return std::make_unique<Probe>(platform); });
    auto& probe = *static_cast<Probe*>(launched.program());
    EXPECT_EQ(probe.log, Log{});
    desk.machine.settle();
    EXPECT_EQ(probe.log, (Log{"will", "did"}));
    EXPECT_EQ(probe.platform.bundle.bundleIdentifier(), std::nullopt);
    EXPECT_EQ(desk.machine.processes.running().back().bundlePath, "/Applications/Copy.app");
    EXPECT_EQ(desk.machine.processes.running().back().policy, platform::NSApplicationActivationPolicy::accessory);
    EXPECT_EQ(desk.machine.processes.frontmost()->bundleIdentifier, "com.apple.finder");
}

TEST_F(MachineTest, AnApplicationEndsOnlyIfItsDelegateAgreesAndThenGetsNothingMore) {
    Probe& probe = kit::launchProbe(desk);
    const auto panel = probe.panel(CGRectMake(0, 0, 100, 44));
    const auto timer = probe.platform.runLoop.addTimer(platform::seconds(0.1), true, {}, [] { ADD_FAILURE(); });
    probe.agreesToTerminate = false;
    probe.platform.application.terminate();
    EXPECT_TRUE(panel->isVisible());
    probe.agreesToTerminate = true;
    probe.platform.dispatch.mainAsync([&] {
        probe.platform.application.terminate();
        panel->orderFrontRegardless();
        panel->makeKeyWindow();
        EXPECT_FALSE(panel->isVisible());
        EXPECT_TRUE(probe.platform.appleEvents.makeAppleScript("1")->executeAndReturnError().error);
        EXPECT_FALSE(probe.platform.application.nextEventMatchingMask(~0ULL, platform::Date::distantFuture(),
                                                                      platform::NSRunLoopMode::defaultMode, true));
        probe.platform.dispatch.mainAsync([] { ADD_FAILURE(); });
    });
    desk.machine.scheduler.settle();
    EXPECT_TRUE(desk.machine.applications.all().front()->isDead());
    EXPECT_TRUE(desk.machine.windows.all().empty());
    EXPECT_EQ(desk.machine.processes.running().size(), 1U);
}

TEST_F(MachineTest, AnApplicationThatEndedInsideItsLoopIsDestroyedOnceItHasReturned) {
    Probe& probe = kit::launchProbe(desk);
    auto held = std::make_shared<int>();
    const std::weak_ptr<int> watch = held;
    probe.tokens.emplace_back([held = std::move(held)] {});
    desk.then([&] {
        probe.platform.dispatch.mainAsync([&] {
            probe.platform.application.nextEventMatchingMask(2, platform::Date::distantFuture(),
                                                             platform::NSRunLoopMode::eventTracking, true);
        });
    });
    desk.play([&] {
        probe.platform.application.terminate();
        desk.machine.applications.reap();
        EXPECT_FALSE(watch.expired());
    });
    EXPECT_TRUE(watch.expired());
    EXPECT_TRUE(desk.machine.applications.all().empty());
}

class RecordingView final : public platform::ContentView {
public:
    explicit RecordingView(Log& theLog) : log(theLog) {}
    void didMoveToWindow(platform::NSWindow*) override {}
    void setSize(platform::CGSize) override {}
    void setOnScreen(bool onScreen) override { log.emplace_back(onScreen ? "on" : "off"); }
    bool acceptsFirstMouse(const NSEvent&) override { return true; }
    void handleEvent(const NSEvent&) override {}
    const platform::Drawing& drawing() override { return nothing; }
    std::uint64_t drawingVersion() const override { return 0; }

private:
    Log& log;
    platform::Drawing nothing;
};

TEST_F(MachineTest, APanelLeftOnAnotherSpaceIsntVisibleUntilItIsOrderedInAnew) {
    Probe& probe = kit::launchProbe(desk);
    Log log;
    const auto panel = probe.panel(CGRectMake(0, 0, 100, 44));
    panel->setContentView(std::make_unique<RecordingView>(log));
    probe.tokens.push_back(probe.platform.workspace.addObserver(platform::WorkspaceNotification::activeSpaceDidChange,
                                                                [&] { log.emplace_back("space"); }));
    desk.machine.windows.switchToSpace(2);
    EXPECT_FALSE(panel->isVisible());
    desk.machine.settle();
    EXPECT_EQ(log, (Log{"on", "off", "space"}));
    panel->orderFrontRegardless();
    desk.machine.windows.switchToSpace(2);
    desk.machine.settle();
    EXPECT_TRUE(panel->isVisible());
    EXPECT_EQ(log, (Log{"on", "off", "space", "on"}));
}

TEST_F(MachineTest, ActivationNotificationsComeLaterAndOnlyForAChange) {
    Probe& probe = kit::launchProbe(desk);
    desk.machine.launchServices.startOtherProcess("org.example.Other");
    desk.twoWindows();
    probe.log.clear();
    probe.tokens.push_back(
        probe.platform.workspace.addObserver(platform::WorkspaceNotification::didActivateApplication, [&] {
            probe.log.push_back(probe.platform.workspace.frontmostApplication()->bundleIdentifier.value_or("?"));
        }));
    desk.machine.activation.activate("com.apple.finder");
    desk.machine.activation.activate("org.example.Other");
    EXPECT_EQ(probe.log, Log{});
    desk.machine.settle();
    EXPECT_EQ(probe.log, Log{"org.example.Other"});
    const auto finder = probe.platform.workspace.runningApplications().front();
    EXPECT_TRUE(finder.activateWithOptions(platform::NSApplicationActivationOptions::activateIgnoringOtherApps));
    std::vector<std::int64_t> front;
    for (const auto* window : desk.machine.windows.onScreen()) front.push_back(window->number);
    EXPECT_EQ(front, (std::vector<std::int64_t>{102, 1000001, 101}));
    EXPECT_FALSE(probe.platform.workspace.activate(9999, 3));
}

platform::Dictionary entryOf(Probe& probe, std::int64_t number, std::uint32_t option = 17) {
    const auto list = probe.platform.windowServer.CGWindowListCopyWindowInfo(option, 0);
    for (const auto& each : *list.as<platform::Array>()) {
        const auto& entry = *each.as<platform::Dictionary>();
        const auto* found = platform::find(entry, platform::kCGWindowNumber);
        if (found != nullptr && found->integer() == number) return entry;
    }
    return {};
}

TEST_F(MachineTest, TheWindowListAnswersInTopLeftSpaceWithItsFaults) {
    Probe& probe = kit::launchProbe(desk);
    desk.twoWindows();
    const std::int64_t finder = desk.machine.finder.pid();
    const platform::Dictionary whole{
        {"kCGWindowNumber", std::int64_t{101}},
        {"kCGWindowOwnerPID", finder},
        {"kCGWindowLayer", std::int64_t{0}},
        {"kCGWindowName", "One"},
        {"kCGWindowBounds", platform::Dictionary{{"X", 100.0}, {"Y", 200.0}, {"Width", 800.0}, {"Height", 500.0}}}};
    EXPECT_EQ(entryOf(probe, 101), whole);
    desk.machine.faults.setWindowListFault("kCGWindowName", desk::ReadFault::missing, 101);
    desk.machine.faults.setWindowListFault("kCGWindowLayer", desk::ReadFault::wrongType);
    EXPECT_EQ(platform::find(entryOf(probe, 101), "kCGWindowName"), nullptr);
    EXPECT_EQ(entryOf(probe, 102).at("kCGWindowName"), platform::Value("Two"));
    EXPECT_EQ(entryOf(probe, 102).at("kCGWindowLayer").integer(), std::nullopt);
}

TEST_F(MachineTest, TheWindowListLeavesOutWhatWasntAskedFor) {
    Probe& probe = kit::launchProbe(desk);
    desk.twoWindows();
    desk.machine.finder.minimize(102);
    const auto count = [&](std::uint32_t option) {
        return probe.platform.windowServer.CGWindowListCopyWindowInfo(option, 0).as<platform::Array>()->size();
    };
    EXPECT_EQ(count(platform::kCGWindowListOptionOnScreenOnly | platform::kCGWindowListExcludeDesktopElements), 1U);
    EXPECT_EQ(count(platform::kCGWindowListOptionOnScreenOnly), 2U);
    EXPECT_EQ(count(0), 3U);
    desk.machine.finder.quit();
    EXPECT_EQ(count(0), 0U);
}

TEST_F(MachineTest, WithoutTrustReadsFailAndNotificationsAreWithheldButRegistrationsLast) {
    Probe& probe = kit::launchProbe(desk);
    desk.twoWindows();
    auto& ax = probe.platform.accessibility;
    const auto finder = ax.AXUIElementCreateApplication(desk.machine.finder.pid());
    Log log;
    const auto observer = ax.AXObserverCreate(
        finder.processIdentifier, [](platform::AXObserver&, const platform::AXUIElement&, const std::string& name,
                                     void* context) { static_cast<Log*>(context)->push_back(name); });
    observer->addSourceToMainRunLoop();
    EXPECT_EQ(observer->AXObserverAddNotification(finder, "AXWindowCreated", &log), AXError::success);
    EXPECT_EQ(observer->AXObserverAddNotification(finder, "AXWindowCreated", &log), AXError::failure);
    EXPECT_TRUE(ax.AXUIElementCopyAttributeValue(finder, "AXWindows"));
    EXPECT_EQ(ax.AXObserverCreate(9999, [](auto&, auto&, auto&, auto*) {}), nullptr);

    const auto openAnother = [&] {
        desk.machine.finder.open("/Users/ana/Work");
        EXPECT_EQ(log.size(), 0U) << "never inside the call that causes it";
        desk.machine.settle();
        return std::exchange(log, {});
    };
    EXPECT_EQ(openAnother(), Log{"AXWindowCreated"});
    desk.machine.permissions.setAccessibility(false);
    EXPECT_EQ(openAnother(), Log{});
    EXPECT_FALSE(ax.AXUIElementCopyAttributeValue(finder, "AXWindows"));
    EXPECT_EQ(ax.AXUIElementPerformAction(finder, "AXRaise"), AXError::apiDisabled);
    desk.machine.permissions.setAccessibility(true);
    EXPECT_EQ(openAnother(), Log{"AXWindowCreated"});
    EXPECT_EQ(desk.machine.applications.all().front()->registrations().accessibilitySubscriptions, 1U);
    EXPECT_EQ(observer->AXObserverRemoveNotification(finder, "AXWindowCreated"), AXError::success);
    EXPECT_EQ(openAnother(), Log{});
}

TEST_F(MachineTest, AMonitorMayRemoveItselfAndWhatIsBehindIt) {
    Probe& probe = kit::launchProbe(desk);
    probe.log.clear();
    for (int i = 0; i < 3; ++i)
        probe.tokens.push_back(
            probe.platform.events.addGlobalMonitorForEventsMatchingMask(2, [&probe, i](const NSEvent&) {
                probe.log.push_back(std::to_string(i));
                if (i == 1) probe.tokens.clear();
            }));
    desk.click({10, 10});
    desk.click({10, 10});
    EXPECT_EQ(probe.log, (Log{"0", "1"}));
    EXPECT_EQ(desk.machine.applications.all().front()->registrations().globalMonitors, 0U);
}

TEST_F(MachineTest, DefaultsOutliveTheirProcessAndTimersDontMindTheClock) {
    Probe& first = kit::launchProbe(desk);
    first.platform.defaults.setObject("key", "stored");
    int fired = 0;
    const auto timer = first.platform.runLoop.addTimer(platform::seconds(1), true, {}, [&] { ++fired; });
    desk.machine.clock.set(platform::Date{});
    desk.run(3);
    EXPECT_EQ(fired, 3);
    EXPECT_EQ(first.platform.clock.now(), platform::Date{platform::seconds(3)});
    first.platform.application.terminate();
    EXPECT_EQ(kit::launchProbe(desk).platform.defaults.stringForKey("key"), "stored");
    EXPECT_EQ(kit::launchProbe(desk, "org.example.Other").platform.defaults.stringForKey("key"), std::nullopt);
}

TEST_F(MachineTest, FilesAreReachedThroughTheMacsPaths) {
    Probe& probe = kit::launchProbe(desk);
    auto& files = probe.platform.files;
    EXPECT_EQ(files.fileHandleForWritingAtPath("/tmp/log"), nullptr);
    EXPECT_FALSE(files.writeFile("/tmp/missing/log", "x"));
    EXPECT_TRUE(files.writeFile("/tmp/log", "one\n"));
    const auto handle = files.fileHandleForWritingAtPath("tmp/log");
    ASSERT_NE(handle, nullptr);
    EXPECT_TRUE(handle->seekToEnd() && handle->write("two\n") && handle->close());
    EXPECT_EQ(desk.machine.disk.read("/tmp/log"), "one\ntwo\n");
    EXPECT_EQ(files.kindOfFileAtPath("/tmp"), platform::FileKind::directory);
    EXPECT_EQ(files.kindOfFileAtPath(""), std::nullopt);
}

TEST_F(MachineTest, TheSystemPromptIsAnsweredByItsButtons) {
    desk.machine.permissions.automation = desk::AutomationPermission::ask;
    Probe& probe = kit::launchProbe(desk);
    const auto script =
        probe.platform.appleEvents.makeAppleScript("tell application \"Finder\" to count Finder windows");
    const auto queue = probe.platform.dispatch.makeSerialQueue("scripts", platform::QualityOfService::utility);
    std::optional<platform::NSAppleScriptResult> result;
    queue->async([&] { result = script->executeAndReturnError(); });
    desk.run(5);
    ASSERT_NE(desk.machine.alerts.shown(), nullptr);
    EXPECT_EQ(desk.machine.alerts.shown()->buttons, (std::vector<std::string>{"Don't Allow", "OK"}));
    EXPECT_FALSE(desk.machine.alerts.press("Maybe"));
    const desk::ShownAlert shown = *desk.machine.alertSurface.shown();
    const auto button = shown.buttonLabelled("Don't Allow");
    ASSERT_TRUE(button);
    desk.click({button->midX(), button->midY()});
    EXPECT_EQ(desk.machine.alerts.shown(), nullptr);
    EXPECT_EQ(desk.machine.permissions.automation, desk::AutomationPermission::denied);
    ASSERT_TRUE(result);
    EXPECT_EQ(result->error->at(platform::NSAppleScriptErrorNumber).integer(), -1743);
}

}  // namespace
