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
    EXPECT_EQ(answer(GetParam().source, finder), GetParam().expected) << GetParam().source;
}

INSTANTIATE_TEST_SUITE_P(Arithmetic, Language,
                         testing::Values(Case{"1 + 2 * 3", "7"}, Case{"(1 + 2) * 3", "9"}, Case{"7 div 2", "3"},
                                         Case{"-7 div 2", "-3"}, Case{"-7 mod 3", "-1"}, Case{"6 / 2", "3.0"},
                                         Case{"2 ^ 10", "1024.0"}, Case{"10 - 2 - 3", "5"}, Case{"0.05 + 0.05", "0.1"},
                                         Case{"12345.5 * 1", "1.23455E+4"}, Case{"\"4\" + 1", "5"},
                                         Case{"9223372036854775807 + 1", "9.223372036854776E+18"},
                                         Case{"1 / 0", "-2701 Can’t divide 1 by zero."},
                                         Case{"1 + \"x\"", "-1700 Can’t make \"x\" into type number."}));

INSTANTIATE_TEST_SUITE_P(
    Texts, Language,
    testing::Values(
        Case{"\"a\" & 1 & true", "a1true"}, Case{"\"a\" & {\"b\", 2}", "ab2"}, Case{"1 & 2", "(nothing)"},
        Case{"count of (1 & 2 & {3, 4})", "4"}, Case{"1 + 1 & 3 as text", "23"},
        Case{"\"a\\\"b\\\\c\\td\\ne\"", "a\"b\\c\td\ne"}, Case{"\"two\nlines\"", "two\nlines"},
        Case{"length of \"añ👍\"", "3"}, Case{"character 2 of \"añ👍\"", "ñ"}, Case{"text 2 thru -2 of \"abcde\"", "bcd"},
        Case{"(last word of \"one two, three\") as text", "three"}, Case{"paragraph 2 of \"a\r\nb\nc\"", "b"},
        Case{"(reverse of characters of \"abc\") as text", "cba"},
        Case{"(ASCII character 65) & (ASCII number \"B\") & character id 233", "A66é"},
        Case{"ASCII character 142", "é"}, Case{"(id of \"€\") as text", "8364"},
        Case{"quoted form of \"it's\"", "'it'\\''s'"}, Case{"tab & quote & linefeed & return & space", "\t\"\n\r "},
        Case{"set AppleScript's text item delimiters to \", \"\n{1, 2, 3} as text", "1, 2, 3"},
        Case{"set AppleScript's text item delimiters to \"/\"\ntext item 2 of \"a/b/c\"", "b"},
        Case{"POSIX path of \"Macintosh HD:Users:ana:\"", "/Users/ana/"}, Case{"{1} as text as integer", "1"},
        Case{"\"12a\" as integer", "-1700 Can’t make \"12a\" into type integer."}, Case{"2.5 as integer", "2"},
        Case{"missing value", "msng"}, Case{"{}", "(nothing)"}));

INSTANTIATE_TEST_SUITE_P(
    Comparisons, Language,
    testing::Values(Case{"\"A\" is \"a\"", "true"}, Case{"considering case\n\"A\" is \"a\"\nend considering", "false"},
                    Case{"1 = 1.0", "true"}, Case{"1 is \"1\"", "false"}, Case{"\"10\" < \"9\"", "true"},
                    Case{"10 < \"9\"", "false"}, Case{"2 ≥ 2 and 2 >= 2 and not 2 is greater than 2", "true"},
                    Case{"1 is not equal to 2", "true"}, Case{"\"banana\" contains \"NAN\"", "true"},
                    Case{"\"x\" is in {\"x\", \"y\"}", "true"}, Case{"{1, 2, 3} contains {2, 3}", "true"},
                    Case{"{1, 2, 3} starts with {2}", "false"}, Case{"\"note.txt\" ends with \".txt\"", "true"},
                    Case{"{1, {2}} is {1, {2}}", "true"}, Case{"false and (1 / 0 is 1)", "false"},
                    Case{"true or x", "true"}, Case{"class of 1.5 is real", "true"},
                    Case{"missing value is missing value", "true"},
                    Case{"5 contains {", "syntax -2741 Expected expression but found end of line."},
                    Case{"{1} < 2", "-1700 Can’t make {1} into type number."}));

INSTANTIATE_TEST_SUITE_P(
    ListsAndRecords, Language,
    testing::Values(Case{"item -1 of {1, 2, 3}", "3"}, Case{"item 2 of item 1 of {{1, 2}}", "2"},
                    Case{"item 4 of {1, 2}", "-1728 Can’t get item 4 of {1, 2}."},
                    Case{"item 0 of {}", "-1728 Can’t get item 0 of {}."},
                    Case{"(items 2 thru 3 of {1, 2, 3, 4}) as text", "23"}, Case{"(rest of {1, 2, 3}) as text", "23"},
                    Case{"2nd item of {1, 2}", "2"}, Case{"count (every item of {1, 2})", "2"},
                    Case{"set L to {}\nrepeat with i from 1 to 3\nset end of L to i\nend repeat\nL as text", "123"},
                    Case{"set L to {1, 2}\nset M to L\nset item 1 of M to 9\n(L as text) & M", "1292"},
                    Case{"set {a, b} to {1, 2}\na - b", "-1"}, Case{"copy 5 to x\nx", "5"},
                    Case{"set r to {name:\"x\", size:3}\n(name of r) & r's size", "x3"},
                    Case{"set r to {a:1}\nset a of r to 2\na of r", "2"},
                    Case{"b of {a:1}", "-1728 Can’t get b of {a:1}."},
                    Case{"(every item of {1, 5, 9} whose it > 4) as text", "59"}));

