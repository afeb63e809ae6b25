#include <gtest/gtest.h>

#include "pathbar/BreadcrumbModel.h"
#include "tests/kit/FixedText.h"

namespace {

using namespace brindle;

FinderWindowState window(std::string path, std::optional<std::string> selected = std::nullopt) {
    FinderWindowState state;
    state.path = std::move(path);
    state.displayName = "Recents";
    state.selectedFilePath = std::move(selected);
    return state;
}

TEST(BreadcrumbItems, RunFromTheRootToTheSelectedItemOrTheFolder) {
    const std::vector<BreadcrumbItem> home{{"0-root", "Macintosh HD", "/", false},
                                           {"1-Users", "Users", "/Users", false},
                                           {"2-ana", "ana", "/Users/ana", true}};
    const std::vector<BreadcrumbItem> file{
        {"0-root", "Macintosh HD", "/", false},
        {"1-Users", "Users", "/Users", false},
        {"2-ana", "ana", "/Users/ana", false},
        {"3-100% \"a\"\n.txt", "100% \"a\"\n.txt", "/Users/ana/100% \"a\"\n.txt", true}};
    const std::vector<BreadcrumbItem> root{{"0-root", "Macintosh HD", "/", true}};
    const std::vector<BreadcrumbItem> recents{{"virtual-location", "Recents", "", true}};
    const std::vector<BreadcrumbItem> twice{
        {"0-root", "Macintosh HD", "/", false}, {"1-a", "a", "/a", false}, {"2-a", "a", "/a/a", true}};
    struct Row {
        const char* name;
        FinderWindowState state;
        const std::vector<BreadcrumbItem>& items;
    };
    const Row rows[] = {{"a folder", window("/Users/ana"), home},
                        {"a trailing slash", window("/Users/ana/"), home},
                        {"doubled slashes", window("//Users//ana"), home},
                        {"a selected item", window("/Users/ana", "/Users/ana/100% \"a\"\n.txt"), file},
                        {"the root", window("/"), root},
                        {"no path, whatever is selected", window("", "/Users/ana"), recents},
                        {"equal names", window("/a/a/"), twice}};
    for (const Row& row : rows) EXPECT_EQ(breadcrumbItems(row.state), row.items) << row.name;
}

std::vector<BreadcrumbItem> items(std::initializer_list<std::string> titles) {
    std::vector<BreadcrumbItem> list;
    for (const auto& title : titles) list.push_back({title, title, "/" + title, false});
    if (!list.empty()) list.back().isLast = true;
    return list;
}

TEST(Fitting, FullWidthRoundsEachTitleUpByItself) {
    kit::FixedText text;
    text.widths = {{"last", 99.2}, {"x", 10.5}, {"y", 10.5}};
    EXPECT_EQ(fullWidth(text, {}), 0);
    auto one = items({"last"});
    EXPECT_EQ(fullWidth(text, one), 106);
    one.front().isLast = false;
    EXPECT_EQ(fullWidth(text, one), 128);
    EXPECT_EQ(fullWidth(text, items({"x", "y"})), 11 + 6 + 22 + 11 + 6);
}

TEST(Fitting, FoldsTheRootEndAwayUntilTheRestFitsBesideTheEllipsis) {
    kit::FixedText text;
    // Each item is its width more 6, and 22 more if it isn't the last: 78, 128, 95.
    text.widths = {{"root", 50}, {"middle", 100}, {"last", 89}};
    const auto list = items({"root", "middle", "last"});
    struct Row {
        double width;
        std::size_t hidden;
    };
    const Row rows[] = {{301, 0},                        // exactly all
                        {300, 1},                        // a point short of all; 128 + 95 + 40 = 263 fits
                        {263, 1}, {262.9, 2}, {135, 2},  // 95 + 40
                        {134, 2},                        // the last stays though it doesn't fit
                        {0, 2}};
    for (const Row& row : rows) {
        const VisibleItems visible = visibleItems(text, list, row.width);
        EXPECT_EQ(visible.hiddenItems.size(), row.hidden) << row.width;
        EXPECT_EQ(visible.items.data(), list.data() + row.hidden);
        EXPECT_EQ(visible.items.size(), 3 - row.hidden);
    }
    const auto single = items({"last"});
    EXPECT_TRUE(visibleItems(text, single, 0).hiddenItems.empty());
}

}  // namespace
