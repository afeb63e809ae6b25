#include "overlay/FinderOverlayCoordinator.h"

#include <gtest/gtest.h>

#include "tests/overlay/OverlayPlatform.h"

namespace brindle {
namespace {

using platform::CGRect;
using platform::CGRectMake;
using Calls = std::vector<std::string>;

// Three windows, 101 in front; their panels are made in this order, so panel 1 is the bar of 101. The screen is 900
// points high.
class FinderOverlayCoordinatorTest : public testing::Test {
protected:
    FinderOverlayCoordinatorTest() {
        mac.addFinderWindow(101, "/a/", CGRectMake(100, 100, 800, 500));
        mac.addFinderWindow(102, "/b/", CGRectMake(200, 150, 600, 400));
        mac.addFinderWindow(103, "/c/", CGRectMake(300, 200, 600, 400));
        observer->refresh(true);
        mac.fake.advance({});
        mac.takeCalls();
        coordinator = std::make_unique<FinderOverlayCoordinator>(
            mac.platform, observer, std::make_shared<FinderNavigationService>(mac.platform),
            std::make_shared<ClipboardService>(mac.platform), std::make_shared<TerminalService>(mac.platform),
            std::make_shared<VSCodeService>(mac.platform));
        mac.fake.advance({});
    }

    FinderOverlayWindowController& overlay(const std::string& id) {
        return *coordinator->liveControllers().find(id)->second;
    }
    Calls callsOfPass() {
        mac.takeCalls();
        observer->refresh(false);
        return mac.takeCalls();
    }
    Calls identifiers() {
        Calls ids;
        for (const auto& [id, each] : coordinator->liveControllers()) ids.push_back(id);
        return ids;
    }
    Calls editing() {
        Calls ids;
        for (const auto& [id, each] : coordinator->liveControllers())
            if (each->viewModel->isEditing.get()) ids.push_back(id);
        return ids;
    }
    platform::NSEvent brandEvent(platform::NSEventType type, const std::string& id, platform::CGPoint location) {
        platform::NSEvent event;
        event.type = type;
        event.window = overlay(id).panel.get();
        event.locationInWindow = location;
        return event;
    }
    void pressCommandL() {
        platform::NSEvent key;
        key.type = platform::NSEventType::keyDown;
        key.modifierFlags = platform::NSEventModifierFlags::command;
        key.charactersIgnoringModifiers = "l";
        mac.fake.sendLocal(key);
    }

