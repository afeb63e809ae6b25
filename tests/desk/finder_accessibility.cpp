// What other programs read of Finder's windows, what their writes do, and what goes wrong on request.
#include <gtest/gtest.h>

#include "tests/desk/FinderJournal.h"
#include "tests/kit/Desk.h"

namespace {

using kit::FinderJournal;
using platform::AXAttributeValue;
using platform::AXError;
using platform::AXUIElement;
using platform::AXValue;
using platform::CGPoint;
using platform::CGRectMake;
using platform::CGSize;
using Lines = std::vector<std::string>;
using Elements = std::vector<AXUIElement>;

class FinderTree : public testing::Test {
protected:
    FinderTree() { desk.twoWindows(); }

    std::optional<AXAttributeValue> read(std::uint64_t identity, std::string_view attribute) {
        return tree.copyAttribute({finder.pid(), identity}, attribute);
    }
    AXError write(std::uint64_t identity, std::string_view attribute, const AXAttributeValue& value) {
        return tree.setAttribute({finder.pid(), identity}, attribute, value);
    }
    std::vector<std::uint64_t> windows() {
        std::vector<std::uint64_t> identities;
        const auto value = read(0, "AXWindows");
        for (const AXUIElement& element : std::get<Elements>(*value)) identities.push_back(element.identity);
        return identities;
    }

