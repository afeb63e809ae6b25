// What keys do to a text and its selection. A case is told as one line: [ and ] enclose the selection, | is the caret when nothing is selected.
#include <gtest/gtest.h>

#include <random>
#include <sstream>

#include "tests/kit/PlainText.h"
#include "views/text/TextFieldEngine.h"
#include "views/text/Utf8.h"

namespace {

using views::NSRange;
using views::TextFieldEngine;

const std::string accented = "e\u0301";  // two code points, one character
const std::string family = "👩\u200D👧";   // three, five units, one character

class EngineTest : public testing::Test {
protected:
    void set(std::string marked) {
        const std::size_t begin = marked.find_first_of("[|");
        const std::size_t end = marked.find(']');
        std::string text;
        for (const char each : marked)
            if (std::string_view("[]|").find(each) == std::string_view::npos) text += each;
        engine.setText(text);
        const std::size_t length = end == std::string::npos ? 0 : end - begin - 1;
        engine.setSelectedRange(
            {views::utf16Length(text.substr(0, begin)), views::utf16Length(text.substr(begin, length))});
    }
    std::string shown() const {
        std::string text = engine.text();
        if (engine.selectionBegin() == engine.selectionEnd()) return text.insert(engine.caret(), "|");
        return text.insert(engine.selectionEnd(), "]").insert(engine.selectionBegin(), "[");
    }
    // Commands by their names less the colon; '...' types, * stands for AndModifySelection.
    std::string after(const std::string& start, const std::string& commands) {
        set(start);
        std::istringstream words(commands);
        for (std::string word; words >> word;) run(word);
        return shown();
    }
    void run(const std::string& word) {
        if (word.front() == '\'') return engine.type(word.substr(1, word.size() - 2));
        if (word == "undo") return engine.undo();
        if (word == "redo") return engine.redo();
        if (word == "selectAll") return engine.selectAll();
        const bool extends = word.back() == '*';
        const std::string name = extends ? word.substr(0, word.size() - 1) + "AndModifySelection:" : word + ":";
        EXPECT_TRUE(engine.perform(name)) << name;
    }

