#include <gtest/gtest.h>

#include "tests/kit/FakePlatform.h"
#include "tracking/FinderWindowTracker.h"

namespace brindle {
namespace {

using platform::AXAttributeValue;
using platform::AXValue;
using platform::CGPoint;
using platform::CGRect;
using platform::CGRectMake;
using platform::CGSize;
using platform::NSScreen;

// One display of 1440 by 900 points with a menu bar of 25: the highest allowed top edge of a window is at 831.
struct Desktop {
    kit::FakePlatform fake;
    FinderWindowTracker tracker{fake.platform};

    kit::FakeWindow& add(std::int64_t number, CGRect frame = CGRectMake(100, 200, 800, 500),
                         std::string title = "Reports") {
        kit::FakeWindow window;
        window.number = number;
        window.frame = frame;
        window.title = std::move(title);
        fake.finderWindows.push_back(std::move(window));
        return fake.finderWindows.back();
    }
    std::vector<std::int64_t> trackedNumbers() {
        std::vector<std::int64_t> numbers;
        for (const auto& window : tracker.snapshot()) numbers.push_back(window.windowNumber);
        return numbers;
    }
};

using Numbers = std::vector<std::int64_t>;

TEST(FinderWindowTracker, ReportsBothListsJoinedFrontToBack) {
    Desktop d;
    d.add(4217);
    d.add(9, CGRectMake(0, 100, 300, 200), "").attributes["AXTitle"] = AXAttributeValue(std::string("Archive"));
    const std::vector<TrackedFinderWindow> expected{
        {"finder-4217", 4217, 0, CGRectMake(100, 200, 800, 500), "Reports", true, false},
        {"finder-9", 9, 1, CGRectMake(0, 600, 300, 200), "Archive", false, false}};
    EXPECT_EQ(d.tracker.snapshot(), expected);
}

TEST(FinderWindowTracker, MatchesByDistanceAndTitleUpToTheirLimits) {
    struct {
        const char* what;
        const char* axTitle;
        CGRect axFrame;
        bool matches;
    } const rows[] = {
        {"same title, 999.5 apart", "Reports", CGRectMake(600, 699.5, 800, 500), true},
        {"same title, 1000 apart", "Reports", CGRectMake(600, 700, 800, 500), false},
        {"same title, apart in all four", "Reports", CGRectMake(-149, -50, 550, 750), true},
        {"other title, 19.9 apart", "Other", CGRectMake(119.9, 200, 800, 500), true},
        {"other title, 20 apart", "Other", CGRectMake(120, 200, 800, 500), false},
        {"no title, 20 apart", "", CGRectMake(100, 200, 810, 510), false},
    };
    for (const auto& row : rows) {
        Desktop d;
        auto& window = d.add(1);
        window.attributes["AXTitle"] = AXAttributeValue(std::string(row.axTitle));
        window.attributes["AXPosition"] = AXAttributeValue(AXValue(row.axFrame.origin));
        window.attributes["AXSize"] = AXAttributeValue(AXValue(row.axFrame.size));
        EXPECT_EQ(d.trackedNumbers(), row.matches ? Numbers{1} : Numbers{}) << row.what;
    }
}

TEST(FinderWindowTracker, IdenticalWindowsTakeAccessibilityWindowsInTheirOrder) {
    Desktop d;
    d.add(1).attributes["AXFullScreen"] = AXAttributeValue(false);
    d.add(2).attributes["AXFullScreen"] = AXAttributeValue(true);
    EXPECT_FALSE(d.tracker.snapshot()[0].isFullScreen);
    d.fake.accessibilityOrder = {2, 1};
    const auto swapped = d.tracker.snapshot();
    ASSERT_EQ(swapped.size(), 2U);
    EXPECT_TRUE(swapped[0].isFullScreen);
    EXPECT_FALSE(swapped[1].isFullScreen);
}

TEST(FinderWindowTracker, TheFrontWindowTakesTheNearestAndNobodyElseGetsIt) {
    Desktop d;
    d.add(1, CGRectMake(100, 200, 800, 500));
    d.add(2, CGRectMake(100, 210, 800, 500));
    d.fake.accessibilityOrder = {2};
    EXPECT_EQ(d.trackedNumbers(), Numbers{1});
}

TEST(FinderWindowTracker, KeepsAKnownWindowThatLosesItsMatchUntilItLeavesTheScreen) {
    Desktop d;
    d.add(1);
    d.fake.accessibilityOrder = {99};
    EXPECT_EQ(d.trackedNumbers(), Numbers{});
    d.fake.accessibilityOrder = {1};
    EXPECT_EQ(d.trackedNumbers(), Numbers{1});
    d.fake.accessibilityOrder = {99};
    EXPECT_EQ(d.trackedNumbers(), Numbers{1});
    d.fake.window(1).isOnScreen = false;
    EXPECT_EQ(d.trackedNumbers(), Numbers{});
    d.fake.window(1).isOnScreen = true;
    EXPECT_EQ(d.trackedNumbers(), Numbers{});
    d.fake.accessibilityOrder = {1};
    EXPECT_EQ(d.trackedNumbers(), Numbers{1});
    d.fake.accessibilityOrder = {99};
    d.tracker.forgetKnownWindows();
    EXPECT_EQ(d.trackedNumbers(), Numbers{});
}

TEST(FinderWindowTracker, DropsWhatIsNoStandardWindow) {
    struct {
        const char* attribute;
        std::optional<AXAttributeValue> value;
        bool tracked;
    } const rows[] = {
        {"AXRole", AXAttributeValue(std::string("AXScrollArea")), false},
        {"AXRole", std::nullopt, false},
        {"AXSubrole", AXAttributeValue(std::string("AXDialog")), false},
        {"AXSubrole", std::nullopt, true},
        {"AXMinimized", AXAttributeValue(1.0), false},
        {"AXMinimized", AXAttributeValue(std::string("yes")), true},
        {"AXPosition", AXAttributeValue(AXValue(CGSize{100, 200})), false},
        {"AXPosition", AXAttributeValue(std::string("here")), false},
        {"AXSize", std::nullopt, false},
        {"AXTitle", std::nullopt, true},
    };
    for (const auto& row : rows) {
        Desktop d;
        d.add(1).attributes[row.attribute] = row.value;
        EXPECT_EQ(d.trackedNumbers().size(), row.tracked ? 1U : 0U) << row.attribute << " " << (&row - rows);
    }
}

TEST(FinderWindowTracker, FiltersTheWindowServersList) {
    Desktop d;
    const auto good = kit::FakePlatform::serverEntry(d.add(1));
    const auto with = [&](const char* key, platform::Value value) {
        auto entry = good;
        entry[key] = std::move(value);
        return platform::Value(entry);
    };
    const auto without = [&](const char* key) {
        auto entry = good;
        entry.erase(key);
        return platform::Value(entry);
    };
    d.fake.windowList = platform::Array{with(platform::kCGWindowOwnerPID, 502),
                                        with(platform::kCGWindowLayer, 3),
                                        without(platform::kCGWindowLayer),
                                        with(platform::kCGWindowNumber, "1"),
                                        with(platform::kCGWindowBounds, platform::Dictionary{{"X", 1}}),
                                        good};
    const auto tracked = d.tracker.snapshot();
    ASSERT_EQ(tracked.size(), 1U);
    EXPECT_EQ(tracked[0].zIndex, 0);
    d.fake.windowList = platform::Array{good, 3};
    EXPECT_TRUE(d.tracker.snapshot().empty());
    d.fake.windowList = platform::Value();
    EXPECT_TRUE(d.tracker.snapshot().empty());
    d.fake.windowList.reset();
    d.fake.running = {"com.apple.dock", std::nullopt};
    EXPECT_TRUE(d.tracker.snapshot().empty());
}

TEST(FinderWindowTracker, LowersTheFrontWindowUntilItsBarFits) {
    struct {
        const char* what;
        CGRect frame;  // top-left space
        CGRect expected;
        std::vector<std::string> writes;
    } const rows[] = {
        {"overflow of 0.5", CGRectMake(100, 68.5, 800, 500), CGRectMake(100, 331.5, 800, 500), {}},
        {"overflow of 0.75", CGRectMake(100, 68.25, 800, 500), CGRectMake(100, 331, 800, 500), {"1 AXPosition 100 69"}},
        {"just below the menu bar",
         CGRectMake(100, 25, 800, 500),
         CGRectMake(100, 331, 800, 500),
         {"1 AXPosition 100 69"}},
        {"spanning",
         CGRectMake(0, 25, 800, 875),
         CGRectMake(0, 0, 800, 831),
         {"1 AXPosition 0 69", "1 AXSize 800 831"}},
        {"spanning but for a point",
         CGRectMake(0, 26, 800, 873),
         CGRectMake(0, 1, 800, 830),
         {"1 AXPosition 0 69", "1 AXSize 800 830"}},
        {"almost spanning", CGRectMake(0, 25, 800, 873), CGRectMake(0, -42, 800, 873), {"1 AXPosition 0 69"}},
    };
    for (const auto& row : rows) {
        Desktop d;
        d.add(1, row.frame).isMain = true;
        EXPECT_EQ(d.tracker.snapshot()[0].frame, row.expected) << row.what;
        EXPECT_EQ(d.fake.writes, row.writes) << row.what;
    }
}

TEST(FinderWindowTracker, AWindowIsNeverShrunkBelow120) {
    for (const double height : {130.0, 100.0}) {
        Desktop d;
        d.fake.displays = {NSScreen{CGRectMake(0, 0, 640, height), CGRectMake(0, 0, 640, height), 60}};
        d.add(1, CGRectMake(10, 0, 400, height)).isMain = true;
        d.fake.window(1).attributes["AXFullScreen"] = AXAttributeValue(false);
        EXPECT_EQ(d.tracker.snapshot()[0].frame, CGRectMake(10, 0, 400, 120)) << height;
    }
}

TEST(FinderWindowTracker, LeavesOtherWindowsWhereTheyAre) {
    const std::pair<const char*, std::function<void(Desktop&)>> rows[] = {
        {"Finder not in front", [](Desktop& d) { d.fake.frontmost = "com.apple.mail"; }},
        {"not main", [](Desktop& d) { d.fake.window(1).isMain = false; }},
        {"full screen", [](Desktop& d) { d.fake.window(1).attributes["AXFullScreen"] = AXAttributeValue(true); }},
        {"behind another", [](Desktop& d) {
             d.add(2);
             std::swap(d.fake.finderWindows[0], d.fake.finderWindows[1]);
         }}};
    for (const auto& [what, change] : rows) {
        Desktop d;
        d.add(1, CGRectMake(100, 25, 800, 500)).isMain = true;
        change(d);
        d.tracker.snapshot();
        EXPECT_TRUE(d.fake.writes.empty()) << what;
    }
}

TEST(FinderWindowTracker, WritesPositionsAgainstThePrimaryScreenWhereverTheWindowIs) {
    Desktop d;
    // A second display of 1200 by 800 to the left and below the primary one.
    d.fake.displays = {NSScreen{CGRectMake(-1200, -600, 1200, 800), CGRectMake(-1200, -600, 1200, 775), 60},
                       NSScreen{CGRectMake(0, 0, 1440, 900), CGRectMake(0, 0, 1440, 875), 60}};
    d.add(1, CGRectMake(-1000, 725, 600, 300)).isMain = true;
    EXPECT_EQ(d.tracker.snapshot()[0].frame, CGRectMake(-1000, -169, 600, 300));
    EXPECT_EQ(d.fake.writes, std::vector<std::string>{"1 AXPosition -1000 769"});
}

TEST(FinderWindowTracker, FullScreenComesFromTheAttributeElseFromTheGeometry) {
    struct {
        const char* what;
        std::optional<AXAttributeValue> attribute;
        CGRect frame;
        bool expected;
    } const rows[] = {
        {"attribute against geometry", AXAttributeValue(false), CGRectMake(0, 0, 1440, 900), false},
        {"attribute as a number", AXAttributeValue(1.0), CGRectMake(100, 100, 300, 300), true},
        {"attribute of another type", AXAttributeValue(std::string("no")), CGRectMake(0, 0, 1440, 900), true},
        {"as high as the visible part, less 1", std::nullopt, CGRectMake(0, 26, 1440, 874), true},
        {"lower by a hair", std::nullopt, CGRectMake(0, 26.25, 1440, 873.75), false},
        {"off by 0.75 in x and width", std::nullopt, CGRectMake(0.75, 0, 1439.25, 900), true},
        {"off by 1 in x", std::nullopt, CGRectMake(1, 0, 1440, 900), false},
        {"off by 1 at the bottom", std::nullopt, CGRectMake(0, 0, 1440, 899), false},
    };
    for (const auto& row : rows) {
        Desktop d;
        d.add(1, row.frame).attributes["AXFullScreen"] = row.attribute;
        EXPECT_EQ(d.tracker.snapshot()[0].isFullScreen, row.expected) << row.what;
    }
}

TEST(FinderWindowTracker, SurvivesADesktopWithoutDisplays) {
    Desktop d;
    d.fake.displays.clear();
    d.add(1).isMain = true;
    EXPECT_EQ(d.tracker.snapshot()[0].frame, CGRectMake(100, 200, 800, 500));
    EXPECT_TRUE(d.fake.writes.empty());
}

}  // namespace
}  // namespace brindle