    kit::Desk desk;
    desk::Machine& machine = desk.machine;
    desk::Finder& finder = desk.machine.finder;
    desk::FinderAccessibility& tree = desk.machine.finder.accessibility();
};

constexpr std::uint64_t desktop = 1;

TEST_F(FinderTree, TellsWhatAWindowIs) {
    const std::tuple<std::uint64_t, const char*, std::optional<AXAttributeValue>> cases[] = {
        {101, "AXRole", std::string("AXWindow")},
        {101, "AXSubrole", std::string("AXStandardWindow")},
        {101, "AXTitle", std::string("One")},
        {101, "AXPosition", AXValue(CGPoint{100, 200})},
        {102, "AXPosition", AXValue(CGPoint{400, 400})},
        {102, "AXSize", AXValue(CGSize{700, 400})},
        {102, "AXMain", true},
        {101, "AXMain", false},
        {102, "AXFocused", true},
        {101, "AXMinimized", false},
        {101, "AXFullScreen", false},
        {101, "AXNothing", std::nullopt},
        {999, "AXRole", std::nullopt},
        {desktop, "AXRole", std::string("AXScrollArea")},
        {desktop, "AXTitle", std::nullopt},
        {0, "AXRole", std::string("AXApplication")},
        {0, "AXFrontmost", true},
        {0, "AXFocusedWindow", AXUIElement{finder.pid(), 102}},
        {0, "AXTitle", std::string("Finder")},
    };
    for (const auto& [identity, attribute, value] : cases)
        EXPECT_EQ(read(identity, attribute), value) << identity << attribute;
    EXPECT_EQ(tree.copyAttribute({finder.pid() + 1, 101}, "AXRole"), std::nullopt);
}

TEST_F(FinderTree, ListsWhatCallersMustFilterAndLeavesOutOtherSpaces) {
    finder.openInfoPanel("/tmp");
    finder.open("/tmp");
    finder.open("/Users");
    finder.setSpace(104, 2);
    finder.minimize(101);
    EXPECT_EQ(windows(), (std::vector<std::uint64_t>{105, 103, 102, 101, desktop}));
    EXPECT_EQ(read(103, "AXRole"), AXAttributeValue(std::string("AXWindow")));
    EXPECT_NE(read(103, "AXSubrole"), AXAttributeValue(std::string("AXStandardWindow")));
    EXPECT_EQ(read(101, "AXMinimized"), AXAttributeValue(true));
    EXPECT_EQ(read(104, "AXMain"), AXAttributeValue(false));
    for (const std::int64_t number : {101, 102, 105}) finder.close(number);
    EXPECT_EQ(read(0, "AXFocusedWindow"), std::nullopt);
    EXPECT_EQ(read(102, "AXRole"), std::nullopt);
}

TEST_F(FinderTree, WritesActAtOnceAndAreToldLater) {
    FinderJournal journal(machine);
    EXPECT_EQ(write(101, "AXPosition", AXValue(CGPoint{-50.25, 30})), AXError::success);
    EXPECT_EQ(machine.windows.find(101)->frame, CGRectMake(-50.25, 370, 800, 500));
    EXPECT_EQ(write(101, "AXSize", AXValue(CGSize{600, 300.5})), AXError::success);
    EXPECT_EQ(machine.windows.find(101)->frame, CGRectMake(-50.25, 569.5, 600, 300.5));
    EXPECT_EQ(write(101, "AXSize", AXValue(CGSize{-5, 300.5})), AXError::success);
    EXPECT_EQ(machine.windows.find(101)->frame.size, (CGSize{0, 300.5}));
    EXPECT_EQ(journal.take(), (Lines{"AXMoved 101", "AXResized 101", "AXResized 101"}));

    const auto failed = AXError::failure;
    EXPECT_EQ(write(101, "AXPosition", AXValue(CGSize{1, 1})), failed);
    EXPECT_EQ(write(101, "AXPosition", true), failed);
    EXPECT_EQ(write(101, "AXPosition", AXValue(CGPoint{0, std::numeric_limits<double>::quiet_NaN()})), failed);
    EXPECT_EQ(write(101, "AXTitle", std::string("x")), failed);
    EXPECT_EQ(write(desktop, "AXPosition", AXValue(CGPoint{1, 1})), failed);
    EXPECT_EQ(write(0, "AXFocusedWindow", AXUIElement{finder.pid(), 999}), failed);
    EXPECT_EQ(write(999, "AXMain", true), AXError::invalidUIElement);
    finder.setFullScreen(101, true);
    EXPECT_EQ(write(101, "AXPosition", AXValue(CGPoint{1, 1})), failed);
}

TEST_F(FinderTree, EveryWayOfFocusingBringsTheWindowForwardOnce) {
    const std::function<AXError(std::int64_t)> ways[] = {
        [&](std::int64_t n) { return write(static_cast<std::uint64_t>(n), "AXMain", true); },
        [&](std::int64_t n) { return write(static_cast<std::uint64_t>(n), "AXFocused", true); },
        [&](std::int64_t n) { return write(0, "AXFocusedWindow", tree.windowElement(n)); },
        [&](std::int64_t n) { return tree.performAction(tree.windowElement(n), "AXRaise"); },
    };
    std::int64_t back = 101;
    for (const auto& focus : ways) {
        EXPECT_EQ(focus(back), AXError::success);
        EXPECT_EQ(finder.mainWindow(), back);
        back = 203 - back;
    }
    // A window that is main already stays below what covers it, but for an outright raise.
    machine.launchServices.startOtherProcess("org.example.Editor");
    const std::int64_t editor = kit::stacking(machine).back();
    machine.windows.raise(editor);
    for (const auto& focus : ways) {
        EXPECT_EQ(kit::stacking(machine).front(), editor);
        focus(finder.mainWindow());
    }
    EXPECT_EQ(kit::stacking(machine).front(), finder.mainWindow());
    EXPECT_EQ(machine.keyboard.keyWindow(), 0);
}

TEST_F(FinderTree, ReadsFailAsAsked) {
    using desk::ReadFault;
    machine.faults.setAccessibilityFault("AXTitle", ReadFault::missing);
    machine.faults.setAccessibilityFault("AXTitle", ReadFault::wrongType, 102);
    machine.faults.setAccessibilityFault("AXMain", ReadFault::wrongType, 101);
    machine.faults.setAccessibilityFault("AXWindows", ReadFault::wrongType);
    machine.faults.setAccessibilityFault("AXPosition", ReadFault::wrongType, 101);
    EXPECT_EQ(read(101, "AXTitle"), std::nullopt);
    EXPECT_TRUE(std::holds_alternative<double>(*read(102, "AXTitle")));
    EXPECT_TRUE(std::holds_alternative<std::string>(*read(101, "AXMain")));
    EXPECT_EQ(read(102, "AXMain"), AXAttributeValue(true));
    EXPECT_FALSE(std::holds_alternative<Elements>(*read(0, "AXWindows")));
    EXPECT_FALSE(std::holds_alternative<AXValue>(*read(101, "AXPosition")));
    machine.faults.setAccessibilityFault("AXTitle", ReadFault::none);
    EXPECT_EQ(read(101, "AXTitle"), AXAttributeValue(std::string("One")));
}

TEST_F(FinderTree, NotificationsAreLostDoubledOrLateAsAsked) {
    using desk::NotificationFault;
    FinderJournal journal(machine);
    machine.faults.notifications = NotificationFault::drop;
    finder.minimize(101);
    EXPECT_EQ(journal.take(), Lines{});

    machine.faults.notifications = NotificationFault::doubled;
    finder.restore(101);
    EXPECT_EQ(journal.take(), (Lines{"AXWindowDeminiaturized 101", "AXWindowDeminiaturized 101",
                                     "AXFocusedWindowChanged 101", "AXFocusedWindowChanged 101"}));

    // Late ones keep their order though the second has less time to go.
    machine.faults.notifications = NotificationFault::late;
    machine.faults.notificationDelay = platform::seconds(2);
    finder.minimize(101);
    machine.faults.notificationDelay = platform::seconds(1);
    finder.restore(101);
    desk.run(1.9);
    EXPECT_EQ(journal.take(), Lines{});
    desk.run(0.1);
    EXPECT_EQ(journal.take(), (Lines{"AXWindowMiniaturized 101", "AXFocusedWindowChanged 102",
                                     "AXWindowDeminiaturized 101", "AXFocusedWindowChanged 101"}));

    finder.close(101);
    finder.quit();
    finder.launch();
    desk.run(3);
    EXPECT_EQ(journal.take(), Lines{});
}

// A backend that has to release what it hands out does so then, and neither earlier nor never.
TEST(AccessibilityElement, IsReleasedWhenItsLastCopyGoes) {
    int released = 0;
    const auto release = [&](const void* /*element*/) { ++released; };
    AXAttributeValue read = Elements{{7, 101, std::shared_ptr<const void>(&released, release)}};
    std::optional<AXUIElement> kept = std::get<Elements>(read).front();
    EXPECT_EQ(*kept, (AXUIElement{7, 101}));
    read = true;
    EXPECT_EQ(released, 0);
    kept.reset();
    EXPECT_EQ(released, 1);
}

}  // namespace
