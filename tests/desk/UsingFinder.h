// A machine on which a person uses Finder with mouse and keyboard, for tests: one window with a few rows, clicks with modifiers, keys in a row.
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "desk/finder/FinderBrowser.h"
#include "tests/desk/FinderJournal.h"
#include "tests/desk/Probe.h"

namespace kit {

// Window 101 stands at 100 200 800 500 and shows "a 1", "a 2", "a 10", "b.txt", "Folder"; the sidebar ends at x 268, the first row begins at y 648, and each is 24 high.
class UsingFinder : public testing::Test {
protected:
    const std::string work = "/Users/ana/Work/One";

    UsingFinder() {
        desk.tree({work + "/a 10", work + "/Folder/inner.txt", work + "/a 2", work + "/b.txt", work + "/a 1",
                   work + "/.hidden", "/Users/ana/Work/Two/"});
        finder.open(work, platform::CGRectMake(100, 200, 800, 500));
        journal.take();
    }

    static platform::CGPoint row(int index) { return {500, 636.0 - 24 * index}; }
    void click(const platform::CGPoint& point, std::uint64_t modifiers = 0, int count = 1) {
        for (int i = 1; i <= count; ++i) {
            desk.play([&] { input.mouseDown(point, desk::MouseButton::left, i, modifiers); });
            desk.release(point);
        }
    }
    void doubleClick(const platform::CGPoint& point) { click(point, 0, 2); }
    void keys(std::initializer_list<const char*> combinations) {
        for (const char* combination : combinations) desk.key(combination);
    }
    void manyFiles(int count) {
        for (int i = 0; i < count; ++i) machine.disk.makeFile(work + "/n" + std::to_string(i), "");
    }
    // The names of what is selected in the window.
    std::vector<std::string> selected(std::int64_t number = 101) {
        std::vector<std::string> names;
        for (const std::string& path : finder.find(number)->selection)
            names.push_back(path.substr(path.rfind('/') + 1));
        return names;
    }
    std::string shown(std::int64_t number = 101) { return finder.find(number)->target.value_or("nowhere"); }
    double scrolled() { return finder.browser().layout(*finder.find(101)).scrolled(); }

    Desk desk;
    desk::Machine& machine = desk.machine;
    desk::Input& input = desk.machine.input;
    desk::Finder& finder = desk.machine.finder;
    FinderJournal journal{desk.machine};
};

}  // namespace kit
