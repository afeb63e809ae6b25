// What the menu behind a crumb lists, from a real disk and in the locale's order.
#include <gtest/gtest.h>

#include "desk/finder/FinderBrowser.h"
#include "pathbar/ChildFolders.h"
#include "tests/desk/Probe.h"

namespace {

using brindle::BreadcrumbItem;
using Names = std::vector<std::string>;

class ChildFoldersTest : public testing::Test {
protected:
    kit::Desk desk;
    kit::Probe& probe = kit::launchProbe(desk);

    std::vector<BreadcrumbItem> of(const std::string& path) {
        return brindle::childFolders(probe.platform, {path, "", path, false});
    }
    Names titles(const std::string& path) {
        Names names;
        for (const BreadcrumbItem& item : of(path)) names.push_back(item.title);
        return names;
    }
};

TEST_F(ChildFoldersTest, FoldersAloneInNaturalOrder) {
    desk.tree({"/Users/ana/W/a10/", "/Users/ana/W/B/", "/Users/ana/W/a2/", "/Users/ana/W/.hidden/", "/Users/ana/W/file",
               "/Users/ana/W/Tool.app/Contents/", "/Users/ana/W/Éa/", "/Users/ana/W/z/"});
    desk.machine.disk.makeSymbolicLink("/Users/ana/W/link", "a2");
    EXPECT_EQ(titles("/Users/ana/W"), (Names{"a2", "a10", "B", "Éa", "z"}));
    const BreadcrumbItem first{"child-/Users/ana/W/a2", "a2", "/Users/ana/W/a2", false};
    EXPECT_EQ(of("/Users/ana/W").front(), first);
    EXPECT_EQ(of("/Users/ana/W/").front(), first);
}

TEST_F(ChildFoldersTest, TheRootsChildrenHaveOneSlash) {
    const auto items = of("/");
    ASSERT_FALSE(items.empty());
    EXPECT_EQ(items.front().path, "/Applications");
}

TEST_F(ChildFoldersTest, WhatCannotBeListedHasNone) {
    desk.tree({"/Users/ana/Locked/Below/", "/Users/ana/Empty/", "/Users/ana/file"});
    desk.machine.disk.setUnreadable("/Users/ana/Locked");
    for (const char* path : {"", "/Users/ana/Locked", "/Users/ana/Empty", "/Users/ana/file", "/Users/ana/gone"})
        EXPECT_EQ(titles(path), Names{}) << path;
}

// More of them are sorted by keys; the order is the same.
TEST_F(ChildFoldersTest, ManyFoldersAreInTheSameOrderAndThereOnce) {
    Names expected;
    for (int number = 0; number < 1000; ++number) expected.push_back("Folder " + std::to_string(number));
    for (std::size_t index = 0; index < expected.size(); ++index)
        desk.machine.disk.makeFolder("/Users/ana/Many/" + expected[index * 397 % expected.size()]);
    EXPECT_EQ(titles("/Users/ana/Many"), expected);
    desk.tree({"/Users/ana/Many/folder/", "/Users/ana/Many/Éclair/", "/Users/ana/Many/Zoo/", "/Users/ana/Many/a/"});
    expected.insert(expected.begin(), {"a", "Éclair", "folder"});
    expected.emplace_back("Zoo");
    EXPECT_EQ(titles("/Users/ana/Many"), expected);
}

// Few are compared directly, many by keys, and Finder lists the same folders.
TEST_F(ChildFoldersTest, NamesThatTheLocaleHoldsEqualGoByTheirBytes) {
    const Names equal{"a0002", "a002", "a02", "a2", "e\u0301", "\u00e9"};
    for (const char* name : {"a2", "a0002", "\u00e9", "a02", "e\u0301", "a002"})
        desk.machine.disk.makeFolder("/Users/ana/Equal/" + std::string(name));
    desk.machine.finder.open("/Users/ana/Equal");
    const auto listed = [&] {
        Names names;
        const auto& window = *desk.machine.finder.find(101);
        for (const auto& entry : desk.machine.finder.browser().listing(window).entries()) names.push_back(entry.name);
        return names;
    };
    EXPECT_EQ(titles("/Users/ana/Equal"), equal);
    EXPECT_EQ(listed(), equal);
    for (int number = 0; number < 300; ++number)
        desk.machine.disk.makeFolder("/Users/ana/Equal/z" + std::to_string(number));
    const Names many = titles("/Users/ana/Equal");
    EXPECT_EQ(Names(many.begin(), many.begin() + 6), equal);
    EXPECT_EQ(listed(), many);
}

}  // namespace
