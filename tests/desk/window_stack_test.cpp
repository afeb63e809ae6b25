// Stacking, as whole lists front to back, and what is on screen.
#include <gtest/gtest.h>

#include "desk/processes/Faults.h"
#include "desk/processes/Processes.h"
#include "desk/windows/Displays.h"
#include "desk/windows/WindowStack.h"
#include "tests/kit/Desk.h"

namespace {

using desk::ServerWindow;
using desk::WindowStack;
using platform::CGRect;
using platform::CGRectMake;
using platform::NSWindowOrderingMode;
using Numbers = std::vector<std::int64_t>;

constexpr auto above = NSWindowOrderingMode::above;
constexpr auto below = NSWindowOrderingMode::below;
constexpr auto out = NSWindowOrderingMode::out;

Numbers numbersOf(const std::vector<const ServerWindow*>& windows) {
    Numbers numbers;
    for (const ServerWindow* window : windows) numbers.push_back(window->number);
    return numbers;
}

void addWindow(WindowStack& stack, std::int64_t number, std::int32_t owner, int level) {
    ServerWindow window;
    window.number = number;
    window.owner = owner;
    window.level = level;
    window.frame = CGRectMake(static_cast<double>(number) * 10, 0, 100, 100);
    stack.add(window);
}

// Front to back 9 (level 3), 3, 2, 1 of process 1 and 4, in front of 3, of process 2.
WindowStack makeStack() {
    WindowStack stack;
    for (const std::int64_t number : {1, 2, 3}) addWindow(stack, number, 1, 0);
    addWindow(stack, 4, 2, 0);
    addWindow(stack, 9, 2, 3);
    for (const std::int64_t number : {1, 2, 3, 4, 9}) stack.order(number, above, 0);
    return stack;
}

struct StackingCase {
    const char* name;
    void (*change)(WindowStack& stack);
    Numbers onScreen;
    int changes;  // how often the picture changed
};

class Stacking : public testing::TestWithParam<StackingCase> {};

TEST_P(Stacking, IsThisFrontToBack) {
    WindowStack stack = makeStack();
    int changes = 0;
    const auto token = stack.changed.subscribe([&] { ++changes; });
    GetParam().change(stack);
    EXPECT_EQ(numbersOf(stack.onScreen()), GetParam().onScreen);
    EXPECT_EQ(changes, GetParam().changes);
}

const StackingCase stackingCases[] = {
    {"Start", [](WindowStack&) {}, {9, 4, 3, 2, 1}, 0},
    {"AboveAnother", [](WindowStack& s) { s.order(1, above, 3); }, {9, 4, 1, 3, 2}, 1},
    {"BelowAnother", [](WindowStack& s) { s.order(4, below, 2); }, {9, 3, 2, 4, 1}, 1},
    {"WhereItIsAlready", [](WindowStack& s) { s.order(3, above, 2); }, {9, 4, 3, 2, 1}, 0},
    {"FrontOfItsLevelOnly", [](WindowStack& s) { s.order(2, above, 0); }, {9, 2, 4, 3, 1}, 1},
    {"BackOfItsLevel", [](WindowStack& s) { s.order(3, below, 0); }, {9, 4, 2, 1, 3}, 1},
    {"HighLevelStaysUpAtItsBack", [](WindowStack& s) { s.order(9, below, 0); }, {9, 4, 3, 2, 1}, 0},
    {"RelativeToWindowThatIsGone", [](WindowStack& s) { s.order(1, below, 77); }, {9, 1, 4, 3, 2}, 1},
    {"RelativeToWindowOrderedOut", [](WindowStack& s) { s.order(3, out, 0), s.order(1, below, 3); }, {9, 1, 4, 2}, 2},
    {"AboveWindowOfHigherLevel", [](WindowStack& s) { s.order(1, above, 9); }, {9, 1, 4, 3, 2}, 1},
    {"BelowWindowOfHigherLevel", [](WindowStack& s) { s.order(3, below, 9); }, {9, 4, 2, 1, 3}, 1},
    {"RelativeToItself", [](WindowStack& s) { s.order(1, above, 1); }, {9, 1, 4, 3, 2}, 1},
    {"SameLevelDoesntReorder", [](WindowStack& s) { s.setLevel(1, 0); }, {9, 4, 3, 2, 1}, 0},
    {"RaisedLevel", [](WindowStack& s) { s.setLevel(1, 3); }, {1, 9, 4, 3, 2}, 1},
    {"LoweredLevel", [](WindowStack& s) { s.setLevel(9, 0); }, {9, 4, 3, 2, 1}, 1},
    {"Out", [](WindowStack& s) { s.order(4, out, 0); }, {9, 3, 2, 1}, 1},
    {"RaiseOfWindowThatIsOut", [](WindowStack& s) { s.order(1, out, 0), s.raise(1); }, {9, 4, 3, 2}, 1},
    {"RaiseAllKeepsTheirOrder", [](WindowStack& s) { s.raiseAll(1); }, {9, 3, 2, 1, 4}, 1},
    {"RaiseAllInFrontAlready", [](WindowStack& s) { s.raiseAll(2); }, {9, 4, 3, 2, 1}, 0},
    {"Removed", [](WindowStack& s) { s.remove(3); }, {9, 4, 2, 1}, 1},
    {"Unknown",
     [](WindowStack& s) { s.order(77, above, 1), s.raise(77), s.remove(77), s.setFrame(77, {}); },
     {9, 4, 3, 2, 1},
     0},
    {"OtherSpace", [](WindowStack& s) { s.setSpace(3, 2), s.switchToSpace(2); }, {3}, 2},
    {"OrderingInBringsToThisSpace",
     [](WindowStack& s) { s.switchToSpace(2), s.order(1, above, 0), s.order(9, above, 0); },
     {9, 1},
     3},
    {"RaisingKeepsTheSpace",
     [](WindowStack& s) { s.switchToSpace(2), s.raise(1), s.switchToSpace(1); },
     {9, 1, 4, 3, 2},
     3},
};

INSTANTIATE_TEST_SUITE_P(All, Stacking, testing::ValuesIn(stackingCases),
                         [](const auto& instance) { return instance.param.name; });

TEST(WindowStackTest, FindsTheFrontWindowOnScreenUnderAPoint) {
    WindowStack stack = makeStack();
    EXPECT_EQ(stack.windowAt({100, 50})->number, 9);
    EXPECT_EQ(stack.windowAt({50, 99})->number, 4);
    // Minimum edges belong to a window, maximum edges don't.
    EXPECT_EQ(stack.windowAt({10, 0})->number, 1);
    EXPECT_EQ(stack.windowAt({10, 100}), nullptr);
    stack.find(4)->minimized = true;
    EXPECT_EQ(stack.windowAt({50, 99})->number, 3);
}

TEST(DisplaysTest, TheScreenAtTheOriginAnchorsTopLeftSpaceAndElseTheFirst) {
    const struct {
        std::vector<CGRect> screens;
        CGRect topLeft;  // of 100, 50, 30, 20
    } cases[] = {{{CGRectMake(0, 0, 1440, 900)}, CGRectMake(100, 830, 30, 20)},
                 {{CGRectMake(-1920, 0, 1920, 1080), CGRectMake(0, 0, 1440, 900)}, CGRectMake(100, 830, 30, 20)},
                 {{CGRectMake(100, -200, 800, 600.25), CGRectMake(900, 0, 800, 800)}, CGRectMake(100, 330.25, 30, 20)},
                 {{}, CGRectMake(100, 50, 30, 20)}};
    for (const auto& each : cases) {
        desk::Displays displays;
        displays.removeAll();
        for (const CGRect& screen : each.screens) displays.add({screen, 60, 24, 0});
        EXPECT_EQ(displays.topLeftRect(CGRectMake(100, 50, 30, 20)), each.topLeft);
        EXPECT_EQ(displays.appKitRect(each.topLeft), CGRectMake(100, 50, 30, 20));
    }
}

TEST(DisplaysTest, TheFirstDisplayAddedReplacesTheDefaultOne) {
    desk::Displays displays;
    EXPECT_EQ(displays.screens(),
              (std::vector{platform::NSScreen{CGRectMake(0, 0, 1440, 900), CGRectMake(0, 0, 1440, 876), 60}}));
    displays.add({CGRectMake(0, 0, 1000, 800), 120, 30, 70});
    displays.add({CGRectMake(1000, 0, 500, 500), 60, 0, 0});
    EXPECT_EQ(displays.screens(),
              (std::vector{platform::NSScreen{CGRectMake(0, 0, 1000, 800), CGRectMake(0, 70, 1000, 700), 120},
                           platform::NSScreen{CGRectMake(1000, 0, 500, 500), CGRectMake(1000, 0, 500, 500), 60}}));
    displays.removeAll();
    EXPECT_EQ(displays.mainScreen(), std::nullopt);
}

TEST(ProcessesTest, AfterAQuitTheNextRegularProcessInActivationOrderIsFrontmost) {
    kit::Desk desk;
    desk.machine.finder.quit();
    desk::Processes& processes = desk.machine.processes;
    const auto add = [&](const char* name) { return processes.add({0, name, "", "", {}}); };
    const auto a = add("a");
    const auto agent = add("agent");
    const auto b = add("b");
    processes.setPolicy(agent, platform::NSApplicationActivationPolicy::accessory);
    EXPECT_EQ(processes.frontmost(), nullptr);
    int changes = 0;
    const auto token = processes.frontmostChanged.subscribe([&] { ++changes; });
    for (const auto identifier : {b, b, agent, a}) processes.activate(identifier);
    EXPECT_EQ(changes, 3);
    processes.remove(a);
    EXPECT_EQ(processes.frontmost()->bundleIdentifier, "b");
    processes.remove(b);
    EXPECT_EQ(processes.frontmost(), nullptr);
    processes.remove(agent);
    EXPECT_EQ(changes, 5);
}

TEST(FaultsTest, AFaultOfOneWindowGoesBeforeThatOfAll) {
    desk::Faults faults;
    faults.setWindowListFault("kCGWindowName", desk::ReadFault::missing);
    faults.setWindowListFault("kCGWindowName", desk::ReadFault::none, 101);
    faults.setWindowListFault("kCGWindowName", desk::ReadFault::wrongType, 102);
    EXPECT_EQ(faults.windowListFault("kCGWindowName", 101), desk::ReadFault::none);
    EXPECT_EQ(faults.windowListFault("kCGWindowName", 102), desk::ReadFault::wrongType);
    EXPECT_EQ(faults.windowListFault("kCGWindowName", 103), desk::ReadFault::missing);
    for (const std::int64_t window : {0, 101, 102})
        faults.setWindowListFault("kCGWindowName", desk::ReadFault::none, window);
    EXPECT_FALSE(faults.hasWindowListFaults());
}

}  // namespace