    kit::PlainBoundaries boundaries;
    // Two Latin letters, then three Hebrew ones, which are seen in the opposite order.
    static double seenAt(std::string_view, std::size_t offset) {
        static constexpr double places[] = {0, 1, 2, 0, 4, 0, 3, 0, 5};
        return places[offset];
    }
    TextFieldEngine engine{boundaries, seenAt};
};

struct Case {
    const char* what;
    std::string start;
    std::string commands;
    std::string end;
};

TEST_F(EngineTest, MovesTheCaretAsThePlatformDoes) {
    const Case cases[] = {
        {"by characters", "ab|c", "moveLeft", "a|bc"},
        {"not past the ends", "|a", "moveLeft moveRight moveRight moveRight", "a|"},
        {"over a whole cluster", "x" + family + "|y", "moveLeft", "x|" + family + "y"},
        {"over letter and accent", "x|" + accented + "y", "moveRight", "x" + accented + "|y"},
        {"a selection is given up at its left end", "a[bc]d", "moveLeft", "a|bcd"},
        {"and at its right end", "a[bc]d", "moveRight", "abc|d"},
        {"to the beginning of the word", "/Users/an|a", "moveWordLeft", "/Users/|ana"},
        {"past what lies between words", "/Users/|ana", "moveWordLeft", "/|Users/ana"},
        {"to the end of the next word", "/Users|/ana/", "moveWordRight", "/Users/ana|/"},
        {"by words from the selection's edge", "/a[b/c]d/ef", "moveWordRight", "/ab/cd|/ef"},
        {"no word is left", "/ab|//", "moveWordRight", "/ab//|"},
        {"to the ends", "/ab|c", "moveToEndOfLine moveToBeginningOfLine", "|/abc"},
        {"up is the beginning, down the end", "ab|c", "moveUp moveDown", "abc|"},
    };
    for (const Case& each : cases) EXPECT_EQ(after(each.start, each.commands), each.end) << each.what;
}

TEST_F(EngineTest, ExtendsTheSelection) {
    const Case cases[] = {
        {"from the caret, and back over it", "ab|cd", "moveRight* moveLeft* moveLeft*", "a[b]cd"},
        {"what is selected as a whole first grows to that side", "a[bc]d", "moveLeft*", "[abc]d"},
        {"and then moves that end", "a[bc]d", "moveLeft* moveRight* moveRight*", "ab[c]d"},
        {"all of it has nowhere to grow", "abc|", "selectAll moveLeft* moveRight*", "a[bc]"},
        {"by words", "/ab|/cd/ef", "moveWordRight* moveWordRight*", "/ab[/cd/ef]"},
        {"by words it halts where it began", "/ab/c|d/ef", "moveRight* moveWordLeft*", "/ab/c|d/ef"},
        {"to the ends of the line it never shrinks", "ab|cd", "moveRight* moveToBeginningOfLine*", "[abc]d"},
        {"a cluster at once", "x|" + family, "moveRight*", "x[" + family + "]"},
    };
    for (const Case& each : cases) EXPECT_EQ(after(each.start, each.commands), each.end) << each.what;
}

TEST_F(EngineTest, RemovesAndReplaces) {
    const Case cases[] = {
        {"typing takes the selection's place", "a[bc]d", "'xy'", "axy|d"},
        {"a character with its accent", "x" + accented + "|", "deleteBackward", "x|"},
        {"forwards", "x|" + family + "y", "deleteForward", "x|y"},
        {"a selection, whatever the command reaches", "/a[b]c/d", "deleteWordForward", "/a|c/d"},
        {"a word backwards", "/ab/cd|", "deleteWordBackward", "/ab/|"},
        {"a word forwards", "|/ab/cd", "deleteWordForward", "|/cd"},
        {"to the beginning", "/ab|c", "deleteToBeginningOfLine", "|c"},
        {"to the end", "/ab|c", "deleteToEndOfLine", "/ab|"},
        {"nothing at the beginning", "|abc", "deleteBackward", "|abc"},
        {"an accent typed behind a letter joins it", "xe|", "'\u0301' moveLeft", "x|" + accented},
        {"a letter typed before an accent takes it up", "|\u0301x", "'e'", accented + "|x"},
        {"malformed bytes", "|", "'a\xC3\xE2\x82z'", "a\uFFFD\uFFFD\uFFFDz|"},
    };
    for (const Case& each : cases) EXPECT_EQ(after(each.start, each.commands), each.end) << each.what;
}

TEST_F(EngineTest, UndoesWhatBelongsTogether) {
    const Case cases[] = {
        {"typing without a break is one step", "a|", "'b' 'c' undo", "a|"},
        {"moving breaks it", "a|", "'b' moveLeft 'c' undo", "a|b"},
        {"typing over a selection brings it back", "a[bc]d", "'x' 'y' undo", "a[bc]d"},
        {"deleting is a step of its own", "ab|", "'c' deleteBackward deleteBackward undo", "abc|"},
        {"redo", "a|", "'b' moveLeft 'c' undo undo redo redo", "ac|b"},
        {"a new change ends redoing", "a|", "'b' undo 'c' redo", "ac|"},
        {"nothing more to undo", "a|", "undo redo 'b' undo undo", "a|"},
        {"a command without effect is no step", "|a", "moveToEndOfLine 'b' moveToBeginningOfLine deleteBackward undo",
         "a|"},
    };
    for (const Case& each : cases) EXPECT_EQ(after(each.start, each.commands), each.end) << each.what;
}

TEST_F(EngineTest, TextFromOutsideCannotBeUndone) {
    set("a|");
    engine.type("b");
    engine.setText("/new");
    engine.undo();
    EXPECT_EQ(shown(), "/new|");
}

TEST_F(EngineTest, RangesAreUtf16AndWholeClusters) {
    engine.setText("a" + family + "b");  // units: 1, 5, 1
    engine.setSelectedRange({0, 7});
    EXPECT_EQ(shown(), "[a" + family + "b]");
    EXPECT_EQ(engine.selectedRange(), (NSRange{0, 7}));
    engine.setSelectedRange({2, 1});
    EXPECT_EQ(shown(), "a[" + family + "]b");
    engine.setSelectedRange({3, 0});
    EXPECT_EQ(engine.selectedRange(), (NSRange{6, 0}));
    engine.setSelectedRange({100, 100});
    EXPECT_EQ(engine.selectedRange(), (NSRange{7, 0}));
    engine.setText("");
    engine.selectAll();
    EXPECT_EQ(engine.selectedRange(), (NSRange{0, 0}));
}

// Whatever is done in whatever order: the text stays well-formed, the selection between clusters, and undoing everything leads back.
TEST_F(EngineTest, KeepsItsWordUnderRandomEditing) {
    const std::vector<std::string> pieces = {"a",      "/",      " ",    "\n",     "\t", "é",
                                             accented, "\u0301", family, "\u200D", "日", "\xFF"};
    const std::vector<std::string> commands = {
        "moveLeft",          "moveRight",         "moveWordLeft",   "moveWordRight", "moveUp",
        "moveDown",          "moveLeft*",         "moveRight*",     "moveWordLeft*", "moveWordRight*",
        "moveUp*",           "moveToEndOfLine*",  "deleteBackward", "deleteForward", "deleteWordBackward",
        "deleteWordForward", "deleteToEndOfLine", "undo",           "redo",          "selectAll"};
    for (unsigned seed = 1; seed <= 40; ++seed) {
        std::mt19937 random(seed);
        const auto below = [&](std::size_t count) { return random() % count; };
        engine.setText("/Users/" + accented);
        for (int step = 0; step < 150; ++step) {
            const auto kind = below(10);
            if (kind < 5) engine.type(pieces[below(pieces.size())]);
            if (kind == 5) engine.replaceSelection(pieces[below(pieces.size())] + "x");
            if (kind == 6) engine.setSelectedRange({below(20), below(20)});
            if (kind > 6) run(commands[below(commands.size())]);

            const std::string& text = engine.text();
            ASSERT_EQ(views::repaired(text), text) << "seed " << seed << " step " << step;
            for (const std::size_t end : {engine.selectionBegin(), engine.selectionEnd()})
                ASSERT_TRUE(end == 0 || boundaries.nextCharacter(text, boundaries.previousCharacter(text, end)) == end)
                    << "seed " << seed << " step " << step << ": " << shown();
        }
        for (int step = 0; step < 200; ++step) engine.undo();
        ASSERT_EQ(engine.text(), "/Users/" + accented) << "seed " << seed;
    }
}

TEST_F(EngineTest, LeftAndRightGoBySightWhereTextRunsBothWays) {
    const Case cases[] = {
        {"across both", "|ab\u05d0\u05d1\u05d2", "moveRight moveRight moveRight", "ab\u05d0\u05d1|\u05d2"},
        {"to the end", "ab\u05d0\u05d1|\u05d2", "moveRight moveRight moveRight", "ab\u05d0\u05d1\u05d2|"},
        {"and back", "ab\u05d0|\u05d1\u05d2", "moveLeft moveLeft moveLeft", "a|b\u05d0\u05d1\u05d2"},
        {"growing", "ab\u05d0\u05d1|\u05d2", "moveRight*", "ab\u05d0[\u05d1]\u05d2"},
    };
    for (const Case& each : cases) EXPECT_EQ(after(each.start, each.commands), each.end) << each.what;
}

}  // namespace