INSTANTIATE_TEST_SUITE_P(
    Control, Language,
    testing::Values(
        Case{"set t to \"\"\nrepeat with i from 5 to 1 by -2\nset t to t & i\nend repeat\nt", "531"},
        Case{"set t to \"\"\nrepeat with x in {\"a\", \"b\"}\nset t to x & t\nend\nt", "ba"},
        Case{"set n to 0\nrepeat 4 times\nset n to n + 1\nend repeat\nn", "4"},
        Case{"set n to 0\nrepeat while n < 3\nset n to n + 1\nend repeat\nn", "3"},
        Case{"set n to 0\nrepeat until n = 3\nset n to n + 1\nend repeat\nn", "3"},
        Case{"set n to 0\nrepeat\nset n to n + 1\nif n is 7 then exit repeat\nend repeat\nn", "7"},
        Case{"set x to 2\nif x is 1 then\n\"a\"\nelse if x is 2 then\n\"b\"\nelse\n\"c\"\nend if", "b"},
        Case{"if false then return 1\nreturn 2", "2"},
        Case{"try\nerror \"boom\" number 42\non error m number n\nreturn m & n\nend try", "boom42"},
        Case{"try\nitem 1 of {}\nend try\n\"on\"", "on"}, Case{"error \"boom\"", "-2700 boom"},
        Case{"error number -128", "-128 An error of type -128 has occurred."},
        Case{"try\ntry\nerror \"a\"\non error m\nerror m & \"b\"\nend try\non error m\nreturn m\nend try", "ab"},
        Case{"undefinedThing", "-2753 The variable undefinedThing is not defined."},
        Case{"set |odd name| to 1\nSET Abc TO 2\n|odd name| + aBC", "3"},
        Case{"-- c\n# c\n(* a (* b *) *) return ¬\n \"joined\" -- end", "joined"}, Case{"set x to 1\r\nx + 1\r", "2"},
        Case{"", "(nothing)"}, Case{"on twice(x)\nreturn x * 2\nend twice\ntwice(4) + (my twice(1))", "10"},
        Case{"on f(n)\nif n < 2 then return n\nreturn f(n - 1) + f(n - 2)\nend f\nf(12)", "144"},
        Case{"property p : 1\non bump()\nset p to p + 1\nset q to 5\nend bump\nset q to 0\nbump()\np & \"\" & q",
             "(nothing)"},
        Case{"nothing(1)", "-1708 «script» doesn’t understand the “nothing” message."},
        Case{"set x to 3\nset y to result\ny", "3"}));

INSTANTIATE_TEST_SUITE_P(
    Refusals, Language,
    testing::Values(
        Case{"tell application \"Finder\"", "syntax -2741 Expected “end” or “end tell” but found end of script."},
        Case{"repeat 2 times\nend tell", "syntax -2741 Expected “end” or “end repeat” but found “end tell”."},
        Case{"set x 5", "syntax -2741 Expected “to” but found number."},
        Case{"set 5 to x", "syntax -2741 Expected variable name or property but found “to”."},
        Case{"if", "syntax -2741 Expected expression but found end of line."},
        Case{"1 2", "syntax -2741 Expected end of line, etc. but found number."},
        Case{"\"open", "syntax -2741 Expected “\"” but found end of script."},
        Case{"\"\\q\"", "syntax -2741 Expected “\"” but found unknown token."},
        Case{"(1 + 2", "syntax -2741 Expected “)” but found end of line."},
        Case{"every Finder window", "syntax -2741 Expected class name but found identifier."},
        Case{"12abc", "syntax -2740 A identifier can’t go after this number."},
        Case{"end tell", "syntax -2741 Expected expression but found “end tell”."}));

TEST(LanguageLimits, EndlessScriptsEndWithAnErrorThatTheyCannotCatch) {
    FakeFinder finder;
    const std::vector<Case> cases{
        {"repeat\nend repeat", "-1712 The script was stopped because it ran for too long."},
        {"repeat\ntry\nrepeat\nend repeat\nend try\nend repeat",
         "-1712 The script was stopped because it ran for too long."},
        {"on f()\nf()\nend f\nf()", "-2706 Stack overflow."},
        {"set t to \"xxxxxxxxxxxxxxxx\"\nrepeat\nset t to t & t\nend repeat", "-108 Out of memory."},
        {"set t to {1}\nrepeat\nset t to {t, t}\nend repeat", "-108 Out of memory."},
        {"set t to {}\nrepeat\nset t to {t}\nend repeat", "-108 Out of memory."},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(answer(each.source, finder), each.expected) << each.source;
    }
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
    EXPECT_EQ(answer("1" + repeated("+1", 10'000), finder), "syntax -2706 Stack overflow.");
    EXPECT_EQ(answer(repeated("not ", 10'000) + "true", finder), "syntax -2706 Stack overflow.");
    EXPECT_EQ(answer(repeated("try\n", 10'000), finder), "syntax -2706 Stack overflow.");
    EXPECT_EQ(answer("x" + repeated(" of x", 10'000), finder), "syntax -2706 Stack overflow.");
    EXPECT_EQ(answer("length of (\"a\"" + repeated(" & \"a\"", 5'000) + ")", finder), "5001");
}

TEST(LanguageRuns, AreIndependentOfOneAnother) {
    FakeFinder finder;
    const auto script = compile("property n : 1\nset n to n + 1\nset t to \"lit\" & n\nreturn t & t");
    ASSERT_NE(script, nullptr);
    EXPECT_EQ(run(*script, finder).stringValue, "lit2lit2");
    EXPECT_EQ(run(*script, finder).stringValue, "lit2lit2");
}

}  // namespace
}  // namespace desk::applescript
