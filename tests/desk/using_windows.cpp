// Windows, Dock, menu bar and spaces as a person uses them.
#include <gtest/gtest.h>

#include "desk/menus/MenuBar.h"
#include "desk/system/Dock.h"
#include "tests/desk/UsingFinder.h"

namespace {

using kit::UsingFinder;
using platform::CGPoint;
using platform::CGRect;
using platform::CGRectMake;
using UsingWindows = UsingFinder;

TEST_F(UsingWindows, ActsWhenAButtonIsReleasedOverItself) {
    finder.open(work, CGRectMake(100, 200, 800, 500));
    // Dragged, all of the title bar moves the window: close button, Back, title.
    for (const double x : {120.0, 290.0, 400.0}) {
        finder.setFrame(102, CGRectMake(100, 200, 800, 500));
        desk.drag({x, 686}, {x + 7, 600});
        EXPECT_EQ(machine.windows.find(102)->frame, CGRectMake(107, 114, 800, 500)) << x;
    }
    click({127, 600});
    EXPECT_EQ(finder.find(102), nullptr);
    click({160, 686});
    EXPECT_TRUE(finder.find(101)->fullScreen);
    click({60, 886});
    EXPECT_FALSE(finder.find(101)->fullScreen);
    click({140, 686});
    EXPECT_TRUE(finder.find(101)->minimized);
    finder.restore(101);
    doubleClick({600, 686});
    EXPECT_EQ(machine.windows.find(101)->frame, CGRectMake(0, 0, 1440, 876));
    doubleClick({600, 862});
    EXPECT_EQ(machine.windows.find(101)->frame, CGRectMake(100, 200, 800, 500));
}

TEST_F(UsingWindows, IsResizedAtAllItsEdges) {
    using desk::CursorShape;
    const struct {
        const char* edge;
        CGPoint from;
        CGPoint by;
        CGRect frame;
        CursorShape cursor;
    } cases[] = {
        {"left", {101, 400}, {-50, 9}, CGRectMake(50, 200, 850, 500), CursorShape::resizeLeftRight},
        {"right", {899, 400}, {50, 9}, CGRectMake(100, 200, 850, 500), CursorShape::resizeLeftRight},
        {"bottom", {400, 200}, {9, -60}, CGRectMake(100, 140, 800, 560), CursorShape::resizeUpDown},
        {"top", {400, 699}, {9, 60}, CGRectMake(100, 200, 800, 560), CursorShape::resizeUpDown},
        {"bottom left", {101, 209}, {30, 40}, CGRectMake(130, 240, 770, 460), CursorShape::resizeNorthEastSouthWest},
        {"bottom right", {890, 201}, {30, 40}, CGRectMake(100, 240, 830, 460), CursorShape::resizeNorthWestSouthEast},
        {"top left", {109, 699}, {30, 40}, CGRectMake(130, 200, 770, 540), CursorShape::resizeNorthWestSouthEast},
        {"top right", {899, 690}, {-30, 40}, CGRectMake(100, 200, 770, 540), CursorShape::resizeNorthEastSouthWest},
        {"no smaller than useful",
         {101, 699},
         {2000, -2000},
         CGRectMake(580, 200, 320, 200),
         CursorShape::resizeNorthWestSouthEast},
        {"title bar", {400, 690}, {5, 6}, CGRectMake(105, 206, 800, 500), CursorShape::arrow},
        {"inside", {400, 400}, {50, 60}, CGRectMake(100, 200, 800, 500), CursorShape::arrow},
    };
    for (const auto& each : cases) {
        finder.setFrame(101, CGRectMake(100, 200, 800, 500));
        EXPECT_EQ(input.cursorAt(each.from), each.cursor) << each.edge;
        desk.drag(each.from, {each.from.x + each.by.x, each.from.y + each.by.y});
        EXPECT_EQ(machine.windows.find(101)->frame, each.frame) << each.edge;
    }
}

TEST_F(UsingWindows, SpacesLieSideBySideWithFullScreenWindowsBesideTheirDesktop) {
    finder.setFullScreen(101, true);
    const int own = machine.windows.currentSpace();
    std::vector<int> visited;
    for (const char* key : {"ctrl+right", "ctrl+left", "ctrl+left", "ctrl+left", "ctrl+4", "ctrl+right", "ctrl+2"}) {
        desk.key(key);
        visited.push_back(machine.windows.currentSpace());
    }
    EXPECT_EQ(visited, (std::vector<int>{2, own, 1, 1, 4, 4, 2}));
}

// One screen with a menu bar and a Dock.
class UsingMenus : public UsingFinder {
protected:
    UsingMenus() { machine.displays.set({{CGRectMake(0, 0, 1440, 900), 60, 24, 70}}); }

