// What a person does to Finder's windows, and in which order Accessibility hears of it.
#include <gtest/gtest.h>

#include "tests/desk/FinderJournal.h"
#include "tests/kit/Desk.h"

namespace {

using kit::FinderJournal;
using kit::finderWindows;
using kit::stacking;
using platform::CGRectMake;
using Lines = std::vector<std::string>;
using Numbers = std::vector<std::int64_t>;

class FinderWindows : public testing::Test {
protected:
    FinderWindows() {
        desk.twoWindows();
        journal.take();
    }

    kit::Desk desk;
    desk::Machine& machine = desk.machine;
    desk::Finder& finder = desk.machine.finder;
    FinderJournal journal{desk.machine};
};

TEST_F(FinderWindows, OpenWithTheirFolderAndNothingElse) {
    machine.disk.makeSymbolicLink("/Users/ana/Work/Link", "/Volumes/Data/Reports/");
    const std::string hostile = "/Users/ana/Work/a\n\"b\"\\ \u202e\x1e\u00e9e\u0301 ";
    machine.disk.makeFolder(hostile);
    const std::tuple<std::string, std::string, std::string> cases[] = {
        {"/", "/", "Macintosh HD"},
        {"/Users/ana/Work/Link/", "/Users/ana/Work/Link", "Link"},
        {"/Applications/Safari.app", "/Applications/Safari.app", "Safari.app"},
        {"/Users/ana/Work/One/../Two", "/Users/ana/Work/Two", "Two"},
        {hostile, hostile, hostile.substr(16)},
    };
    std::int64_t expected = 103;
    for (const auto& [path, target, name] : cases) {
        const auto number = finder.open(path);
        ASSERT_EQ(number, expected++) << path;
        EXPECT_EQ(finder.find(*number)->target, target);
        EXPECT_EQ(finder.find(*number)->name, name);
        EXPECT_EQ(machine.windows.find(*number)->title, name);
        EXPECT_EQ(finder.front()->number, *number);
    }
    for (const char* path : {"/Users/ana/Documents/100% done.txt", "/nowhere", "", "Users"})
        EXPECT_EQ(finder.open(path), std::nullopt) << path;
    EXPECT_EQ(finder.openVirtual("Recents"), 108);
    EXPECT_EQ(finder.find(108)->target, std::nullopt);
    EXPECT_EQ(finder.find(108)->name, "Recents");
}

TEST_F(FinderWindows, TellOfOpeningAndClosingInOrder) {
    finder.open("/tmp", CGRectMake(0, 0, 300, 200));
    EXPECT_EQ(journal.take(), (Lines{"AXWindowCreated 103", "AXFocusedWindowChanged 103"}));

    // Off every list before anything is told.
    Lines during;
    const auto token = machine.finder.accessibility().told.subscribe([&](const auto&, const std::string& notification) {
        during.push_back(notification + (machine.windows.find(103) == nullptr ? "" : " too early"));
    });
    finder.close(103);
    EXPECT_EQ(journal.take(), (Lines{"AXUIElementDestroyed 103", "AXFocusedWindowChanged 102"}));
    EXPECT_EQ(during, (Lines{"AXUIElementDestroyed", "AXFocusedWindowChanged"}));
    finder.close(101);
    EXPECT_EQ(journal.take(), Lines{"AXUIElementDestroyed 101"});
    finder.close(102);
    EXPECT_EQ(journal.take(), (Lines{"AXUIElementDestroyed 102", "AXFocusedWindowChanged 0"}));
    EXPECT_FALSE(finder.close(102));
    EXPECT_EQ(finder.open("/tmp"), 104);
}

TEST_F(FinderWindows, TellOnlyWhatReallyChanges) {
    machine.disk.makeFolder("/tmp/Two");
    const struct {
        const char* what;
        std::function<void()> act;
        Lines told;
    } cases[] = {
        {"another folder", [&] { finder.go(102, "/Users/ana/Movies"); }, {"AXTitleChanged 102"}},
        {"back", [&] { finder.go(102, "/Users/ana/Work/Two"); }, {"AXTitleChanged 102"}},
        {"a folder of that name", [&] { finder.go(102, "/tmp/Two"); }, {}},
        {"a file", [&] { finder.go(102, "/Users/ana/Desktop/To Do.txt"); }, {}},
        {"moved", [&] { finder.setFrame(101, CGRectMake(90.25, 200, 800, 500)); }, {"AXMoved 101"}},
        {"bottom edge dragged down",
         [&] { finder.setFrame(101, CGRectMake(90.25, 150, 800, 550)); },
         {"AXResized 101"}},
        {"top edge dragged up",
         [&] { finder.setFrame(101, CGRectMake(90.25, 150, 800, 560)); },
         {"AXMoved 101", "AXResized 101"}},
        {"not moved", [&] { finder.setFrame(101, CGRectMake(90.25, 150, 800, 560)); }, {}},
        {"raised", [&] { finder.raise(101); }, {"AXFocusedWindowChanged 101"}},
        {"raised again", [&] { finder.raise(101); }, {}},
        {"minimised", [&] { finder.minimize(101); }, {"AXWindowMiniaturized 101", "AXFocusedWindowChanged 102"}},
        {"again", [&] { finder.minimize(101); }, {}},
        {"restored", [&] { finder.restore(101); }, {"AXWindowDeminiaturized 101", "AXFocusedWindowChanged 101"}},
        {"to another space", [&] { finder.setSpace(101, 2); }, {"AXFocusedWindowChanged 102"}},
        {"the person follows", [&] { machine.windows.switchToSpace(2); }, {"AXFocusedWindowChanged 101"}},
        {"info panel", [&] { finder.openInfoPanel("/tmp"); }, {"AXWindowCreated 103"}},
    };
    for (const auto& each : cases) {
        each.act();
        EXPECT_EQ(journal.take(), each.told) << each.what;
    }
    EXPECT_EQ(finder.find(102)->target, "/tmp/Two");
}

TEST_F(FinderWindows, AreListedOnScreenFirstThenOtherSpacesThenMinimised) {
    finder.open("/tmp", CGRectMake(0, 0, 300, 200));
    finder.open("/", CGRectMake(0, 0, 300, 200));
    finder.minimize(104);
    finder.setSpace(103, 2);
    finder.raise(101);
    EXPECT_EQ(finderWindows(machine),
              (Lines{"101 One at 100,200 800x500 space 1", "102 Two at 400,100 700x400 space 1",
                     "103 tmp at 0,0 300x200 space 2", "104 Macintosh HD at 0,0 300x200 space 1 minimized"}));
    EXPECT_EQ(finder.front()->number, 101);
    finder.minimize(101);
    finder.minimize(102);
    EXPECT_EQ(finder.front(), nullptr);
}

TEST_F(FinderWindows, StandInFrontOfFindersOthersOnlyWhileAnotherApplicationIsFrontmost) {
    machine.launchServices.startOtherProcess("org.example.Editor");
    const std::int64_t editor = stacking(machine).back();
    machine.activation.activate("org.example.Editor");
    EXPECT_EQ(stacking(machine), (Numbers{editor, 102, 101}));
    finder.open("/tmp");
    EXPECT_EQ(stacking(machine), (Numbers{editor, 103, 102, 101}));
    finder.raise(101);
    EXPECT_EQ(stacking(machine), (Numbers{editor, 101, 103, 102}));
    machine.windows.order(editor, platform::NSWindowOrderingMode::below, 101);
    finder.raise(101);
    EXPECT_EQ(stacking(machine), (Numbers{101, editor, 103, 102}));
    for (const std::int64_t number : {101, 102, 103}) finder.close(number);
    finder.open("/tmp");
    EXPECT_EQ(stacking(machine), (Numbers{editor, 104}));
    machine.activation.activate("com.apple.finder");
    finder.open("/");
    EXPECT_EQ(stacking(machine), (Numbers{105, 104, editor}));
}

TEST_F(FinderWindows, FillTheScreenTheyAreMostlyOnAndComeBack) {
    machine.displays.add({.frame = CGRectMake(0, 0, 1440, 900)});
    machine.displays.add({.frame = CGRectMake(1440, -100, 1920, 1080), .menuBar = 0});
    finder.setFrame(102, CGRectMake(1300, 100, 700, 400));
    finder.setSpace(102, 3);
    machine.windows.switchToSpace(3);
    journal.take();

    EXPECT_TRUE(finder.setFullScreen(102, true));
    EXPECT_EQ(journal.take(), (Lines{"AXMoved 102", "AXResized 102"}));
    const int own = machine.windows.currentSpace();
    EXPECT_GE(own, 1000);
    EXPECT_EQ(finderWindows(machine),
              (Lines{"102 Two at 1440,-100 1920x1080 space " + std::to_string(own) + " full screen",
                     "101 One at 100,200 800x500 space 1"}));
    EXPECT_FALSE(finder.setFrame(102, CGRectMake(0, 0, 10, 10)));
    EXPECT_FALSE(finder.setSpace(102, 1));

    EXPECT_TRUE(finder.setFullScreen(102, false));
    EXPECT_EQ(finderWindows(machine),
              (Lines{"102 Two at 1300,100 700x400 space 3", "101 One at 100,200 800x500 space 1"}));
    EXPECT_EQ(machine.windows.currentSpace(), 3);

    finder.setFullScreen(102, true);
    EXPECT_NE(machine.windows.currentSpace(), own);
    finder.close(102);
    EXPECT_EQ(machine.windows.currentSpace(), 3);
    machine.displays.removeAll();
    EXPECT_FALSE(finder.setFullScreen(101, true));
}

TEST_F(FinderWindows, FollowTheMouseByTheirTitleBarBelowTheMenuBarOrNot) {
    // 101 ends at y 700; its title bar is 672 to 700.
    desk.press({150, 672});
    EXPECT_EQ(finder.mainWindow(), 101);
    journal.take();
    desk.dragTo({160.25, 700.5});
    EXPECT_EQ(machine.windows.find(101)->frame, CGRectMake(110.25, 228.5, 800, 500));
    desk.dragTo({150, 1000});
    desk.release({150, 1000});
    EXPECT_EQ(machine.windows.find(101)->frame, CGRectMake(100, 528, 800, 500));
    EXPECT_EQ(journal.take(), (Lines{"AXMoved 101", "AXMoved 101"}));

    desk.drag({450, 300}, {500, 300});
    EXPECT_EQ(machine.windows.find(102)->frame, CGRectMake(400, 100, 700, 400));
    EXPECT_EQ(finder.mainWindow(), 102);

    desk.press({450, 490});
    finder.close(102);
    desk.dragTo({600, 600});
    desk.release({600, 600});
    EXPECT_EQ(finderWindows(machine), Lines{"101 One at 100,528 800x500 space 1"});
}

TEST_F(FinderWindows, APressActivatesFinderAndBringsThatWindowAloneForward) {
    machine.launchServices.startOtherProcess("org.example.Editor");
    const std::int64_t editor = stacking(machine).back();
    machine.activation.activate("org.example.Editor");
    desk.press({105, 690});
    EXPECT_EQ(stacking(machine), (Numbers{101, editor, 102}));
    EXPECT_EQ(machine.processes.frontmost()->processIdentifier, finder.pid());
}

TEST_F(FinderWindows, LoseTheirSelectionWhenTheyGoElsewhereAndItemsWhenTheyVanish) {
    desk.tree({"/Users/ana/Work/Two/a.txt", "/Users/ana/Work/Two/b.txt"});
    EXPECT_TRUE(finder.select(102, {"/Users/ana/Work/Two/a.txt", "/Users/ana/Work/Two/b.txt"}));
    EXPECT_FALSE(finder.select(102, {"/Users/ana/Work/Two/c.txt"}));
    machine.disk.remove("/Users/ana/Work/Two/a.txt");
    EXPECT_EQ(finder.find(102)->selection, Lines{"/Users/ana/Work/Two/b.txt"});
    finder.go(102, "/tmp");
    EXPECT_EQ(finder.front()->selection, Lines{});
    machine.disk.remove("/tmp");
    machine.disk.remove("/Users/ana/Work/One");
    EXPECT_EQ(finder.find(101)->target, "/Users/ana/Work/One");
}

TEST_F(FinderWindows, GoWithTheirProcess) {
    finder.setFullScreen(102, true);
    journal.take();
    const std::int32_t before = finder.pid();
    finder.quit();
    EXPECT_EQ(stacking(machine), Numbers{});
    EXPECT_EQ(machine.windows.currentSpace(), 1);
    EXPECT_EQ(machine.processes.frontmost(), nullptr);
    EXPECT_EQ(finder.open("/tmp"), std::nullopt);
    finder.launch();
    EXPECT_NE(finder.pid(), before);
    EXPECT_EQ(finder.open("/tmp"), 103);
    EXPECT_EQ(journal.take(), (Lines{"AXWindowCreated 103", "AXFocusedWindowChanged 103"}));
}

}  // namespace
