#include <gtest/gtest.h>

#include "tests/tracking/ObservedFinder.h"

namespace brindle {
namespace {

using platform::CGPoint;
using platform::CGRect;
using platform::CGRectMake;
using platform::NSEventType;
using State = FinderObserver::LiveGeometryState;
using Frames = std::vector<CGRect>;

// The front window is at AppKit (100, 200), 800 by 500 points: its top edge is at 700.
struct Dragged : ObservedFinder {
    explicit Dragged(int count = 1) : ObservedFinder(count) {
        fake.focused = fake.window(1).element();
        start();
    }
    State state() const { return observer->liveGeometryState(); }
    void press(CGPoint where = {300, 690}) { fake.sendMouse(NSEventType::leftMouseDown, where); }
    void drag(CGPoint where) { fake.sendMouse(NSEventType::leftMouseDragged, where); }
    void release(CGPoint where) { fake.sendMouse(NSEventType::leftMouseUp, where); }
    void tick() { fake.advance(17ms); }
    void place(CGRect appKit) {
        fake.window(1).frame = CGRectMake(appKit.minX(), 900 - appKit.maxY(), appKit.width(), appKit.height());
    }
    // Pressed at (300, 690) and seen to move to (101, 200).
    void confirm() {
        press();
        place(CGRectMake(101, 200, 800, 500));
        tick();
        liveFrames.clear();
    }
};

TEST(LiveGeometry, StartsInTheUpperStripOfTheActiveWindow) {
    struct {
        const char* what;
        CGPoint press;
        State expected;
    } const rows[] = {{"119 below the top", {300, 581}, State::waiting},
                      {"121 below the top", {300, 579}, State::idle},
                      {"the top edge", {300, 700}, State::idle},
                      {"the left edge", {100, 650}, State::waiting},
                      {"the right edge", {900, 650}, State::idle}};
    for (const auto& row : rows) {
        Dragged d;
        d.press(row.press);
        EXPECT_EQ(d.state(), row.expected) << row.what;
    }
}

TEST(LiveGeometry, AStripIsNoHigherThanItsWindow) {
    Dragged d;
    d.place(CGRectMake(100, 600, 800, 100));
    d.settle();
    d.press({300, 599});
    EXPECT_EQ(d.state(), State::idle);
    d.press({300, 600});
    EXPECT_EQ(d.state(), State::waiting);
}

TEST(LiveGeometry, DoesNotStartWhereItCannotFollow) {
    const std::pair<const char*, std::function<void(Dragged&)>> rows[] = {
        {"Finder behind", [](Dragged& d) { d.fake.frontmost = "com.apple.mail"; }},
        {"full screen",
         [](Dragged& d) { d.fake.window(1).attributes["AXFullScreen"] = platform::AXAttributeValue(true); }},
        {"no focused window", [](Dragged& d) { d.fake.focused.reset(); }},
        {"no windows", [](Dragged& d) { d.fake.finderWindows.clear(); }}};
    for (const auto& [what, change] : rows) {
        Dragged d;
        change(d);
        d.settle();
        d.press();
        EXPECT_EQ(d.state(), State::idle) << what;
        EXPECT_EQ(d.fake.timerCount(), 1U) << what;
    }
}

TEST(LiveGeometry, TicksOncePerFrameOfTheWindowsDisplayButAtLeast60TimesASecond) {
    const std::pair<int, platform::Duration> rows[] = {{120, 8333333ns}, {60, 16666667ns}, {30, 16666667ns}};
    for (const auto& [rate, period] : rows) {
        Dragged d;
        d.fake.displays[0].maximumFramesPerSecond = rate;
        d.press();
        EXPECT_EQ(d.fake.timerPeriods().back(), period) << rate;
    }
}

TEST(LiveGeometry, AClickWithoutMotionIsSilentAndWritesTheFrameOnce) {
    Dragged d;
    const int publications = d.windowPublications;
    d.press();
    d.tick();
    EXPECT_EQ(d.state(), State::waiting);
    d.release({300, 690});
    EXPECT_EQ(d.state(), State::idle);
    EXPECT_TRUE(d.liveFrames.empty());
    EXPECT_EQ(d.windowPublications, publications + 1);
    EXPECT_EQ(d.fake.timerCount(), 1U);
}

TEST(LiveGeometry, WaitsUntilTwoReadingsInARowDiffer) {
    Dragged d;
    d.press();
    d.place(CGRectMake(100.4, 200, 800, 500));
    d.tick();
    d.place(CGRectMake(100.7, 200, 800, 500));
    d.tick();
    d.fake.window(1).attributes["AXPosition"] = std::nullopt;
    d.tick();
    d.fake.window(1).attributes.clear();
    EXPECT_EQ(d.state(), State::waiting);
    EXPECT_TRUE(d.liveFrames.empty());
    d.place(CGRectMake(101.2, 200, 800, 500));
    d.tick();
    EXPECT_EQ(d.state(), State::predicting);
    EXPECT_EQ(d.liveFrames, Frames{CGRectMake(101.2, 200, 800, 500)});
}

TEST(LiveGeometry, AFrameThatWasPublishedWrongConfirmsAtThePress) {
    Dragged d;
    d.place(CGRectMake(100.5, 200, 800, 500));
    d.press();
    EXPECT_EQ(d.state(), State::predicting);
    EXPECT_EQ(d.liveFrames, Frames{CGRectMake(100.5, 200, 800, 500)});
}

TEST(LiveGeometry, PredictsFromTheMouseAndPublishesHalfPoints) {
    Dragged d;
    d.confirm();
    const int publications = d.windowPublications;
    d.drag({310, 685});
    d.drag({310.25, 685});
    d.drag({310.5, 685});
    EXPECT_EQ(d.liveFrames, (Frames{CGRectMake(111, 195, 800, 500), CGRectMake(111.5, 195, 800, 500)}));
    EXPECT_EQ(d.windowPublications, publications);
    d.place(CGRectMake(109, 196, 800, 500));
    d.release({311.5, 685});
    EXPECT_EQ(d.liveFrames.back(), CGRectMake(112.5, 195, 800, 500));
    EXPECT_EQ(d.observer->windows->front().frame, CGRectMake(109, 196, 800, 500));
    EXPECT_EQ(d.windowPublications, publications + 1);
    EXPECT_EQ(d.state(), State::idle);
}

TEST(LiveGeometry, FindersFrameWinsInAResizeAndFarOff) {
    struct {
        const char* what;
        CGRect observed;
        bool wins;
    } const rows[] = {{"240 off", CGRectMake(341, 200, 800, 500), false},
                      {"240.5 off", CGRectMake(341.5, 200, 800, 500), true},
                      {"240.5 off in both", CGRectMake(201, 340.5, 800, 500), true},
                      {"0.5 wider", CGRectMake(141, 220, 800.5, 500), true},
                      {"0.25 higher", CGRectMake(141, 220, 800, 500.25), false}};
    for (const auto& row : rows) {
        Dragged d;
        d.confirm();
        d.place(row.observed);
        d.drag({300, 690});
        EXPECT_TRUE(d.liveFrames.empty()) << row.what;
        d.tick();
        EXPECT_EQ(d.liveFrames, row.wins ? Frames{row.observed} : Frames{}) << row.what;
        // The mouse goes on from where it was.
        d.drag({301, 690});
        EXPECT_EQ(d.liveFrames.back().minX(), row.wins ? row.observed.minX() + 1 : 102) << row.what;
    }
}

TEST(LiveGeometry, GoesOnFromTheMouseWhileFinderIsSilent) {
    Dragged d;
    d.confirm();
    d.fake.window(1).attributes["AXSize"] = std::nullopt;
    d.fake.mouse = {320, 690};
    d.tick();
    EXPECT_EQ(d.liveFrames, Frames{CGRectMake(121, 200, 800, 500)});
    const auto before = *d.observer->windows;
    d.release({320, 690});
    EXPECT_EQ(*d.observer->windows, before);
    EXPECT_EQ(d.state(), State::idle);
}

TEST(LiveGeometry, EndsWhenFinderOrTheWindowGoesOutOfFront) {
    const std::pair<const char*, std::function<void(Dragged&)>> rows[] = {
        {"another application", [](Dragged& d) { d.fake.frontmost = "com.apple.mail"; }},
        {"another window", [](Dragged& d) { std::swap(d.fake.finderWindows[0], d.fake.finderWindows[1]); }},
        {"closed", [](Dragged& d) { d.fake.finderWindows.erase(d.fake.finderWindows.begin()); }}};
    for (const auto& [what, change] : rows) {
        Dragged d(2);
        d.confirm();
        change(d);
        d.observer->refresh(true);
        EXPECT_EQ(d.state(), State::predicting) << what;
        d.drag({400, 600});
        EXPECT_EQ(d.state(), State::idle) << what;
        EXPECT_TRUE(d.liveFrames.empty()) << what;
        EXPECT_EQ(d.fake.timerCount(), 1U) << what;
    }
}

TEST(LiveGeometry, HoldsPollsBackAndTakesMovesItself) {
    Dragged d;
    d.confirm();
    const auto passes = d.passes();
    d.fake.advance(5s);
    EXPECT_EQ(d.passes(), passes);
    d.fake.mouse = {310, 690};
    d.fake.notify(1, "AXMoved");
    EXPECT_EQ(d.liveFrames, Frames{CGRectMake(111, 200, 800, 500)});
    EXPECT_EQ(d.passes(), passes);
    d.fake.notify(1, "AXTitleChanged");
    EXPECT_EQ(d.passes(), passes + 1);
    EXPECT_EQ(d.state(), State::predicting);
}

TEST(LiveGeometry, ASecondPressEndsTheFirstRunAndBeginsAnew) {
    Dragged d;
    d.confirm();
    d.settle();
    const int publications = d.windowPublications;
    d.press({310, 690});
    EXPECT_EQ(d.state(), State::waiting);
    EXPECT_EQ(d.windowPublications, publications + 1);
    EXPECT_EQ(d.fake.timerCount(), 2U);
    d.press({310, 300});
    EXPECT_EQ(d.state(), State::idle);
    EXPECT_EQ(d.fake.timerCount(), 1U);
}

}  // namespace
}  // namespace brindle
