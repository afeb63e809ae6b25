#include "tests/desk/FakeFinder.h"

#include <gtest/gtest.h>

namespace desk::applescript {
namespace {

std::string inFinder(const std::string& lines) {
    return "tell application \"Finder\"\n" + lines + "\nend tell";
}

struct Case {
    std::string lines;
    std::string expected;
};

class FinderTermsTest : public testing::TestWithParam<Case> {};

TEST_P(FinderTermsTest, AnswersAsFinderDoes) {
    FakeFinder finder;
    finder.addWindow(101, "ana", "/Users/ana");
    finder.addWindow(102, "Recents", std::nullopt);
    finder.selected = {"/Users/ana/note.txt"};
    EXPECT_EQ(answer(inFinder(GetParam().lines), finder), GetParam().expected) << GetParam().lines;
}

INSTANTIATE_TEST_SUITE_P(
    Windows, FinderTermsTest,
    testing::Values(
        Case{"count of Finder windows", "2"}, Case{"count every Finder window", "2"},
        Case{"id of Finder window 2", "102"}, Case{"name of Finder window id 102", "Recents"},
        Case{"set all to every Finder window\nset i to 2\nid of item i of all", "102"},
        Case{"tell front Finder window\nname\nend tell", "ana"},
        Case{"set w to make new Finder window to POSIX file \"/Users\"\nid of w", "103"},
        Case{"set target of Finder window 2 to POSIX file \"/Users/ana/Desktop/\"\nPOSIX path of (target of Finder "
             "window 2 as alias)",
             "/Users/ana/Desktop/"},
        Case{"name of Finder window 3", "-1728 Finder got an error: Can’t get Finder window 3."},
        Case{"id of Finder window id 9", "-1728 Finder got an error: Can’t get Finder window id 9."},
        Case{"set name of Finder window 1 to \"x\"", "-10006 Can’t set name of Finder window id 101 to \"x\"."},
        Case{"target of Finder window 2 as alias",
             "-1700 Finder got an error: Can’t make target of Finder window id 102 into type alias."},
        Case{"make new Finder window to POSIX file \"/Users/ana/note.txt\"",
             "-10000 Finder got an error: AppleEvent handler failed."},
        Case{"Finder window 1", "(nothing)"}));

INSTANTIATE_TEST_SUITE_P(
    Files, FinderTermsTest,
    testing::Values(
        Case{"POSIX path of (selection as alias)", "/Users/ana/note.txt"},
        Case{"POSIX path of (item 1 of selection as alias)", "/Users/ana/note.txt"},
        Case{"POSIX path of (POSIX file \"/Users/ana\" as alias)", "/Users/ana/"},
        Case{"POSIX path of POSIX file \"/x/y\"", "/x/y"},
        Case{"POSIX path of (item 1 of selection)",
             "-1728 Finder got an error: Can’t get POSIX path of item \"note.txt\" of folder \"ana\" of folder "
             "\"Users\" of startup disk."},
        Case{"POSIX file \"/nowhere\" as alias", "-43 File file \"Macintosh HD:nowhere\" wasn’t found."},
        Case{"5 as alias", "-1700 Can’t make 5 into type alias."},
        Case{
            "set target of Finder window 1 to POSIX file \"/nowhere\"",
            "-10006 Finder got an error: Can’t set target of Finder window id 101 to file \"Macintosh HD:nowhere\"."}));

TEST(FinderScope, FinderWordsAreOrdinaryNamesOutsideOfIt) {
    FakeFinder finder;
    finder.addWindow(101, "ana", "/Users/ana");
    EXPECT_EQ(answer("set selection to 1\nset name to 2\nselection & name & \"\"", finder), "12");
    EXPECT_EQ(answer("tell application \"Finder\" to set n to name of front Finder window\nn", finder), "ana");
    EXPECT_EQ(answer("tell application \"Foo\" to activate", finder), "-1728 Can’t get application \"Foo\".");
}

TEST(Shell, RunsThroughTheHostWithItsArguments) {
    FakeFinder finder;
    finder.shell["/bin/ls 'it'\\''s'"] = "a\nb\n";
    finder.shell["false"] = ScriptError{1, "no"};
    const std::string script =
        "on run argv\n    set folderPath to item 1 of argv\n"
        "    do shell script \"/bin/ls \" & quoted form of folderPath with administrator privileges\nend run";
    EXPECT_EQ(answer(script, finder, {"it's"}), "a\rb");
    EXPECT_EQ(finder.calls, std::vector<std::string>{"sudo /bin/ls 'it'\\''s'"});
    EXPECT_EQ(answer("try\ndo shell script \"false\"\non error m number n\nm & n\nend try", finder), "no1");
}

}  // namespace
}  // namespace desk::applescript
