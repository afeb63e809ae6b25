#include "overlay/FinderWindowInteractionService.h"

#include <gtest/gtest.h>

#include "tests/overlay/OverlayPlatform.h"

namespace brindle {
namespace {

using Calls = std::vector<std::string>;

// The screen is 900 points high: the window at top-left (100, 200), 800 by 500, has its AppKit origin at (100, 200) as
// well.
class FinderWindowInteractionServiceTest : public testing::Test {
protected:
    FinderWindowInteractionServiceTest() {
        mac.addFinderWindow(101, "/a/", platform::CGRectMake(100, 200, 800, 500));
        state.id = "finder-101";
        state.frame = platform::CGRectMake(100, 200, 800, 500);
    }

    // The number of the window that a press raises; empty when it finds none.
    std::string raised() {
        mac.takeCalls();
        service.raise(state);
        const Calls calls = mac.takeCalls();
        return calls.empty() ? "" : calls[0];
    }
    static Calls focusAndRaise(const std::string& number) {
        return {"0 AXFocusedWindow " + number, number + " AXMain true", number + " AXFocused true",
                number + " AXRaise"};
    }

    kit::OverlayPlatform mac;
    FinderWindowState state;
    FinderWindowInteractionService service{mac.platform};
    const platform::CGRect panelFrame = platform::CGRectMake(100, 700, 800, 44);
};

TEST_F(FinderWindowInteractionServiceTest, RaisesBeforeAndAfterActivatingFinderAndOnceMoreATurnLater) {
    service.raise(state);
    Calls expected = focusAndRaise("101");
    expected.push_back("activate 501 with 2");
    for (const auto& call : focusAndRaise("101")) expected.push_back(call);
    EXPECT_EQ(mac.takeCalls(), expected);
    mac.fake.advance({});
    EXPECT_EQ(mac.takeCalls(), focusAndRaise("101"));
}

TEST_F(FinderWindowInteractionServiceTest, TakesAWindowUnderFortyPointsAwayForItsOwn) {
    struct Case {
        platform::CGRect frame;
        bool found;
    };
    for (const Case& each : {Case{{{100, 200}, {800, 500}}, true}, Case{{{110, 190}, {790, 509.9}}, true},
                             Case{{{139.5, 200}, {800, 500}}, true}, Case{{{140, 200}, {800, 500}}, false},
                             Case{{{110, 190}, {810, 490}}, false}}) {
        mac.fake.window(101).frame = each.frame;
        EXPECT_EQ(raised(), each.found ? "0 AXFocusedWindow 101" : "");
    }
}

TEST_F(FinderWindowInteractionServiceTest, TakesTheNearestWindowAndOfEquallyNearOnesTheFirst) {
    mac.addFinderWindow(102, "/a/", platform::CGRectMake(100, 200, 800, 500));
    EXPECT_EQ(raised(), "0 AXFocusedWindow 101");
    mac.fake.window(101).frame.origin.x = 101;
    EXPECT_EQ(raised(), "0 AXFocusedWindow 102");
}

TEST_F(FinderWindowInteractionServiceTest, PassesOverWhatIsNoWindowOnScreenOrCannotBeRead) {
    using Attributes = std::map<std::string, std::optional<platform::AXAttributeValue>, std::less<>>;
    for (const Attributes& each : {
             Attributes{{"AXMinimized", true}},
             Attributes{{"AXMinimized", 1.0}},
             Attributes{{"AXRole", "AXSheet"}},
             Attributes{{"AXRole", std::nullopt}},
             Attributes{{"AXRole", true}},
             Attributes{{"AXPosition", std::nullopt}},
             Attributes{{"AXSize", platform::AXValue(platform::CGPoint{800, 500})}},
         }) {
        mac.fake.window(101).attributes = each;
        EXPECT_EQ(raised(), "") << each.begin()->first;
    }
    for (const Attributes& each : {Attributes{{"AXMinimized", "yes"}}, Attributes{{"AXSubrole", "AXDialog"}}}) {
        mac.fake.window(101).attributes = each;
        EXPECT_EQ(raised(), "0 AXFocusedWindow 101") << each.begin()->first;
    }
}

TEST_F(FinderWindowInteractionServiceTest, DoesNothingWithoutFinderOrScreens) {
    mac.others = {{"com.apple.finder.helper", 77, &mac}};
    EXPECT_EQ(raised(), "");
    mac.others = {{"com.apple.finder", kit::finderPid, &mac}};
    mac.fake.displays.clear();
    EXPECT_EQ(raised(), "");
    EXPECT_FALSE(service.beginDrag(state, panelFrame, {0, 0}));
}

TEST_F(FinderWindowInteractionServiceTest, MeasuresFromThePrimaryScreenWhereverTheWindowIs) {
    mac.fake.displays = {{{{-1920, 300}, {1920, 1080}}, {}, 60}, {{{0, 0}, {1440, 900}}, {}, 60}};
    mac.fake.window(101).frame = platform::CGRectMake(-1500, -400, 800, 500);
    state.frame = platform::CGRectMake(-1500, 800, 800, 500);
    EXPECT_EQ(raised(), "0 AXFocusedWindow 101");
}

TEST_F(FinderWindowInteractionServiceTest, MovesTheWindowWithTheMouseAndRaisesItAtTheEnd) {
    ASSERT_TRUE(service.beginDrag(state, panelFrame, {150, 720}));
    EXPECT_EQ(mac.takeCalls(), Calls{});
    // The search and all reads are over: an unreadable list changes nothing any more.
    mac.fake.finderWindows.clear();
    service.updateDrag({180, 740});
    service.updateDrag({140, 700});
    EXPECT_EQ(mac.takeCalls(), (Calls{"101 AXPosition 130 180", "101 AXPosition 90 220"}));

    service.endDrag();
    EXPECT_EQ(mac.takeCalls().size(), 9u);
    service.updateDrag({0, 0});
    service.endDrag();
    EXPECT_EQ(mac.takeCalls(), Calls{});
}

TEST_F(FinderWindowInteractionServiceTest, FindsADraggedWindowByItsPanelEvenIfTheStateIsOld) {
    mac.fake.window(101).frame.origin = {400, 300};
    EXPECT_FALSE(service.beginDrag(state, panelFrame, {150, 720}));
    EXPECT_TRUE(service.beginDrag(state, platform::CGRectMake(400, 600, 800, 44), {450, 620}));
    // The size is the state's all the same.
    state.frame.size.width = 760;
    EXPECT_FALSE(service.beginDrag(state, platform::CGRectMake(400, 600, 800, 44), {450, 620}));
}

TEST_F(FinderWindowInteractionServiceTest, OnlyRaisesAFullScreenWindowAndForgetsAnEarlierDrag) {
    ASSERT_TRUE(service.beginDrag(state, panelFrame, {150, 720}));
    state.isFullScreen = true;
    EXPECT_FALSE(service.beginDrag(state, panelFrame, {150, 720}));
    EXPECT_EQ(mac.takeCalls().size(), 9u);
    service.updateDrag({300, 300});
    EXPECT_EQ(mac.takeCalls(), Calls{});
}

}  // namespace
}  // namespace brindle
