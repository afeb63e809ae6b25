// Finder as a person uses it: mouse, wheel and keys on the machine, and what has become of the windows afterwards.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "desk/text/IcuCollation.h"
#include "tests/desk/UsingFinder.h"

namespace {

using kit::UsingFinder;
using platform::CGPoint;
using platform::CGRect;
using platform::CGRectMake;
using Lines = std::vector<std::string>;
namespace Flags = platform::NSEventModifierFlags;

constexpr CGPoint belowTheRows{600, 300};
constexpr CGPoint back{290, 686};
constexpr CGPoint forward{310, 686};

TEST_F(UsingFinder, SelectsByRowsInNaturalOrderWithCommandAndShift) {
    click(row(1));
    EXPECT_EQ(selected(), Lines{"a 2"});
    click(row(3), Flags::command);
    click(row(0), Flags::command);
    EXPECT_EQ(selected(), (Lines{"a 2", "b.txt", "a 1"}));
    click(row(3), Flags::command);
    EXPECT_EQ(selected(), (Lines{"a 2", "a 1"}));
    click(row(1));
    click(row(3), Flags::shift);
    EXPECT_EQ(selected(), (Lines{"a 2", "a 10", "b.txt"}));
    click(row(0), Flags::shift);
    EXPECT_EQ(selected(), (Lines{"a 1", "a 2"})) << "from the same row, the other way";
    for (const CGPoint nothing : {CGPoint{500, 660}, CGPoint{500, 210}, CGPoint{150, 230}}) doubleClick(nothing);
    click(belowTheRows, Flags::shift);
    EXPECT_EQ(selected(), (Lines{"a 1", "a 2"})) << "header, status line, sidebar, Shift below the rows";
    click(belowTheRows);
    EXPECT_EQ(selected(), Lines{});
}

TEST_F(UsingFinder, SelectsWhatARectangleFromBelowTheRowsTouches) {
    desk.drag(belowTheRows, {300, row(3).y});
    EXPECT_EQ(selected(), (Lines{"b.txt", "Folder"}));
    desk.then([&] { input.mouseDown(belowTheRows, desk::MouseButton::left, 1, Flags::shift); });
    desk.dragTo({300, 3000});
    EXPECT_EQ(selected(), (Lines{"b.txt", "Folder", "a 1", "a 2", "a 10"}));
    desk.dragTo({500, row(4).y});
    desk.release({500, row(4).y});
    EXPECT_EQ(selected(), (Lines{"b.txt", "Folder"})) << "rows that it doesn't touch any more go, others stay";
    EXPECT_EQ(finder.browser().band(*finder.find(101)), std::nullopt);
}

TEST_F(UsingFinder, OpensByDoubleClickAndFindsItsWayBackAndForward) {
    click(row(0), Flags::command);
    doubleClick(row(4));
    EXPECT_EQ(shown(), work + "/Folder");
    EXPECT_EQ(selected(), Lines{});
    click({180, 700 - 123});  // Desktop, the third place
    EXPECT_EQ(shown(), "/Users/ana/Desktop");
    click({180, 700 - 71});  // Recents
    EXPECT_EQ(shown(), "nowhere");
    EXPECT_EQ(finder.find(101)->name, "Recents");
    machine.disk.remove("/Users/ana/Desktop");
    click(back);
    EXPECT_EQ(shown(), work + "/Folder") << "what is gone is passed over";
    click(back);
    EXPECT_EQ(shown(), work);
    EXPECT_EQ(selected(), Lines{"Folder"});
    click(back);
    click(forward);
    EXPECT_EQ(shown(), work + "/Folder");
    EXPECT_EQ(journal.take(), (Lines(6, "AXTitleChanged 101")));
}

TEST_F(UsingFinder, OpensDocumentsWithTheEditorAndNothingForTooMany) {
    doubleClick(row(3));
    ASSERT_EQ(machine.launchServices.opened().size(), 1U);
    EXPECT_EQ(machine.launchServices.opened()[0].application, "/Applications/TextEdit.app");
    EXPECT_EQ(machine.launchServices.opened()[0].urls, Lines{work + "/b.txt"});
    EXPECT_NE(machine.processes.frontmost()->processIdentifier, finder.pid());

    manyFiles(30);
    machine.activation.activate("com.apple.finder");
    keys({"cmd+a", "cmd+o", "cmd+i"});
    EXPECT_EQ(selected().size(), 35U);
    EXPECT_EQ(machine.launchServices.opened().size(), 1U);
    EXPECT_EQ(finder.windows().size(), 1U);
}

TEST_F(UsingFinder, ListsAFolderOnceUntilItChangesFromInsideOrOutside) {
    namespace fs = std::filesystem;
    const std::string outside = fs::temp_directory_path() / ("using-finder-" + std::to_string(::getpid()));
    fs::create_directories(outside);
    std::ofstream(outside + "/First");
    machine.disk.mount("/Volumes/Work", outside);
    desk::IcuCollation names;
    desk::FinderListing list;
    const auto update = [&] { return list.update(machine.disk, names, "/Volumes/Work"); };
    EXPECT_TRUE(update());
    EXPECT_FALSE(update());
    // A second later by the host's clock, as only the next tick can be told apart.
    std::ofstream(outside + "/Second");
    fs::last_write_time(outside, fs::last_write_time(outside) + std::chrono::seconds(1));
    EXPECT_TRUE(update());
    EXPECT_EQ(list.rowOf("/Volumes/Work/Second"), 1U);
    machine.disk.setUnreadable("/Volumes/Work");
    EXPECT_TRUE(update());
    EXPECT_FALSE(list.isReadable());
    EXPECT_EQ(list.count(), 0U);
    fs::remove_all(outside);

    const auto countOfWindow = [&] { return finder.browser().listing(*finder.find(101)).count(); };
    EXPECT_EQ(countOfWindow(), 5U);
    machine.disk.makeFile(work + "/c", "");
    EXPECT_EQ(countOfWindow(), 6U);
    machine.disk.remove(work + "/c");
    EXPECT_EQ(countOfWindow(), 5U);
    machine.disk.remove(work);
    EXPECT_EQ(countOfWindow(), 0U);
    click(row(0));
    keys({"down", "cmd+a", "cmd+o", "end"});
    desk.type("a");
    EXPECT_EQ(selected(), Lines{});
}

TEST_F(UsingFinder, ScrollsByWheelKnobPageAndKeyboard) {
    manyFiles(95);  // 100 rows of 24 points in a list of 424: at most 1976
    input.scrollWheel({500, 500}, 0, -30);
    EXPECT_EQ(scrolled(), 30);
    click(row(0));
    EXPECT_EQ(selected(), Lines{"a 2"}) << "the row that was scrolled under the mouse";
    input.scrollWheel({500, 500}, 0, 1e9);
    EXPECT_EQ(scrolled(), 0);
    keys({"up"});
    EXPECT_EQ(scrolled(), 0);
    keys({"end"});
    EXPECT_EQ(scrolled(), 1976);
    EXPECT_EQ(selected(), Lines{"a 1"}) << "End only scrolls";
    keys({"shift+down"});
    EXPECT_EQ(scrolled(), 24) << "the second row is brought to the top";
    keys({"home", "page-down"});
    EXPECT_EQ(scrolled(), 424);
    // The knob is 424 * 424 / 2400 high, beside it a press goes a page further.
    click({894, 260});
    EXPECT_EQ(scrolled(), 848);
    keys({"home"});
    desk.drag({894, 640}, {894, 0});
    EXPECT_EQ(scrolled(), 1976);
    keys({"cmd+up", "cmd+["});
    EXPECT_EQ(scrolled(), 1976) << "as it was left";
    finder.setFrame(101, CGRectMake(100, 0, 800, 5000));
    EXPECT_EQ(scrolled(), 0);
}

TEST_F(UsingFinder, FollowsArrowsAndTypedNames) {
    keys({"down", "shift+down", "shift+down", "shift+up"});
    EXPECT_EQ(selected(), (Lines{"a 1", "a 2"}));
    keys({"down"});
    EXPECT_EQ(selected(), Lines{"a 10"});
    keys({"down", "down", "down"});
    EXPECT_EQ(selected(), Lines{"Folder"});
    click(belowTheRows);
    keys({"up"});
    EXPECT_EQ(selected(), Lines{"Folder"});

    desk.type("A 1");
    EXPECT_EQ(selected(), Lines{"a 1"});
    desk.type("0");
    EXPECT_EQ(selected(), Lines{"a 10"});
    desk.run(0.9);
    desk.type("x");
    EXPECT_EQ(selected(), Lines{"b.txt"}) << "nothing begins so: what would come next";
    desk.run(1);
    desk.type(" f");
    EXPECT_EQ(selected(), Lines{"Folder"}) << "a new word after a second; no name begins with a blank";
    desk.type("zz");
    EXPECT_EQ(selected(), Lines{"Folder"});
}

TEST_F(UsingFinder, ObeysTheKeysOfItsMenus) {
    keys({"cmd+up"});
    EXPECT_EQ(shown(), "/Users/ana/Work");
    EXPECT_EQ(selected(), Lines{"One"});
    keys({"cmd+down"});
    EXPECT_EQ(shown(), work);
    keys({"cmd+[", "cmd+[", "cmd+]"});
    EXPECT_EQ(shown(), "/Users/ana/Work");
    keys({"shift+cmd+d"});
    EXPECT_EQ(shown(), "/Users/ana/Desktop");
    keys({"cmd+n", "cmd+`"});
    EXPECT_EQ(kit::stacking(machine), (std::vector<std::int64_t>{101, 102}));
    EXPECT_EQ(shown(102), "/Users/ana");
    keys({"cmd+m", "cmd+i", "cmd+w", "cmd+w", "cmd+w", "shift+cmd+h"});
    EXPECT_EQ(kit::finderWindows(machine),
              (Lines{"104 ana at 192,204 800x500 space 1", "101 Desktop at 100,200 800x500 space 1 minimized"}))
        << "with none left, a place opens in a new window";
}

TEST_F(UsingFinder, LeavesKeysToWhoeverHasTheKeyboardAndTellsMonitorsOfItsOwn) {
    kit::Probe& probe = kit::launchProbe(desk);
    const auto panel = probe.panel(CGRectMake(100, 700, 800, 44));
    probe.monitorGlobally(~platform::NSEventMask{0});
    probe.log.clear();
    panel->makeKeyWindow();
    keys({"down", "cmd+w"});
    EXPECT_EQ(selected(), Lines{});
    EXPECT_EQ(probe.log, Lines{});
    EXPECT_EQ(panel->received.size(), 4U);
    click({500, 210});
    keys({"down"});
    EXPECT_EQ(selected(), Lines{"a 1"});
    EXPECT_EQ(probe.log, (Lines{"global 1", "global 2", "global 10", "global 11"}));
}

}  // namespace
