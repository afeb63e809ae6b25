#include <gtest/gtest.h>

#include "tests/kit/FakePlatform.h"
#include "tracking/CoordinateSpaceConverter.h"
#include "tracking/DebugLog.h"
#include "tracking/FinderWindowState.h"

namespace brindle {
namespace {

using platform::CGRectMake;

TEST(FinderWindowState, FolderNameComesFromThePathBeforeTheName) {
    struct {
        const char* path;
        const char* displayName;
        const char* expected;
    } const rows[] = {{"/Volumes/Data/Reports/", "Other", "Reports"},
                      {"/Volumes/Data/Reports", "Other", "Reports"},
                      {"/", "Macintosh HD", "/"},
                      {"/Users/me/a b%20c/", "x", "a b%20c"},
                      {"", "Recents", "Recents"},
                      {"", "", ""}};
    for (const auto& row : rows) {
        FinderWindowState state;
        state.path = row.path;
        state.displayName = row.displayName;
        EXPECT_EQ(state.folderName(), row.expected) << row.path;
    }
}

TEST(FinderWindowState, AnyDifferenceMakesTwoStatesUnequal) {
    FinderWindowState state{"finder-1", 1, 0, "/a/", "a", std::nullopt, CGRectMake(0, 0, 100, 100), true, false};
    const FinderWindowState same = state;
    EXPECT_EQ(state, same);
    const std::function<void(FinderWindowState&)> changes[] = {
        [](auto& s) { s.zIndex = 1; },
        [](auto& s) { s.frame.size.width = 100.0001; },
        [](auto& s) { s.selectedFilePath = ""; },
        [](auto& s) { s.isFullScreen = true; },
        [](auto& s) { s.displayName = "A"; },
    };
    for (const auto& change : changes) {
        FinderWindowState other = state;
        change(other);
        EXPECT_NE(state, other) << &change - changes;
    }
}

TEST(CoordinateSpaceConverter, ConvertsAgainstTheScreenAtTheOrigin) {
    const auto screen = [](double x, double y, double width, double height) {
        return platform::NSScreen{CGRectMake(x, y, width, height), CGRectMake(x, y, width, height), 60};
    };
    const auto primary = screen(0, 0, 1920, 1080);
    struct {
        const char* what;
        std::vector<platform::NSScreen> displays;
        double expectedY;
    } const rows[] = {
        {"primary alone", {primary}, 430},
        {"primary second in the list", {screen(0, 1080, 1280, 800), primary}, 430},
        {"first at the origin wins", {primary, screen(0, 0, 1280, 800)}, 430},
        {"none at the origin: the main one", {screen(-100, 0, 1920, 1080), screen(0.5, 20, 1280, 800)}, 170},
        {"no display", {}, 50},
    };
    for (const auto& row : rows) {
        kit::FakePlatform fake;
        fake.displays = row.displays;
        const auto converted = CoordinateSpaceConverter::appKitRect(fake, CGRectMake(100, 50, 800, 600));
        EXPECT_EQ(converted, CGRectMake(100, row.expectedY, 800, 600)) << row.what;
    }
    kit::FakePlatform fake;
    fake.displays = {primary};
    EXPECT_EQ(CoordinateSpaceConverter::appKitRect(fake, CGRectMake(-500.25, -700.75, 400, 300)),
              CGRectMake(-500.25, 1480.75, 400, 300));
}

TEST(DebugLog, AppendsLinesWithTheirTimeAndMakesTheFile) {
    kit::FakePlatform fake;
    fake.time = platform::Date{std::chrono::seconds(1'709'164'799) + std::chrono::milliseconds(999)};
    DebugLog::write(fake.platform, "first");
    fake.time = platform::Date{std::chrono::seconds(1'709'164'800)};
    DebugLog::write(fake.platform, "two\nlines");
    EXPECT_EQ(fake.fileContents["/tmp/Orvane-debug.log"],
              "[2024-02-28T23:59:59Z] first\n[2024-02-29T00:00:00Z] two\nlines\n");
    fake.fileOpensFail = true;
    DebugLog::write(fake.platform, "lost");
    EXPECT_EQ(fake.fileContents["/tmp/Orvane-debug.log"].find("lost"), std::string::npos);
}

}  // namespace
}  // namespace brindle