    CGPoint title(const std::string& text) {
        const views::LaidOutView bar = machine.menuBar.shown(CGRectMake(0, 876, 1440, 24));
        const auto titles = desk::menuBarMenus(machine, *machine.processes.frontmost());
        for (std::size_t i = 0; i < titles.size(); ++i)
            if (const auto box = bar.frameOf(std::to_string(i)); titles[i] == text && box)
                return {box->midX(), 900 - box->midY()};
        ADD_FAILURE() << "no menu " << text;
        return {};
    }
    std::string openMenu() {
        std::string titles;
        if (machine.menus.menu() == nullptr) return titles;
        for (const platform::MenuItem& item : machine.menus.menu()->items())
            titles += (item.isSeparator ? "-" : item.enabled ? item.title : "(" + item.title + ")") + " ";
        return titles;
    }
    CGPoint item(const std::string& text) {
        const auto& items = machine.menus.menu()->items();
        for (std::size_t i = 0; i < items.size(); ++i)
            if (items[i].title == text) {
                const CGRect frame = machine.menus.menu()->frameOf(i);
                return {frame.midX(), frame.midY()};
            }
        ADD_FAILURE() << "no item " << text;
        return {};
    }
    CGPoint dockIcon(const std::string& name) {
        const auto items = machine.dock.items();
        const views::LaidOutView dock = machine.dock.shown({1440, 70});
        for (std::size_t i = 0; i < items.size(); ++i)
            if (const auto icon = dock.frameOf(std::to_string(i)); items[i].name == name)
                return {icon->midX(), 70 - icon->midY()};
        ADD_FAILURE() << "nothing in the Dock is called " << name;
        return {};
    }
    std::string dock() {
        std::string names;
        for (const desk::DockItem& item : machine.dock.items())
            names += item.name + (item.isRunning ? "* " : item.window != 0 ? "_ " : " ");
        return names;
    }
    std::string frontmost() { return machine.processes.frontmost()->name; }
};

TEST_F(UsingMenus, OpenOnAClickFollowTheMouseAndAct) {
    click(title("File"));
    EXPECT_EQ(openMenu(), "New Finder Window (Open) Close Window - Get Info ");
    desk.moveTo(title("Go"));
    EXPECT_EQ(openMenu().substr(0, 42), "(Back) (Forward) Enclosing Folder - Docume");
    click(item("Enclosing Folder"));
    EXPECT_EQ(shown(), "/Users/ana/Work");
    EXPECT_EQ(openMenu(), "");

    // Press, drag, release.
    desk.drag(title("Window"), title("Go"));
    EXPECT_EQ(openMenu().substr(0, 6), "Back (");
    click(title("Go"));
    EXPECT_EQ(openMenu(), "");
    click({700, 890});
    finder.close(101);
    click(title("Window"));
    EXPECT_EQ(openMenu(), "(Minimise) (Zoom) (Cycle Through Windows) ");
}

TEST_F(UsingMenus, TheDockSwitchesStartsAndRestores) {
    EXPECT_EQ(dock(), "Finder* Safari Terminal TextEdit ");
    machine.disk.makeFolder("/Applications/Visual Studio Code.app");
    click(dockIcon("Terminal"));
    click(dockIcon("Visual Studio Code"));
    machine.launchServices.startOtherProcess("org.example.Other");
    EXPECT_EQ(dock(), "Finder* Safari Terminal* Visual Studio Code* Other* ");
    EXPECT_EQ(frontmost(), "Visual Studio Code");
    click(dockIcon("Other"));
    EXPECT_EQ(frontmost(), "Other");
    click(dockIcon("Finder"));
    EXPECT_EQ(frontmost(), "Finder");
    EXPECT_EQ(kit::stacking(machine).front(), 101);

    keys({"cmd+m"});
    EXPECT_EQ(dock(), "Finder* Safari Terminal* Visual Studio Code* Other* One_ ");
    desk.drag(dockIcon("One"), dockIcon("Terminal"));
    EXPECT_TRUE(finder.find(101)->minimized) << "released over another icon";
    click(dockIcon("Terminal"));
    click(dockIcon("One"));
    EXPECT_FALSE(finder.find(101)->minimized);
    EXPECT_EQ(kit::stacking(machine).front(), 101);
    EXPECT_EQ(frontmost(), "Finder");
    finder.setSpace(101, 3);
    click(dockIcon("Terminal"));
    click(dockIcon("Finder"));
    EXPECT_EQ(machine.windows.currentSpace(), 3);
    finder.close(101);
    click(dockIcon("Finder"));
    EXPECT_EQ(shown(102), "/Users/ana");
    finder.quit();
    click(dockIcon("Finder"));
    EXPECT_EQ(frontmost(), "Finder");
    EXPECT_EQ(shown(103), "/Users/ana");
}

TEST_F(UsingMenus, AnotherApplicationHasAWindowAgainAndQuits) {
    click(dockIcon("Terminal"));
    keys({"cmd+w"});
    EXPECT_EQ(frontmost(), "Terminal");
    click(dockIcon("Terminal"));
    EXPECT_NE(kit::stacking(machine).front(), 101) << "it has a window again";
    click(title("Terminal"));
    click(item("Quit Terminal"));
    EXPECT_EQ(frontmost(), "Finder");
    EXPECT_EQ(kit::stacking(machine), std::vector<std::int64_t>{101});
    EXPECT_EQ(dock(), "Finder* Safari Terminal TextEdit ");
}

}  // namespace
