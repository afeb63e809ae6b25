// Menus and popovers: where they stand, what presses and keys do to them, and who hears of it.
#include <gtest/gtest.h>

#include "desk/menus/Placement.h"
#include "tests/desk/Probe.h"

namespace {

using kit::Desk;
using kit::Probe;
using kit::RecordingPanel;
using platform::CGPoint;
using platform::CGRect;
using platform::CGRectMake;
using platform::MenuItem;
using platform::NSEventType;
using platform::RectEdge;
using Log = std::vector<std::string>;

constexpr CGRect room{{0, 0}, {1440, 876}};

TEST(MenuPlacement, StandsBelowItsButtonAndKeepsToTheRoom) {
    struct Case {
        CGRect anchor;
        double height;
        CGRect frame;
    };
    const Case cases[] = {
        {CGRectMake(200, 500, 22, 32), 98, CGRectMake(200, 400, 120, 98)},
        {CGRectMake(1400, 500, 22, 32), 98, CGRectMake(1320, 400, 120, 98)},
        {CGRectMake(200, 50, 22, 32), 98, CGRectMake(200, 84, 120, 98)},    // above, where there is room
        {CGRectMake(200, 500, 22, 32), 2000, CGRectMake(200, 0, 120, 498)}  // cut to the larger side
    };
    for (const Case& each : cases) EXPECT_EQ(desk::placeMenuBelow(each.anchor, {120, each.height}, room), each.frame);
}

TEST(MenuPlacement, AContextMenuHasItsCornerAtThePointOrAsNearAsTheRoomAllows) {
    EXPECT_EQ(desk::placeMenuAt({300, 400}, {120, 98}, room), CGRectMake(300, 302, 120, 98));
    EXPECT_EQ(desk::placeMenuAt({1400, 400}, {120, 98}, room), CGRectMake(1280, 302, 120, 98));
    EXPECT_EQ(desk::placeMenuAt({300, 50}, {120, 98}, room), CGRectMake(300, 0, 120, 98));
    EXPECT_EQ(desk::placeMenuAt({300, 400}, {120, 2000}, room), CGRectMake(300, 0, 120, 876));
}

TEST(PopoverPlacement, PointsAtItsAnchorFromTheSideWithRoom) {
    struct Case {
        CGRect anchor;
        CGRect body;
        CGPoint tip;
    };
    const Case cases[] = {
        {CGRectMake(1000, 500, 30, 28), CGRectMake(955, 453, 120, 36), {1015, 500}},
        {CGRectMake(1400, 500, 30, 28), CGRectMake(1316, 453, 120, 36), {1413, 500}},  // shifted, the tip less so
        {CGRectMake(1000, 20, 30, 28), CGRectMake(955, 59, 120, 36), {1015, 48}}};     // above
    for (const Case& each : cases) {
        const auto place = desk::placePopover(each.anchor, RectEdge::minY, {120, 36}, room);
        EXPECT_EQ(place.body, each.body);
        EXPECT_EQ(place.tip, each.tip);
    }
}

class ContentProbe final : public platform::ContentView {
public:
    void didMoveToWindow(platform::NSWindow*) override {}
    void setSize(platform::CGSize) override {}
    void setOnScreen(bool) override {}
    bool acceptsFirstMouse(const platform::NSEvent&) override { return false; }
    void handleEvent(const platform::NSEvent& event) override { received.push_back(event.locationInWindow); }
    const platform::Drawing& drawing() override { return nothing; }
    std::uint64_t drawingVersion() const override { return 0; }

    std::vector<CGPoint> received;
    platform::Drawing nothing;
};

// A panel in whose left part a press opens a menu, as a program does it: in the press.
class MenuTest : public testing::Test {
protected:
    static constexpr CGPoint button{110, 710};
    static constexpr CGPoint elsewhere{500, 710};

