#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "play/Json.h"
#include "play/ScriptReader.h"

namespace {

std::vector<std::string> wordsOf(std::string_view line) {
    std::string message;
    const auto words = play::splitWords(line, message);
    if (!words) return {"error: " + message};
    std::vector<std::string> texts;
    for (const auto& word : *words) texts.push_back(word.text);
    return texts;
}

TEST(ScriptReader, SplitsALineIntoWords) {
    using Words = std::vector<std::string>;
    const struct {
        std::string_view line;
        Words words;
    } cases[] = {
        {"finder  open\t/Users/ana", {"finder", "open", "/Users/ana"}},
        {"folder \"/a b/c\\\"d\\\\e\"", {"folder", "/a b/c\"d\\e"}},
        {"folder \"/line\\nfeed\\ttab\"", {"folder", "/line\nfeed\ttab"}},
        {"folder \"/unit\\u{1F}\\u{1F600}\\u{e9}\"", {"folder", "/unit\x1F\xF0\x9F\x98\x80\xC3\xA9"}},
        {"print \"\" # and no more", {"print", ""}},
        {"finder open /a#b #c", {"finder", "open", "/a#b"}},
        {"   # nothing", {}},
        {"", {}},
        {"print \"open", {"error: a quotation isn't closed"}},
        {"print \"a\"b", {"error: a blank is missing after a quotation"}},
        {"print \"\\q\"", {"error: unknown escape in a quotation"}},
        {"print \"\\u{110000}\"", {"error: unknown escape in a quotation"}},
        {"print \"\\u{D800}\"", {"error: unknown escape in a quotation"}},
        {"print \"\\u{1F\"", {"error: unknown escape in a quotation"}},
    };
    for (const auto& each : cases) EXPECT_EQ(wordsOf(each.line), each.words) << each.line;
}

TEST(ScriptReader, NumbersLinesAndStopsAtTheFirstThatCannotBeRead) {
    const play::Script script = play::readScript("launch\n\n# comment\nwait 1\r\nprint \"\nstate\n");
    ASSERT_EQ(script.lines.size(), 2u);
    EXPECT_EQ(script.lines[0].number, 1);
    EXPECT_EQ(script.lines[1].number, 4);
    EXPECT_EQ(script.lines[1].words[1].text, "1");
    ASSERT_TRUE(script.error);
    EXPECT_EQ(script.error->line, 5);
}

TEST(Json, FindsWhatStandsAtAPointer) {
    const QJsonValue document = *play::parseJson(R"({"a": [{"b/c": 1, "~": null}, 2.5], "": "empty"})");
    const struct {
        std::string_view pointer;
        const char* found;  // null: nothing
    } cases[] = {
        {"/a/0/b~1c", "1"}, {"/a/0/~0", "null"},   {"/a/1", "2.5"}, {"/", "\"empty\""},  {"/a/2", nullptr},
        {"/a/-1", nullptr}, {"/a/0/b/c", nullptr}, {"/x", nullptr}, {"/a/1/0", nullptr}, {"/a/01x", nullptr},
    };
    for (const auto& each : cases) {
        const auto found = play::valueAt(document, each.pointer);
        ASSERT_EQ(found.has_value(), each.found != nullptr) << each.pointer;
        if (found) {
            EXPECT_EQ(play::toText(*found), each.found) << each.pointer;
        }
    }
}

TEST(Json, ComparesNumbersAsDoublesAndEverythingElseExactly) {
    const struct {
        const char* a;
        const char* b;
        bool equal;
    } cases[] = {
        {"1", "1.0", true},       {"[1,{\"x\":2}]", "[1.0,{\"x\":2e0}]", true},
        {"1", "\"1\"", false},    {"null", "false", false},
        {"[1]", "[1,2]", false},  {"{\"a\":1}", "{\"a\":1,\"b\":2}", false},
        {"\"a\"", "\"a\"", true}, {"\"é\"", "\"e\\u0301\"", false},
    };
    for (const auto& each : cases)
        EXPECT_EQ(play::equal(*play::parseJson(each.a), *play::parseJson(each.b)), each.equal)
            << each.a << ' ' << each.b;
    EXPECT_FALSE(play::parseJson("1 2"));
    EXPECT_FALSE(play::parseJson("nothing"));
}

}  // namespace