    kit::OverlayPlatform mac;
    std::shared_ptr<FinderObserver> observer = std::make_shared<FinderObserver>(
        mac.platform, std::make_shared<AccessibilityManager>(mac.platform),
        std::make_shared<FinderWindowTracker>(mac.platform), std::make_shared<FinderPathProvider>(mac.platform));
    std::unique_ptr<FinderOverlayCoordinator> coordinator;
};

TEST_F(FinderOverlayCoordinatorTest, FloatsTheActiveBarAndPutsTheOthersAboveTheirWindows) {
    EXPECT_EQ(mac.takeCalls(), (Calls{"panel 1: level 3", "panel 1: sized 800 at 100 800", "panel 1: front",
                                      "panel 2: sized 600 at 200 750", "panel 2: above 102",
                                      "panel 3: sized 600 at 300 700", "panel 3: above 103"}));
    EXPECT_TRUE(overlay("finder-101").viewModel->isActive.get());
    EXPECT_FALSE(overlay("finder-102").viewModel->isActive.get());
    EXPECT_EQ(mac.fake.fileContents["/tmp/Orvane-debug.log"].find("panel-created id=finder-101\n") != std::string::npos,
              true);
}

TEST_F(FinderOverlayCoordinatorTest, FollowsAWindowWithoutReorderingItsBar) {
    struct Case {
        CGRect frame;  // top-left
        Calls calls;
    };
    for (const Case& each : {
             Case{CGRectMake(200.4, 150, 600, 400), {}},
             Case{CGRectMake(200.4, 150.3, 600.4, 400), {}},
             Case{CGRectMake(200.5, 150, 600, 400), {"panel 2: moved to 200 750"}},
             Case{CGRectMake(210, 160, 600.4, 400), {"panel 2: moved to 210 740"}},
             Case{CGRectMake(210, 160, 700, 400), {"panel 2: sized 700 at 210 740"}},
         }) {
        mac.fake.window(102).frame = each.frame;
        EXPECT_EQ(callsOfPass(), each.calls);
    }
}

TEST_F(FinderOverlayCoordinatorTest, ReordersWhenAnotherWindowComesToTheFront) {
    std::swap(mac.fake.finderWindows[0], mac.fake.finderWindows[1]);
    // The list and the active window are published one after the other, and each is a pass of its own.
    EXPECT_EQ(callsOfPass(), (Calls{"panel 2: above 102", "panel 1: front", "panel 2: level 3", "panel 2: front",
                                    "panel 1: level 0", "panel 1: above 101", "panel 3: above 103"}));
}

TEST_F(FinderOverlayCoordinatorTest, KeepsEveryBarOnScreenBehindOtherApplications) {
    const Calls allAbove{"panel 1: above 101", "panel 2: above 102", "panel 3: above 103"};
    mac.fake.frontmost = "com.apple.TextEdit";
    const Calls left = callsOfPass();
    EXPECT_EQ(Calls(left.end() - 4, left.end()),
              (Calls{"panel 1: level 0", "panel 1: above 101", "panel 2: above 102", "panel 3: above 103"}));
    EXPECT_FALSE(overlay("finder-101").viewModel->isActive.get());

    mac.fake.frontmost = "com.apple.Preview";
    EXPECT_EQ(callsOfPass(), allAbove);
    EXPECT_EQ(identifiers().size(), 3u);
}

TEST_F(FinderOverlayCoordinatorTest, DropsTheBarOfAWindowThatIsGoneAndAllWithoutTrust) {
    mac.fake.finderWindows.pop_back();
    EXPECT_EQ(callsOfPass(), Calls{"panel 3: out"});
    EXPECT_EQ(identifiers(), (Calls{"finder-101", "finder-102"}));
    EXPECT_EQ(mac.windowCount, 2);

    mac.fake.isTrusted = false;
    observer->refresh(true);
    EXPECT_EQ(mac.windowCount, 0);
    EXPECT_EQ(identifiers(), Calls{});
}

TEST_F(FinderOverlayCoordinatorTest, TakesLiveGeometryPastThePassForOnePanelOnly) {
    mac.takeCalls();
    observer->onLiveGeometryChange("finder-102", CGRectMake(250, 300, 600, 400), false);
    observer->onLiveGeometryChange("finder-103", CGRectMake(0, 50, 600, 850), true);
    observer->onLiveGeometryChange("finder-104", CGRectMake(0, 0, 600, 400), false);
    EXPECT_EQ(mac.takeCalls(), (Calls{"panel 2: moved to 250 700", "panel 3: moved to 0 50"}));
}

TEST_F(FinderOverlayCoordinatorTest, LeavesADraggedPanelToItsDrag) {
    Calls during;
    mac.steps = {[&]() -> std::optional<platform::NSEvent> {
        mac.takeCalls();
        EXPECT_TRUE(overlay("finder-101").isDragging);
        mac.fake.window(101).frame.origin = {140, 120};
        std::swap(mac.fake.finderWindows[0], mac.fake.finderWindows[1]);
        observer->refresh(false);
        observer->onLiveGeometryChange("finder-101", CGRectMake(150, 290, 800, 500), false);
        during = mac.takeCalls();
        return std::nullopt;
    }};
    overlay("finder-101").panel->sendEvent(brandEvent(platform::NSEventType::leftMouseDown, "finder-101", {50, 22}));
    EXPECT_EQ(during, (Calls{"panel 2: above 102", "panel 2: level 3", "panel 2: front", "panel 1: level 0",
                             "panel 3: above 103"}));
    EXPECT_EQ(overlay("finder-101").parentZIndex, 1);
    EXPECT_FALSE(overlay("finder-101").isDragging);
    mac.fake.window(101).frame.origin = {145, 120};
    EXPECT_EQ(callsOfPass(), Calls{"panel 1: moved to 145 780"});
}

// The window closes under the mouse: the panel lives on inside its own event, and the drag still ends in order.
TEST_F(FinderOverlayCoordinatorTest, SurvivesAWindowThatGoesDuringItsDrag) {
    const std::weak_ptr<FinderOverlayPanel> panel = overlay("finder-101").panel;
    platform::NSEvent drag = brandEvent(platform::NSEventType::leftMouseDragged, "finder-101", {60, 22});
    mac.steps = {[&] {
        mac.fake.finderWindows.erase(mac.fake.finderWindows.begin());
        observer->refresh(false);
        EXPECT_EQ(identifiers(), (Calls{"finder-102", "finder-103"}));
        return drag;
    }};
    {
        const auto held = panel.lock();  // as the platform does while it sends an event
        held->sendEvent(brandEvent(platform::NSEventType::leftMouseDown, "finder-101", {50, 22}));
    }
    EXPECT_TRUE(panel.expired());
    EXPECT_EQ(mac.windowCount, 2);
}

TEST_F(FinderOverlayCoordinatorTest, OpensTheFieldOfTheActiveWindowOnRequest) {
    observer->start();
    mac.fake.advance({});
    mac.takeCalls();
    pressCommandL();
    EXPECT_EQ(editing(), Calls{"finder-101"});
    EXPECT_EQ(mac.takeCalls(), (Calls{"panel 1: front", "panel 1: key", "panel 1: front", "panel 1: key"}));

    mac.fake.finderWindows.clear();
    observer->refresh(false);
    pressCommandL();
    EXPECT_EQ(editing(), Calls{});
}

// Where the mouse is counts, once the main thread comes to it, not where the event was.
TEST_F(FinderOverlayCoordinatorTest, EndsEditingByAClickOutsideTheBar) {
    overlay("finder-101").viewModel->beginEditing();
    overlay("finder-102").viewModel->beginEditing();
    overlay("finder-101").viewModel->inputText.set("typed");
    overlay("finder-102").viewModel->inputText.set("typed too");

    mac.fake.sendMouse(platform::NSEventType::rightMouseDown, {1000, 10});
    mac.fake.mouse = {200, 810};  // on the bar of 101
    EXPECT_EQ(editing(), (Calls{"finder-101", "finder-102"}));
    mac.fake.advance({});
    EXPECT_EQ(editing(), Calls{"finder-101"});
    EXPECT_EQ(overlay("finder-101").viewModel->inputText.get(), "typed");
    EXPECT_EQ(overlay("finder-102").viewModel->inputText.get(), "/b/");

    mac.fake.sendMouse(platform::NSEventType::leftMouseDown, {200, 844});  // the bar's upper edge isn't the bar's
    mac.fake.advance({});
    EXPECT_EQ(editing(), Calls{});
}

TEST_F(FinderOverlayCoordinatorTest, LeavesNothingRegisteredBehind) {
    coordinator.reset();
    EXPECT_EQ(mac.windowCount, 0);
    EXPECT_EQ(mac.fake.monitorCount(), 0u);
    EXPECT_EQ(observer->windows.subscriberCount(), 0u);
    observer->onLiveGeometryChange("finder-101", {}, false);
    observer->refresh(true);
}

}  // namespace
}  // namespace brindle