    Desk desk;
    Probe& probe = kit::launchProbe(desk);
    Probe& other = kit::launchProbe(desk, "org.example.Other");
    std::shared_ptr<RecordingPanel> panel;
    std::unique_ptr<platform::MenuHandle> menu;
    std::unique_ptr<platform::PopoverHandle> popover;
    std::vector<MenuItem> items;

    void SetUp() override {
        panel = probe.panel(CGRectMake(100, 700, 800, 44));
        probe.log.clear();
        other.log.clear();
        items = {entry("One"), entry("Off", false), separator(), entry("Two"), entry("Three")};
        panel->onEvent = [this](const platform::NSEvent& event) {
            if (event.type == NSEventType::leftMouseDown && event.locationInWindow.x < 30)
                menu = probe.platform.menus.popUpBelow(CGRectMake(100, 706, 30, 32), items);
        };
    }

    MenuItem entry(const std::string& title, bool enabled = true) {
        return {title, "", enabled, false,
                [this, title] { probe.log.push_back(title + (menu->isOpen() ? " in the open menu" : "")); }};
    }
    static MenuItem separator() { return {"", "", true, true, nullptr}; }
    const desk::OpenMenu* open() const { return desk.machine.menus.menu(); }
    CGPoint row(std::size_t index) const {
        const CGRect frame = open()->frameOf(index);
        return {frame.midX(), frame.midY()};
    }
    std::string highlighted() const {
        const auto row = open()->highlighted();
        return row ? open()->items()[*row].title : "none";
    }
    void openMenu() {
        desk.click(button);
        ASSERT_NE(open(), nullptr);
        panel->received.clear();
    }
};

TEST_F(MenuTest, ClickThenClickChooses) {
    desk.press(button);
    EXPECT_EQ(open()->frame(), CGRectMake(100, 595, 80, 109));
    desk.release(button);
    ASSERT_NE(open(), nullptr) << "the click that opened it is over";
    desk.moveTo(row(3));
    EXPECT_EQ(highlighted(), "Two");
    desk.moveTo(row(1));
    EXPECT_EQ(highlighted(), "none");
    desk.click(row(1));
    ASSERT_NE(open(), nullptr) << "nothing to choose there";
    desk.click(row(3));
    EXPECT_EQ(open(), nullptr);
    EXPECT_EQ(probe.log, Log{"Two"});
}

TEST_F(MenuTest, PressDragReleaseChoosesOrCloses) {
    desk.press(button);
    const CGPoint three = row(4);
    desk.dragTo(row(0));
    desk.dragTo(three);
    EXPECT_EQ(highlighted(), "Three");
    desk.release(three);
    EXPECT_EQ(probe.log, Log{"Three"});
    desk.press(button);
    desk.dragTo({700, 300});
    desk.release({700, 300});
    EXPECT_EQ(open(), nullptr);
    EXPECT_EQ(probe.log, Log{"Three"});
}

TEST_F(MenuTest, ThePressThatClosesItGoesNoFurther) {
    openMenu();
    probe.monitorGlobally(~platform::NSEventMask{0});
    other.monitorGlobally(platform::maskOf(NSEventType::leftMouseDown));
    desk.click(elsewhere);
    EXPECT_EQ(open(), nullptr);
    EXPECT_FALSE(menu->isOpen());
    EXPECT_TRUE(panel->received.empty());
    EXPECT_TRUE(probe.log.empty()) << "it was this process's own";
    EXPECT_EQ(other.log, Log{"global 1"});
    desk.click(elsewhere);
    EXPECT_EQ(panel->received.size(), 2U);
}

TEST_F(MenuTest, KeysWalkAroundTheEndsAndGoNoFurther) {
    openMenu();
    const char* const steps[][2] = {{"down", "One"}, {"down", "Two"},  {"down", "Three"},
                                    {"down", "One"}, {"up", "Three"},  {"up", "Two"},
                                    {"up", "One"},   {"end", "Three"}, {"home", "One"}};
    for (const auto& [key, expected] : steps) {
        desk.key(key);
        EXPECT_EQ(highlighted(), expected) << key;
    }
    desk.key("x");
    desk.key("return");
    EXPECT_EQ(probe.log, Log{"One"});
    EXPECT_TRUE(panel->received.empty());
    openMenu();
    desk.key("escape");
    EXPECT_EQ(open(), nullptr);
    EXPECT_TRUE(panel->received.empty()) << "not even the key going up";
    desk.key("x");
    EXPECT_EQ(panel->received.size(), 2U);
}

TEST_F(MenuTest, AMenuLongerThanTheScreenScrolls) {
    items.clear();
    for (int number = 0; number < 100; ++number) items.push_back(entry(std::to_string(number)));
    openMenu();
    EXPECT_EQ(open()->frame(), CGRectMake(100, 0, 80, 704));
    const CGPoint bottom{120, 5};
    desk.click(bottom);
    ASSERT_NE(open(), nullptr) << "the arrow is no entry";
    desk.run(3);
    const double after = open()->scrolledBy();
    EXPECT_GT(after, 500);
    desk.moveTo({120, 300});
    desk.run(3);
    EXPECT_EQ(open()->scrolledBy(), after) << "only while the mouse is on the arrow";
    desk.play([&] { desk.machine.input.scrollWheel({120, 300}, 0, 1e9); });
    EXPECT_EQ(open()->scrolledBy(), 0);
    desk.key("end");
    EXPECT_EQ(highlighted(), "99");
    EXPECT_EQ(open()->scrolledBy(), 2210 - 704);
    desk.key("down");
    EXPECT_EQ(highlighted(), "0");
    EXPECT_EQ(open()->scrolledBy(), 0);
    desk.machine.menus.reveal(50);
    desk.click(row(50));
    EXPECT_EQ(probe.log, Log{"50"});
}

TEST_F(MenuTest, TakesOtherEntriesWhileItIsOpen) {
    openMenu();
    desk.key("end");
    menu->update({entry("One"), entry("Wider than what stood here before")});
    EXPECT_EQ(highlighted(), "none") << "that row is gone";
    EXPECT_EQ(open()->frame().origin, (CGPoint{100, 650}));
    EXPECT_GT(open()->frame().width(), 200);
    desk.key("down");
    menu->update({entry("Uno"), entry("Dos")});
    EXPECT_EQ(highlighted(), "Uno");
    desk.key("return");
    EXPECT_EQ(probe.log, Log{"Uno"});
    menu->update({entry("Late")});
    EXPECT_EQ(open(), nullptr);
    openMenu();
    menu->update({});
    EXPECT_EQ(open(), nullptr);
}

TEST_F(MenuTest, ClosesWithItsHandleItsApplicationAndTheSpace) {
    openMenu();
    menu.reset();
    EXPECT_EQ(open(), nullptr);
    openMenu();
    desk.machine.windows.switchToSpace(2);
    EXPECT_EQ(open(), nullptr);
    desk.machine.windows.switchToSpace(1);
    openMenu();
    const auto first = std::move(menu);
    menu = probe.platform.menus.popUpAt({300, 300}, items);
    EXPECT_FALSE(first->isOpen());
    EXPECT_TRUE(menu->isOpen());
    menu = probe.platform.menus.popUpAt({300, 300}, {});
    EXPECT_EQ(open(), nullptr) << "nothing to show";
}

class PopoverTest : public MenuTest {
protected:
    static constexpr CGPoint anchor{865, 720};

