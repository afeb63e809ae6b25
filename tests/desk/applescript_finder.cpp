#include "tests/desk/FakeFinder.h"

#include <gtest/gtest.h>

namespace desk::applescript {
namespace {

const std::string windowList = R"(tell application "Finder"
    set fieldSeparator to ASCII character 31
    set recordSeparator to ASCII character 30
    set output to ""
    set finderWindows to every Finder window
    repeat with windowIndex from 1 to count of finderWindows
        set finderWindow to item windowIndex of finderWindows
        set windowID to id of finderWindow
        set windowPath to ""
        set windowName to ""
        set selectedPath to ""
        set selectionQueried to "0"
        try
            set windowPath to POSIX path of (target of finderWindow as alias)
        end try
        try
            set windowName to name of finderWindow
        end try
        if windowIndex is 1 then
            set selectionQueried to "1"
            try
                set selectedItems to selection
                if (count of selectedItems) is 1 then
                    set selectedPath to POSIX path of (item 1 of selectedItems as alias)
                end if
            end try
        end if
        set output to output & windowID & fieldSeparator & windowPath & fieldSeparator & windowName & fieldSeparator & selectedPath & fieldSeparator & selectionQueried & recordSeparator
    end repeat
    return output
end tell)";

const std::string frontSelection = R"(tell application "Finder"
    set fieldSeparator to ASCII character 31
    set finderWindow to front Finder window
    set windowID to id of finderWindow
    set selectedPath to ""
    try
        set selectedItems to selection
        if (count of selectedItems) is 1 then
            set selectedPath to POSIX path of (item 1 of selectedItems as alias)
        end if
    end try
    return (windowID as text) & fieldSeparator & selectedPath
end tell)";

std::string navigation(const std::string& folder, const std::string& file) {
    return "tell application \"Finder\"\n    activate\n    if (count of Finder windows) is 0 then\n"
           "        make new Finder window to POSIX file \"" +
           folder + "\"\n    end if\n    set target of front Finder window to POSIX file \"" + folder +
           "\"\n    delay 0.05\n    select POSIX file \"" + file + "\"\nend tell";
}

std::string inFinder(const std::string& lines) {
    return "tell application \"Finder\"\n" + lines + "\nend tell";
}

std::string replaced(std::string text, const std::string& part, const std::string& by) {
    text.replace(text.find(part), part.size(), by);
    return text;
}

struct WindowList : testing::Test {
    WindowList() {
        finder.addWindow(103, "ana", "/Users/ana");
        finder.addWindow(101, "Recents", std::nullopt);
        finder.addWindow(102, "Macintosh HD", "/");
    }
    FakeFinder finder;
};

TEST_F(WindowList, HasARecordForEachWindowAndTheSelectionOfTheFirst) {
    finder.selected = {"/Users/ana/note.txt"};
    EXPECT_EQ(answer(windowList, finder), "103\x1F/Users/ana/\x1F"
                                          "ana\x1F/Users/ana/note.txt\x1F"
                                          "1\x1E"
                                          "101\x1F\x1FRecents\x1F\x1F"
                                          "0\x1E"
                                          "102\x1F/\x1FMacintosh HD\x1F\x1F"
                                          "0\x1E");
}

TEST_F(WindowList, LeavesTheSelectionEmptyUnlessItIsOneItem) {
    finder.selected = {"/Users/ana/note.txt", "/Users/ana/Fotos"};
    EXPECT_TRUE(answer(windowList, finder)
                    .starts_with("103\x1F/Users/ana/\x1F"
                                 "ana\x1F\x1F"
                                 "1\x1E"));
    finder.selected = {"/Users/ana/gone"};
    EXPECT_TRUE(answer(windowList, finder)
                    .starts_with("103\x1F/Users/ana/\x1F"
                                 "ana\x1F\x1F"
                                 "1\x1E"));
}

