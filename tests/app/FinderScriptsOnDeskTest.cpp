// The system's own scripts against real Finder windows: what the path provider and the navigation service get and do on a desk.
#include <gtest/gtest.h>

#include "actions/FinderNavigationService.h"
#include "tests/desk/Probe.h"
#include "tracking/FinderPathProvider.h"

namespace brindle {

namespace {

using Selection = std::optional<std::string>;

class FinderScriptsOnDesk : public testing::Test {
protected:
    kit::Desk desk;
    desk::Finder& finder = desk.machine.finder;
    kit::Probe& probe = kit::launchProbe(desk);
    FinderPathProvider provider{probe.platform};
    FinderNavigationService navigation{probe.platform};
};

}  // namespace

TEST_F(FinderScriptsOnDesk, EveryWindowsPathAndNameComeByteForByte) {
    const std::string names[] = {
        "two  spaces ",     "100%", "quo\"te'\\",          "line\nfeed\r",      "cafe\u0301", "caf\u00e9",
        "\u202e\u05d0.txt", "a:b",  std::string(255, 'n'), "👩‍👩‍👧"};
    std::vector<FinderPathSnapshot> expected;
    for (const std::string& name : names) {
        desk.machine.disk.makeFolder("/tmp/" + name);
        const std::int64_t number = finder.open("/tmp/" + name).value();
        expected.insert(expected.begin(), {"snapshot-" + std::to_string(number), number, "/tmp/" + name + "/", name,
                                           std::nullopt, false});
    }
    expected.front().selectionWasQueried = true;
    EXPECT_EQ(provider.fetchWindowPaths(), expected);
}

TEST_F(FinderScriptsOnDesk, OneWindowsTroubleIsItsOwn) {
    EXPECT_EQ(provider.fetchWindowPaths(), std::vector<FinderPathSnapshot>{});
    EXPECT_EQ(provider.fetchFrontWindowSelection(), std::nullopt);

    desk.tree({"/tmp/gone/", "/tmp/broken\x1ename/", "/tmp/kept/file"});
    finder.open("/tmp/gone");
    finder.open("/tmp/broken\x1ename");
    finder.openVirtual("Recents");
    finder.openInfoPanel("/tmp/kept");
    finder.open("/tmp/kept");
    finder.select(105, {"/tmp/kept/file"});
    finder.minimize(103);
    desk.machine.disk.remove("/tmp/gone");
    const std::vector<FinderPathSnapshot> expected{{"snapshot-105", 105, "/tmp/kept/", "kept", "/tmp/kept/file", true},
                                                   {"snapshot-101", 101, "", "gone", std::nullopt, false},
                                                   {"snapshot-103", 103, "", "Recents", std::nullopt, false}};
    EXPECT_EQ(provider.fetchWindowPaths(), expected);
    EXPECT_EQ(provider.fetchFrontWindowSelection(), (FinderSelectionSnapshot{105, "/tmp/kept/file"}));
    finder.select(105, {"/tmp/kept/file", "/tmp/kept"});
    EXPECT_EQ(provider.fetchFrontWindowSelection(), (FinderSelectionSnapshot{105, std::nullopt}));
}

TEST_F(FinderScriptsOnDesk, NavigationShowsFoldersAndRevealsFiles) {
    desk.tree({"/tmp/a \"b\" \\c/file.txt"});
    desk.machine.launchServices.startOtherProcess("org.example.Editor");
    desk.machine.activation.activate("org.example.Editor");
    navigation.navigateFrontWindow("/tmp/a \"b\" \\c/");
    EXPECT_EQ(finder.windows().size(), 1u);
    EXPECT_EQ(finder.front()->target, "/tmp/a \"b\" \\c");
    EXPECT_EQ(desk.machine.processes.frontmost()->bundleIdentifier, "com.apple.finder");

    navigation.navigateFrontWindow("~");
    EXPECT_EQ(finder.front()->target, "/Users/ana");
    navigation.navigateFrontWindow("/tmp/a \"b\" \\c/file.txt");
    EXPECT_EQ(desk.machine.secondsSinceStart(), 0.05);
    EXPECT_EQ(finder.front()->target, "/tmp/a \"b\" \\c");
    EXPECT_EQ(finder.front()->selection, std::vector<std::string>{"/tmp/a \"b\" \\c/file.txt"});
    navigation.openNewWindow("/");
    EXPECT_EQ(finder.windows().size(), 2u);
    EXPECT_EQ(finder.front()->target, "/");

    finder.quit();
    try {
        navigation.navigateFrontWindow("/tmp");
        ADD_FAILURE() << "nothing was thrown";
    } catch (const FinderNavigationError& error) {
        EXPECT_STREQ(error.what(), "Finder got an error: Application isn’t running.");
    }
}

}  // namespace brindle
