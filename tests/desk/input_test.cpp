// Where mouse and keys go, and what they do to order, activation and keyboard.
#include <gtest/gtest.h>

#include "tests/desk/Probe.h"

namespace {

using kit::Desk;
using kit::Probe;
using kit::RecordingPanel;
using platform::CGPoint;
using platform::CGRectMake;
using platform::NSEvent;
using platform::NSEventType;
using Log = std::vector<std::string>;

constexpr platform::NSEventMask everything = ~platform::NSEventMask{0};

// Finder's windows 101 and 102, in front of both the other process's window at 220 140 900 600; a panel above window 101.
class InputTest : public testing::Test {
protected:
    Desk desk;
    Probe& probe = kit::launchProbe(desk);
    std::shared_ptr<RecordingPanel> panel;

    void SetUp() override {
        desk.machine.launchServices.startOtherProcess("org.example.Other");
        desk.twoWindows();
        panel = probe.panel(CGRectMake(100, 700, 800, 44));
        probe.log.clear();
        probe.monitorGlobally(everything);
        desk.machine.settle();
    }

    std::string frontmost() {
        const auto* process = desk.machine.processes.frontmost();
        return process == nullptr ? "nobody" : process->bundleIdentifier.value_or("?");
    }
    Log stacking() {
        Log names;
        for (const auto* shown : desk.machine.windows.onScreen()) {
            const auto* owner = desk.machine.processes.find(shown->owner);
            const bool isFinders = shown->owner == desk.machine.finder.pid();
            names.push_back(isFinders ? std::to_string(shown->number) : owner->name);
        }
        return names;
    }
    void ordinaryWindow(const platform::CGRect& frame) {
        window = std::make_shared<RecordingPanel>(probe.platform, frame, platform::NSWindowStyleMask::titled);
        window->orderFrontRegardless();
    }
    std::shared_ptr<RecordingPanel> window;
};

struct PressCase {
    const char* name;
    CGPoint point;
    desk::MouseButton button;
    const char* frontmost;
    Log stacking;
    std::size_t eventsOfPanel;
    Log copies;
    bool panelKeepsKeyboard;
};

class Press : public InputTest, public testing::WithParamInterface<PressCase> {};

TEST_P(Press, GoesWhereItLands) {
    panel->makeKeyWindow();
    desk.click(GetParam().point, GetParam().button);
    EXPECT_EQ(frontmost(), GetParam().frontmost);
    EXPECT_EQ(stacking(), GetParam().stacking);
    EXPECT_EQ(panel->received.size(), GetParam().eventsOfPanel);
    EXPECT_EQ(probe.log, GetParam().copies);
    EXPECT_EQ(panel->isKeyWindow(), GetParam().panelKeepsKeyboard);
}

constexpr auto left = desk::MouseButton::left;
constexpr auto right = desk::MouseButton::right;
const Log leftCopies{"global 1", "global 2"};
const Log rightCopies{"global 3", "global 4"};
const char* const finder = "com.apple.finder";
const char* const other = "org.example.Other";

const PressCase pressCases[] = {
    {"Panel", {500, 720}, left, finder, {"Orvane", "102", "101", "Other"}, 2, {}, true},
    {"PanelWithTheRightButton", {500, 720}, right, finder, {"Orvane", "102", "101", "Other"}, 2, {}, true},
    {"FinderWindowBehind", {150, 300}, left, finder, {"101", "Orvane", "102", "Other"}, 0, leftCopies, false},
    {"FinderWindowBehindWithTheRightButton",
     {150, 300},
     right,
     finder,
     {"101", "Orvane", "102", "Other"},
     0,
     rightCopies,
     false},
    {"OtherProcess", {1110, 600}, left, other, {"Other", "Orvane", "102", "101"}, 0, leftCopies, false},
    {"Desktop", {1400, 50}, left, finder, {"Orvane", "102", "101", "Other"}, 0, leftCopies, false},
    {"MenuBar", {500, 890}, left, finder, {"Orvane", "102", "101", "Other"}, 0, leftCopies, true},
    {"RightOfThePanelsHalfOpenEdge", {900, 710}, left, other, {"Other", "Orvane", "102", "101"}, 0, leftCopies, false},
};

INSTANTIATE_TEST_SUITE_P(All, Press, testing::ValuesIn(pressCases),
                         [](const auto& instance) { return instance.param.name; });

TEST_F(InputTest, ThePressedWindowKeepsTheMouseUntilTheRelease) {
    desk.drag({500, 720}, {1400, 50}, 2);
    ASSERT_EQ(panel->received.size(), 4U);
    EXPECT_EQ(panel->received[0].locationInWindow, (CGPoint{400, 20}));
    EXPECT_EQ(panel->received[2].type, NSEventType::leftMouseDragged);
    EXPECT_EQ(panel->received[3].locationInWindow, (CGPoint{1300, -650}));
    EXPECT_EQ(probe.log, Log{});
    EXPECT_EQ(probe.platform.events.mouseLocation(), (CGPoint{1400, 50}));
}

TEST_F(InputTest, EachButtonHasAPressOfItsOwn) {
    desk.press({500, 720});
    desk.click({1400, 50}, right);
    desk.dragTo({510, 720});
    desk.press({500, 720}, right);
    desk.release({520, 720});
    desk.dragTo({1400, 50});
    desk.release({1400, 50}, right);
    std::vector<int> types;
    for (const NSEvent& event : panel->received) types.push_back(static_cast<int>(event.type));
    EXPECT_EQ(types, (std::vector{1, 6, 3, 2, 7, 4}));
    EXPECT_EQ(probe.log, rightCopies);
}

TEST_F(InputTest, FinderHasMovedItsWindowWhenTheCopyArrives) {
    std::vector<platform::CGRect> frames;
    probe.tokens.push_back(probe.platform.events.addGlobalMonitorForEventsMatchingMask(
        platform::maskOf(NSEventType::leftMouseDragged),
        [&](const NSEvent&) { frames.push_back(desk.machine.windows.find(102)->frame); }));
    desk.drag({700, 490}, {720, 500}, 2);
    EXPECT_EQ(frames, (std::vector{CGRectMake(410, 105, 700, 400), CGRectMake(420, 110, 700, 400)}));
}

// The panel moves with each event, as a window that is dragged by its own content does.
TEST_F(InputTest, AWindowThatFollowsItsOwnDragDoesntDrift) {
    panel->onEvent = [&](const NSEvent& down) {
        if (down.type != NSEventType::leftMouseDown) return;
        const CGPoint start = panel->convertPointToScreen(down.locationInWindow);
        const CGPoint origin = panel->frame().origin;
        while (const auto event = probe.platform.application.nextEventMatchingMask(
                   68, platform::Date::distantFuture(), platform::NSRunLoopMode::eventTracking, true)) {
            if (event->type == NSEventType::leftMouseUp) break;
            const CGPoint at = panel->convertPointToScreen(event->locationInWindow);
            panel->setFrameOrigin({origin.x + at.x - start.x, origin.y + at.y - start.y});
        }
    };
    desk.drag({500, 720}, {560, 690}, 6, 0.6);
    EXPECT_EQ(panel->frame(), CGRectMake(160, 670, 800, 44));
    EXPECT_EQ(panel->received.size(), 1U);
    // Several moves that have queued up are read against where the panel stands by then.
    desk.press({560, 690});
    desk.then([&] {
        for (const double x : {570.0, 580.0, 590.0}) desk.machine.input.mouseDragged({x, 690});
    });
    desk.release({590, 690});
    EXPECT_EQ(panel->frame().origin, (CGPoint{160, 670}));
    desk.press({560, 690});
}

TEST_F(InputTest, APanelClosedInItsOwnEventIsLetGoAfterIt) {
    std::weak_ptr<RecordingPanel> watch = panel;
    panel->onEvent = [&](const NSEvent&) { panel.reset(); };
    desk.click({500, 720});
    EXPECT_TRUE(watch.expired());
    EXPECT_EQ(desk.machine.keyboard.keyWindow(), 0);
    EXPECT_EQ(desk.machine.applications.all().front()->registrations().windows, 0U);
}

TEST_F(InputTest, KeysGoToTheKeyPanelAndElseToTheFrontmostApplication) {
    probe.tokens.push_back(probe.platform.events.addLocalMonitorForEventsMatchingMask(
        platform::maskOf(NSEventType::keyDown), [&](const NSEvent& event) -> std::optional<NSEvent> {
            probe.log.push_back("local " + event.characters);
            if (event.characters == "x") return std::nullopt;
            return event;
        }));
    desk.key("cmd+l");
    EXPECT_EQ(probe.log, (Log{"global 10", "global 11"}));
    probe.log.clear();
    panel->makeKeyWindow();
    desk.type("ax");
    EXPECT_EQ(probe.log, (Log{"local a", "local x"}));
    ASSERT_EQ(panel->received.size(), 3U);
    EXPECT_EQ(panel->received[0].keyCode, 0);
    desk.machine.activation.activate("org.example.Probe");
    probe.log.clear();
    panel->orderOut();
    desk.type("b");
    EXPECT_EQ(probe.log, Log{"local b"});
    EXPECT_EQ(panel->received.size(), 3U);
}

struct KeyboardCase {
    const char* name;
    void (*act)(Desk& desk, RecordingPanel& panel);
    bool keeps;
};

class Keyboard : public InputTest, public testing::WithParamInterface<KeyboardCase> {};

TEST_P(Keyboard, OfAKeyPanel) {
    panel->makeKeyWindow();
    ASSERT_TRUE(panel->isKeyWindow());
    GetParam().act(desk, *panel);
    desk.machine.settle();
    EXPECT_EQ(panel->isKeyWindow(), GetParam().keeps);
}

const KeyboardCase keyboardCases[] = {
    {"RaisingAFinderWindow", [](Desk& d, RecordingPanel&) { d.machine.finder.raise(101); }, true},
    {"ActivatingWhoIsActive", [](Desk& d, RecordingPanel&) { d.machine.activation.activate(finder); }, true},
    {"ActivatingAnother", [](Desk& d, RecordingPanel&) { d.machine.activation.activate(other); }, false},
    {"ActivatingItsOwn", [](Desk& d, RecordingPanel&) { d.machine.activation.activate("org.example.Probe"); }, true},
    {"OrderingOut", [](Desk&, RecordingPanel& panel) { panel.orderOut(); }, false},
    {"OrderingFront", [](Desk&, RecordingPanel& panel) { panel.orderFrontRegardless(); }, true},
    {"FinderQuits", [](Desk& d, RecordingPanel&) { d.machine.finder.quit(); }, false},
    {"SwitchingSpaces", [](Desk& d, RecordingPanel&) { d.machine.windows.switchToSpace(2); }, true},
};

INSTANTIATE_TEST_SUITE_P(All, Keyboard, testing::ValuesIn(keyboardCases),
                         [](const auto& instance) { return instance.param.name; });

TEST_F(InputTest, AnOrdinaryWindowIsActivatedRaisedAndMadeKeyByAPress) {
    ordinaryWindow(CGRectMake(1200, 300, 200, 200));
    desk.machine.activation.activate("org.example.Other");
    desk.click({1300, 400});
    EXPECT_EQ(frontmost(), "org.example.Probe");
    EXPECT_TRUE(window->isKeyWindow());
    EXPECT_EQ(stacking(), (Log{"Orvane", "Other", "Orvane", "102", "101"}));
    desk.machine.activation.activate(finder);
    EXPECT_FALSE(window->isKeyWindow());
    desk.machine.activation.activate("org.example.Probe");
    EXPECT_TRUE(window->isKeyWindow());
}

TEST_F(InputTest, AWindowThatIgnoresTheMouseLetsItThrough) {
    panel->setIgnoresMouseEvents(true);
    desk.click({150, 720});
    EXPECT_TRUE(panel->received.empty());
    EXPECT_EQ(probe.log, leftCopies);
}

TEST(KeyStrokeTest, CombinationsNameKeysOfTheUsLayout) {
    namespace Flags = platform::NSEventModifierFlags;
    const struct {
        const char* combination;
        int keyCode;  // -1: there is no such key
        std::uint64_t modifiers;
        const char* characters;
    } cases[] = {{"cmd+l", 37, Flags::command, "l"},
                 {"shift+cmd+n", 45, Flags::shift | Flags::command, "N"},
                 {"cmd++", 24, Flags::command, "+"},
                 {"return", 36, 0, "\r"},
                 {"left", 123, 0, "\uF702"},
                 {"f12", 111, 0, "\uF70F"},
                 {"alt+space", 49, Flags::option, " "},
                 {"hyper+l", -1, 0, ""},
                 {"cmd+", -1, 0, ""},
                 {"", -1, 0, ""}};
    for (const auto& each : cases) {
        const auto stroke = desk::keyStroke(each.combination);
        ASSERT_EQ(stroke.has_value(), each.keyCode >= 0) << each.combination;
        if (!stroke) continue;
        EXPECT_EQ(stroke->keyCode, each.keyCode) << each.combination;
        EXPECT_EQ(stroke->modifiers, each.modifiers) << each.combination;
        EXPECT_EQ(stroke->charactersIgnoringModifiers, each.characters) << each.combination;
    }
    EXPECT_EQ(desk::keyStrokeTyping("?").modifiers, Flags::shift);
    EXPECT_EQ(desk::keyStrokeTyping("é").characters, "é");
}

}  // namespace