TEST_F(WindowList, PassesNamesThroughByteForByte) {
    const std::string odd = "q\"u\\o\nte 👍 e\xCC\x81 \xFF";
    finder.folders.insert("/Users/ana/" + odd);
    finder.openWindows = {};
    finder.addWindow(7, odd, "/Users/ana/" + odd);
    EXPECT_EQ(answer(windowList, finder), "7\x1F/Users/ana/" + odd + "/\x1F" + odd +
                                              "\x1F\x1F"
                                              "1\x1E");
}

TEST_F(WindowList, FollowsEveryChangeOfTheScript) {
    EXPECT_EQ(answer(replaced(windowList, "from 1 to", "from 3 to"), finder), "102\x1F/\x1FMacintosh HD\x1F\x1F"
                                                                              "0\x1E");
    EXPECT_EQ(answer(replaced(windowList, "ASCII character 30", "\";\""), finder).find('\x1E'), std::string::npos);
    EXPECT_EQ(answer(replaced(windowList, "return output", "return count of finderWindows"), finder), "3");
    EXPECT_EQ(answer(replaced(windowList, "every Finder window", "Finder windows whose name is \"ana\""), finder),
              "103\x1F/Users/ana/\x1F"
              "ana\x1F\x1F"
              "1\x1E");
    EXPECT_EQ(answer(replaced(windowList, "        try", "        if true then"), finder),
              "syntax -2741 Expected “end” or “end if” but found “end try”.");
}

TEST_F(WindowList, CostsAHundredStepsForEachWindow) {
    for (int count = 0; count < 197; ++count) {
        finder.addWindow(1000 + count, "window", "/Users/ana/Fotos");
    }
    const auto script = compile(windowList);
    ASSERT_NE(script, nullptr);
    EXPECT_EQ(run(*script, finder, {}, {200 * 100, 100}).error, std::nullopt);
}

TEST_F(WindowList, FailsAsFinderDoesWhenItCannotBeAsked) {
    finder.refused = ScriptError::finderNotRunning();
    EXPECT_EQ(answer(windowList, finder), "-600 Finder got an error: Application isn’t running.");
    EXPECT_EQ(answer("application \"Finder\" is running", finder), "false");
    finder.refused = ScriptError::finderNotAuthorized();
    EXPECT_EQ(answer(frontSelection, finder), "-1743 Not authorized to send Apple events to Finder.");
}

TEST_F(WindowList, FrontSelectionNamesTheFrontWindow) {
    EXPECT_EQ(answer(frontSelection, finder), "103\x1F");
    finder.selected = {"/Users/ana/Fotos"};
    EXPECT_EQ(answer(frontSelection, finder), "103\x1F/Users/ana/Fotos/");
    finder.openWindows.clear();
    EXPECT_EQ(answer(frontSelection, finder), "-1728 Finder got an error: Can’t get Finder window 1.");
}

TEST(Navigation, ShowsTheFolderAndThenSelectsTheFile) {
    FakeFinder finder;
    using Calls = std::vector<std::string>;
    EXPECT_EQ(answer(navigation("/Users/ana", "/Users/ana/note.txt"), finder), "(nothing)");
    EXPECT_EQ(finder.calls, (Calls{"activate", "open window /Users/ana", "target 101 /Users/ana", "delay 0.050000",
                                   "select /Users/ana/note.txt"}));
    finder.calls.clear();
    EXPECT_EQ(answer(navigation("/Users/ana/Desktop", "/nowhere"), finder),
              "-1728 Finder got an error: Can’t get file \"Macintosh HD:nowhere\".");
    EXPECT_EQ(finder.calls, (Calls{"activate", "target 101 /Users/ana/Desktop", "delay 0.050000"}));
}

TEST(Navigation, ReachesFoldersWithQuotesAndBackslashes) {
    FakeFinder finder;
    finder.folders.insert("/Users/ana/a\"b\\n");
    answer(inFinder("make new Finder window to POSIX file \"/Users/ana/a\\\"b\\\\n\""), finder);
    EXPECT_EQ(finder.calls, std::vector<std::string>{"open window /Users/ana/a\"b\\n"});
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
