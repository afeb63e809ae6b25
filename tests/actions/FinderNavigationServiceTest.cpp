#include "actions/FinderNavigationService.h"

#include <gtest/gtest.h>

#include "tests/actions/ActionsPlatform.h"

namespace brindle {
namespace {

using platform::FileKind;

class FinderNavigationServiceTest : public testing::Test {
protected:
    // The script that was sent, or what the bar would have shown.
    template <typename Navigate>
    std::string outcome(Navigate navigate) {
        fake.scripts.clear();
        try {
            navigate();
        } catch (const FinderNavigationError& error) {
            EXPECT_EQ(fake.scripts.size(), error.kind() == FinderNavigationError::Case::appleScriptFailed ? 1u : 0u);
            return "shows: " + error.description();
        }
        return fake.scripts.size() == 1 ? fake.scripts.front() : "no script";
    }
    std::string navigating(const std::string& path) {
        return outcome([&] { service.navigateFrontWindow(path); });
    }
    std::string openingWindow(const std::string& path) {
        return outcome([&] { service.openNewWindow(path); });
    }

    kit::ActionsPlatform fake;
    FinderNavigationService service{fake.platform};
};

TEST_F(FinderNavigationServiceTest, ShowsAFolderInTheFrontWindow) {
    fake.disk["/Volumes/Daten/Bücher neu"] = FileKind::directory;
    const std::string script = R"(tell application "Finder"
    activate
    if (count of Finder windows) is 0 then
        make new Finder window to POSIX file "/Volumes/Daten/Bücher neu"
    else
        set target of front Finder window to POSIX file "/Volumes/Daten/Bücher neu"
    end if
end tell)";
    EXPECT_EQ(navigating("/Volumes/Daten/Bücher neu"), script);
    EXPECT_EQ(navigating("/Volumes/Daten/Bücher neu/"), script);
    EXPECT_EQ(navigating("/Volumes/./Audio/../Daten/Bücher neu"), script);
}

TEST_F(FinderNavigationServiceTest, ShowsAFileInItsFolderAndSelectsIt) {
    fake.disk["/Users/ana/Notes.txt"] = FileKind::file;
    EXPECT_EQ(navigating("~/Notes.txt"), R"(tell application "Finder"
    activate
    if (count of Finder windows) is 0 then
        make new Finder window to POSIX file "/Users/ana"
    end if
    set target of front Finder window to POSIX file "/Users/ana"
    delay 0.05
    select POSIX file "/Users/ana/Notes.txt"
end tell)");

    fake.disk["/swap"] = FileKind::file;
    EXPECT_NE(navigating("/swap").find("set target of front Finder window to POSIX file \"/\"\n"), std::string::npos);
}

TEST_F(FinderNavigationServiceTest, OpensANewWindow) {
    fake.disk["/Users/ana"] = FileKind::directory;
    EXPECT_EQ(openingWindow("/Users/ana/"), R"(tell application "Finder"
    activate
    make new Finder window to POSIX file "/Users/ana"
end tell)");
}

// A name that could leave its quotes would be run by Finder as a script.
TEST_F(FinderNavigationServiceTest, KeepsEveryNameInsideItsQuotes) {
    struct Case {
        const char* name;
        const char* inScript;
    };
    for (const Case& each : {
             Case{R"(a"b)", R"(a\"b)"},
             Case{R"(a\b)", R"(a\\b)"},
             Case{R"(a\"b)", R"(a\\\"b)"},
             Case{R"(a\)", R"(a\\)"},
             Case{R"(" & (do shell script "x") & ")", R"(\" & (do shell script \"x\") & \")"},
             Case{"a\nb%20c ", "a\nb%20c "},
         }) {
        fake.disk = {{std::string("/") + each.name, FileKind::directory}};
        EXPECT_EQ(
            openingWindow(std::string("/") + each.name),
            std::string("tell application \"Finder\"\n    activate\n    make new Finder window to POSIX file \"/") +
                each.inScript + "\"\nend tell");
    }
}

TEST_F(FinderNavigationServiceTest, StandardizesWhatIsTyped) {
    fake.disk = {{"/", FileKind::directory},
                 {"/Users/ana", FileKind::directory},
                 {"/lost here", FileKind::directory},
                 {"/lost here/sub", FileKind::directory},
                 {"/lost here/~other", FileKind::directory},
                 {"/lost here/ lead", FileKind::directory}};
    struct Case {
        const char* typed;
        const char* path;
    };
    for (const Case& each : {Case{"~", "/Users/ana"}, Case{"~/", "/Users/ana"}, Case{"~ana/", "/Users/ana"},
                             Case{"sub/", "/lost here/sub"}, Case{"", "/lost here"}, Case{"/..", "/"},
                             Case{"~other", "/lost here/~other"}, Case{" lead", "/lost here/ lead"}})
        EXPECT_EQ(service.normalizedDirectoryPath(each.typed), each.path) << '"' << each.typed << '"';
}

TEST_F(FinderNavigationServiceTest, SaysWhyItCannotShowAPathWithoutAskingFinder) {
    fake.disk["/Users/ana/Notes.txt"] = FileKind::file;
    EXPECT_EQ(navigating("/gone"), "shows: The folder could not be found.");
    EXPECT_EQ(openingWindow("/gone"), "shows: The folder could not be found.");
    EXPECT_EQ(openingWindow("/Users/ana/Notes.txt"), "shows: The entered path is not a folder.");
    EXPECT_EQ(navigating("/Users/ana/Notes.txt "), "shows: The folder could not be found.");
}

TEST_F(FinderNavigationServiceTest, PassesOnWhatFinderSays) {
    fake.disk["/"] = FileKind::directory;
    struct Case {
        platform::Dictionary error;
        const char* shown;
    };
    for (const Case& each : {Case{{{"NSAppleScriptErrorMessage", "Not authorised."}}, "shows: Not authorised."},
                             Case{{{"NSAppleScriptErrorMessage", 7}}, "shows: Finder could not be controlled."},
                             Case{{{"NSAppleScriptErrorNumber", -1743}}, "shows: Finder could not be controlled."},
                             Case{{}, "shows: Finder could not be controlled."}}) {
        fake.scriptError = each.error;
        EXPECT_EQ(navigating("/"), each.shown);
    }
    fake.refusesScripts = true;
    EXPECT_EQ(navigating("/"), "no script");
}

}  // namespace
}  // namespace brindle
