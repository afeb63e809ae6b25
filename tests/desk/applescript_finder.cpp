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
        Case{"count of Finder windows", "2"}, Case{"count windows", "2"}, Case{"number of Finder windows", "2"},
        Case{"id of Finder window 2", "102"}, Case{"name of last window", "Recents"},
        Case{"name of Finder window id 102", "Recents"}, Case{"id of window \"Recents\"", "102"},
        Case{"(id of every Finder window) as text", "101102"}, Case{"index of Finder window id 102", "2"},
        Case{"item 3 of (bounds of window 1)", "810"}, Case{"front Finder window's name", "ana"},
        Case{"tell front Finder window\nget name\nend tell", "ana"},
        Case{"set w to make new Finder window to home\nid of w", "103"},
        Case{"close every window\ncount of windows", "0"},
        Case{"set target of window 2 to desktop\nPOSIX path of (target of window 2 as alias)", "/Users/ana/Desktop/"},
        Case{"repeat with w in Finder windows\nif name of w is \"Recents\" then return id of w\nend repeat", "102"},
        Case{"exists Finder window 3", "false"}, Case{"exists Finder window id 101", "true"},
        Case{"not (Finder window 2 exists)", "false"},
        Case{"name of Finder window 3", "-1728 Finder got an error: Can’t get Finder window 3."},
        Case{"id of Finder window id 9", "-1728 Finder got an error: Can’t get Finder window id 9."},
        Case{"set name of window 1 to \"x\"", "-10006 Can’t set name of Finder window id 101 to \"x\"."},
        Case{"set w to window 1\nclose w\nname of w", "-1728 Finder got an error: Can’t get Finder window id 101."},
        Case{"target of window 2 as alias",
             "-1700 Finder got an error: Can’t make target of Finder window id 102 into type alias."},
        Case{"window 1", "(nothing)"},
        Case{"make new folder at home", "-2710 Finder got an error: Can’t make class folder."}));

INSTANTIATE_TEST_SUITE_P(
    Files, FinderTermsTest,
    testing::Values(
        Case{"POSIX path of (selection as alias)", "/Users/ana/note.txt"},
        Case{"POSIX path of (POSIX file \"/Users/ana\" as alias)", "/Users/ana/"},
        Case{"POSIX path of POSIX file \"/x/y\"", "/x/y"}, Case{"home as text", "Macintosh HD:Users:ana:"},
        Case{"POSIX path of (alias \"Macintosh HD:Users:ana:note.txt\")", "/Users/ana/note.txt"},
        Case{"POSIX path of (folder \"Fotos\" of home as alias)", "/Users/ana/Fotos/"},
        Case{"name of folder \"Fotos\" of folder \"ana\" of folder \"Users\" of startup disk", "Fotos"},
        Case{"exists file \"todo.txt\" of desktop", "true"}, Case{"exists folder \"todo.txt\" of desktop", "false"},
        Case{"exists POSIX file \"/nowhere\"", "false"},
        Case{"name of container of file \"todo.txt\" of desktop", "Desktop"},
        Case{"name of (item 1 of selection)", "note.txt"},
        Case{"POSIX path of home",
             "-1728 Finder got an error: Can’t get POSIX path of folder \"ana\" of folder \"Users\" of startup disk."},
        Case{
            "folder \"x\" of home",
            "-1728 Finder got an error: Can’t get folder \"x\" of folder \"ana\" of folder \"Users\" of startup disk."},
        Case{"POSIX file \"/nowhere\" as alias", "-43 File file \"Macintosh HD:nowhere\" wasn’t found."},
        Case{"5 as alias", "-1700 Can’t make 5 into type alias."},
        Case{"set target of window 1 to POSIX file \"/nowhere\"",
             "-10006 Finder got an error: Can’t set target of Finder window id 101 to file \"Macintosh HD:nowhere\"."},
        Case{"foo()", "-1708 Finder got an error: Can’t continue foo."}));

TEST(FinderScope, FinderWordsAreOrdinaryNamesOutsideOfIt) {
    FakeFinder finder;
    finder.addWindow(101, "ana", "/Users/ana");
    EXPECT_EQ(answer("set selection to 1\nset name to 2\nset window to 3\nselection + name + window", finder), "6");
    EXPECT_EQ(answer("tell application \"Finder\" to set n to name of front window\nn", finder), "ana");
    EXPECT_EQ(answer("name of window 1 of application \"Finder\"", finder), "ana");
    EXPECT_EQ(answer("tell application \"Foo\" to activate", finder), "-1728 Can’t get application \"Foo\".");
    EXPECT_EQ(answer("on f()\nreturn 5\nend f\ntell application \"Finder\" to my f()", finder), "5");
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
    EXPECT_EQ(answer(script, finder), "-1728 Can’t get item 1 of {}.");
    EXPECT_EQ(answer("try\ndo shell script \"false\"\non error m number n\nm & n\nend try", finder), "no1");
}

}  // namespace
}  // namespace desk::applescript