    ContentProbe* content = nullptr;

    void SetUp() override {
        MenuTest::SetUp();
        show();
    }
    void show() {
        auto made = std::make_unique<ContentProbe>();
        content = made.get();
        popover =
            probe.platform.menus.showPopover(*panel, CGRectMake(850, 706, 30, 28), RectEdge::minY, std::move(made),
                                             {120, 36}, [this] { probe.log.emplace_back("dismissed"); });
    }
    std::vector<CGRect> bodies() const {
        std::vector<CGRect> all;
        for (const auto& shown : desk.machine.menus.popovers()) all.push_back(shown.place.body);
        return all;
    }
};

TEST_F(PopoverTest, FollowsItsPanelAndGoesWithIt) {
    EXPECT_EQ(bodies(), std::vector{CGRectMake(805, 659, 120, 36)});
    panel->setFrameOrigin({200, 400});
    EXPECT_EQ(bodies(), std::vector{CGRectMake(905, 359, 120, 36)});
    popover->update(CGRectMake(300, 406, 30, 28), {60, 36});
    EXPECT_EQ(bodies(), std::vector{CGRectMake(285, 359, 60, 36)});
    desk.machine.windows.switchToSpace(2);
    EXPECT_TRUE(bodies().empty());
    desk.machine.windows.switchToSpace(1);
    EXPECT_EQ(bodies().size(), 1U);
    panel->orderOut();
    EXPECT_TRUE(bodies().empty());
    EXPECT_TRUE(probe.log.empty());
}

TEST_F(PopoverTest, APressElsewhereClosesItAndGoesOn) {
    desk.click(anchor);
    EXPECT_EQ(bodies().size(), 1U) << "the anchor's press is the anchor's";
    EXPECT_EQ(panel->received.size(), 2U);
    desk.click({865, 670});
    EXPECT_EQ(bodies().size(), 1U);
    EXPECT_EQ(content->received, (std::vector<CGPoint>{{60, 11}, {60, 11}}));
    EXPECT_EQ(panel->received.size(), 2U) << "the popover stands above";
    desk.click(elsewhere);
    EXPECT_TRUE(bodies().empty());
    EXPECT_EQ(panel->received.size(), 4U);
    desk.click(elsewhere);
    EXPECT_EQ(probe.log, Log{"dismissed"}) << "once";
}

TEST_F(PopoverTest, APressOfTheOtherButtonLeavesTheHeldOneAlone) {
    desk.press({865, 670});
    desk.click({865, 671}, desk::MouseButton::right);
    desk.dragTo(elsewhere);
    desk.release(elsewhere);
    EXPECT_EQ(content->received, (std::vector<CGPoint>{{60, 11}, {60, 12}, {60, 12}, {-305, 51}, {-305, 51}}));
}

TEST_F(PopoverTest, EscapeClosesItUnlessAFieldHasTheKeyboard) {
    platform::NSResponder field;
    panel->makeKeyWindow();
    panel->makeFirstResponder(&field);
    desk.key("escape");
    EXPECT_EQ(bodies().size(), 1U);
    EXPECT_EQ(panel->received.size(), 2U);
    panel->makeFirstResponder(nullptr);
    desk.key("escape");
    EXPECT_TRUE(bodies().empty());
    EXPECT_EQ(panel->received.size(), 2U);
    EXPECT_EQ(probe.log, Log{"dismissed"});
}

TEST_F(PopoverTest, LettingTheHandleGoClosesItWithoutAWord) {
    popover.reset();
    EXPECT_TRUE(bodies().empty());
    desk.click(elsewhere);
    EXPECT_TRUE(probe.log.empty());
    // Also between the press and the turn in which its application would hear of it.
    show();
    panel->onEvent = nullptr;
    desk.machine.input.mouseDown(elsewhere, desk::MouseButton::left);
    popover.reset();
    desk.machine.settle();
    EXPECT_TRUE(probe.log.empty());
}

TEST_F(PopoverTest, NothingOfAnEndedApplicationStays) {
    menu = probe.platform.menus.popUpAt({300, 300}, items);
    desk.machine.applications.all().front()->terminate();
    EXPECT_EQ(open(), nullptr);
    EXPECT_TRUE(bodies().empty());
    menu.reset();
    popover.reset();
    panel.reset();
}

}  // namespace
