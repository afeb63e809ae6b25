#include "overlay/FinderOverlayPanel.h"

#include <gtest/gtest.h>

#include "tests/overlay/OverlayPlatform.h"

namespace brindle {
namespace {

using platform::NSEventType;
using Calls = std::vector<std::string>;

class FinderOverlayPanelTest : public testing::Test {
protected:
    FinderOverlayPanelTest() {
        panel->onInteraction = [this] { mac.note("interaction"); };
        panel->onDragBegan = [this](const platform::CGRect& frame, platform::CGPoint mouse) {
            mac.note("began " + text(frame.origin) + " at " + text(mouse));
            return allowsDrag;
        };
        panel->onDragChanged = [this](platform::CGPoint mouse) { mac.note("changed " + text(mouse)); };
        panel->onDragEnded = [this] { mac.note("ended"); };
        panel->onDragStateChanged = [this](bool dragging) { mac.note(dragging ? "dragging" : "not dragging"); };
        panel->setFrame(platform::CGRectMake(100, 700, 800, 44), true);
        panel->orderFrontRegardless();
        mac.takeCalls();
    }

    static std::string text(const platform::CGPoint& point) {
        return std::to_string(static_cast<int>(point.x)) + " " + std::to_string(static_cast<int>(point.y));
    }
    platform::NSEvent event(NSEventType type, platform::CGPoint location) {
        platform::NSEvent made;
        made.type = type;
        made.locationInWindow = location;
        made.window = panel.get();
        return made;
    }
    Calls callsOf(NSEventType type, platform::CGPoint location) {
        panel->sendEvent(event(type, location));
        return mac.takeCalls();
    }

    kit::OverlayPlatform mac;
    std::shared_ptr<FinderOverlayPanel> panel = std::make_shared<FinderOverlayPanel>(mac.platform);
    bool allowsDrag = true;
};

// A press that is passed on makes the panel key, and one on the brand doesn't.
TEST_F(FinderOverlayPanelTest, TakesALeftPressOnTheBrandForADragAndAnyOtherForAClick) {
    allowsDrag = false;
    struct Case {
        double width;
        double x;
        NSEventType type;
        bool drags;
    };
    for (const Case& each : {
             Case{800, 0, NSEventType::leftMouseDown, true},
             Case{800, 117, NSEventType::leftMouseDown, true},
             Case{800, 117.5, NSEventType::leftMouseDown, false},
             Case{1000, 135, NSEventType::leftMouseDown, true},
             Case{1000, 135.5, NSEventType::leftMouseDown, false},
             Case{1200, 155, NSEventType::leftMouseDown, true},
             Case{1200, 155.5, NSEventType::leftMouseDown, false},
             Case{800, 50, NSEventType::rightMouseDown, false},
         }) {
        panel->setFrame(platform::CGRectMake(100, 700, each.width, 44), true);
        mac.takeCalls();
        const std::string began = "began 100 700 at " + text({100 + each.x, 722});
        EXPECT_EQ(callsOf(each.type, {each.x, 22}),
                  (each.drags ? Calls{"interaction", began} : Calls{"interaction", "panel 1: key"}))
            << each.width << " " << each.x;
    }
}

TEST_F(FinderOverlayPanelTest, FollowsTheMouseFromPressToReleaseWithoutDrift) {
    // The locations are of a panel that has moved along.
    mac.steps = {[this] {
                     return event(NSEventType::leftMouseDragged, {80, 2});
                 },
                 [this] {
                     return event(NSEventType::leftMouseDragged, {50, 22});
                 },
                 [this] {
                     return event(NSEventType::leftMouseUp, {50, 22});
                 },
                 [] { return std::optional<platform::NSEvent>(); }};
    EXPECT_EQ(callsOf(NSEventType::leftMouseDown, {50, 22}),
              (Calls{"interaction", "began 100 700 at 150 722", "dragging", "wait for mask 68",
                     "panel 1: moved to 130 680", "changed 180 702", "wait for mask 68", "panel 1: moved to 130 680",
                     "changed 180 702", "wait for mask 68", "ended", "not dragging"}));
    EXPECT_EQ(mac.steps.size(), 1u);
}

TEST_F(FinderOverlayPanelTest, ReadsTheMouseForAnEventWithoutAWindow) {
    mac.fake.mouse = {160, 730};
    platform::NSEvent press = event(NSEventType::leftMouseDown, {50, 22});
    press.window = nullptr;
    panel->sendEvent(press);
    EXPECT_EQ(mac.takeCalls()[1], "began 100 700 at 160 730");
}

// Finder stays the active application while the user types in the bar.
TEST_F(FinderOverlayPanelTest, TakesTheKeyboardButIsNeverMainNorActivates) {
    EXPECT_TRUE(panel->canBecomeKey());
    EXPECT_FALSE(panel->canBecomeMain());
    EXPECT_EQ(panel->settings().styleMask, 128u);
    EXPECT_EQ(panel->settings().collectionBehavior, 320u);
    EXPECT_FALSE(panel->settings().hidesOnDeactivate);
}

}  // namespace
}  // namespace brindle
