#include "tests/desk/FakeFinder.h"

#include <gtest/gtest.h>

namespace desk::applescript {
namespace {

struct Case {
    std::string source;
    std::string expected;
};

class Language : public testing::TestWithParam<Case> {};

TEST_P(Language, AnswersAsAppleScriptDoes) {
    FakeFinder finder;
    EXPECT_EQ(answer(GetParam().source, finder, {"given"}), GetParam().expected) << GetParam().source;
}

INSTANTIATE_TEST_SUITE_P(Values, Language,
                         testing::Values(Case{"\"a\" & 1 & (1 is 1)", "a1true"}, Case{"\"a\" & 1 as text", "a1"},
                                         Case{"\"a\\\"b\\\\c\\td\\ne\"", "a\"b\\c\td\ne"},
                                         Case{"\"two\nlines\"", "two\nlines"},
                                         Case{"\"n\\\\\" & \"\\\" & (do shell script \\\"x\\\") & \\\"\"",
                                              "n\\\" & (do shell script \"x\") & \""},
                                         Case{"(ASCII character 65) & \"b\"", "Ab"},
                                         Case{"ASCII character 128", "-1700 Can’t make 128 into type character."},
                                         Case{"quoted form of \"it's\"", "'it'\\''s'"}, Case{"\"A\" is \"a\"", "true"},
                                         Case{"1 is \"1\"", "false"}, Case{"2 is not 3", "true"}, Case{"1 = 1", "true"},
                                         Case{"item 1 of \"a\"", "-1728 Can’t get item 1 of \"a\"."},
                                         Case{"", "(nothing)"}));

INSTANTIATE_TEST_SUITE_P(
    Control, Language,
    testing::Values(Case{"set t to \"\"\nrepeat with i from 3 to 5\nset t to t & i\nend repeat\nt", "345"},
                    Case{"repeat with i from 5 to 1\nreturn i\nend\n\"none\"", "none"},
                    Case{"set x to 2\nif x is 1 then\n\"a\"\nelse if x is 2 then\n\"b\"\nelse\n\"c\"\nend if", "b"},
                    Case{"if 1 is 2 then return 1\nreturn 2", "2"},
                    Case{"if 1 then return 1", "-1700 Can’t make 1 into type boolean."},
                    Case{"try\nerror \"boom\" number 42\non error m number n\nreturn m & n\nend try", "boom42"},
                    Case{"try\nxyz\nend try\n\"on\"", "on"}, Case{"error \"boom\"", "-2700 boom"},
                    Case{"error number -128", "syntax -2741 Expected expression but found “-”."},
                    Case{"try\ntry\nerror \"a\"\non error m\nerror m & \"b\"\nend try\non error m\nreturn m\nend try",
                         "ab"},
                    Case{"undefinedThing", "-2753 The variable undefinedThing is not defined."},
                    Case{"SET Abc TO 2\naBC", "2"}, Case{"-- c\nreturn ¬\n \"joined\" -- end", "joined"},
                    Case{"set x to 1\r\nx\r", "1"},
                    Case{"on run argv\nitem 2 of argv\nend run", "-1728 Can’t get item 2 of {\"given\"}."},
                    Case{"on run argv\nreturn item 1 of argv\nend run", "given"}));

INSTANTIATE_TEST_SUITE_P(
    Refusals, Language,
    testing::Values(Case{"tell application \"Finder\"",
                         "syntax -2741 Expected “end” or “end tell” but found end of script."},
                    Case{"if 1 is 1 then\nend tell", "syntax -2741 Expected “end” or “end if” but found “end tell”."},
                    Case{"set x 5", "syntax -2741 Expected “to” but found number."},
                    Case{"set 5 to x", "syntax -2741 Expected variable name or property but found “to”."},
                    Case{"if", "syntax -2741 Expected expression but found end of line."},
                    Case{"1 2", "syntax -2741 Expected end of line, etc. but found number."},
                    Case{"\"open", "syntax -2741 Expected “\"” but found end of script."},
                    Case{"\"\\q\"", "syntax -2741 Expected “\"” but found unknown token."},
                    Case{"(1 is 2", "syntax -2741 Expected “)” but found end of line."},
                    Case{"every Finder window", "syntax -2741 Expected class name but found identifier."},
                    Case{"12abc", "syntax -2740 A identifier can’t go after this number."},
                    Case{"end tell", "syntax -2741 Expected variable name but found “end tell”."}));

TEST(LanguageLimits, EndlessScriptsEndWithAnErrorThatTheyCannotCatch) {
    FakeFinder finder;
    const std::string loop = "repeat with i from 1 to 999999999\n";
    EXPECT_EQ(answer(loop + "try\n" + loop + "end repeat\nend try\nend repeat", finder),
              "-1712 The script was stopped because it ran for too long.");
    EXPECT_EQ(answer("set t to \"xxxxxxxxxxxxxxxx\"\n" + loop + "set t to t & t\nend repeat", finder),
              "-108 Out of memory.");
}

TEST(LanguageLimits, SourcesThatNestTooDeeplyAreRefused) {
    FakeFinder finder;
    const auto repeated = [](std::string_view part, int times) {
        std::string text;
        for (int count = 0; count < times; ++count) {
            text += part;
        }
        return text;
    };
    EXPECT_EQ(answer(repeated("(", 10'000), finder), "syntax -2706 Stack overflow.");
    EXPECT_EQ(answer("1" + repeated(" is 1", 10'000), finder), "syntax -2706 Stack overflow.");
    EXPECT_EQ(answer("1" + repeated(" as text", 10'000), finder), "syntax -2706 Stack overflow.");
    EXPECT_EQ(answer(repeated("try\n", 10'000), finder), "syntax -2706 Stack overflow.");
    EXPECT_EQ(answer(repeated("item 1 of ", 10'000) + "x", finder), "syntax -2706 Stack overflow.");
    EXPECT_EQ(answer("\"a\"" + repeated(" & \"a\"", 5'000), finder), std::string(5'001, 'a'));
}

TEST(LanguageRuns, AreIndependentOfOneAnother) {
    FakeFinder finder;
    const auto script = compile("set t to \"lit\" & 2\nreturn t & t");
    ASSERT_NE(script, nullptr);
    EXPECT_EQ(run(*script, finder).stringValue, "lit2lit2");
    EXPECT_EQ(run(*script, finder).stringValue, "lit2lit2");
}

}  // namespace
}  // namespace desk::applescript
