// What layout relies on: a text takes the room that it is drawn in, one line whatever it holds, and shortened texts fit and stay readable.
#include <gtest/gtest.h>

#include <string>

#include "desk/display/BoundedCache.h"
#include "desk/display/QtTextSystem.h"
#include "desk/display/SymbolSet.h"
#include "tests/desk/display_Picture.h"

namespace {

using desk::QtTextSystem;
using platform::CGRectMake;
using platform::Color;
using platform::ColorRole;
using platform::Font;
using platform::FontWeight;

constexpr Font body{13, FontWeight::regular};

struct Sample {
    const char* name;
    std::string text;
};

std::ostream& operator<<(std::ostream& out, const Sample& sample) {
    return out << sample.name;
}

class DrawnText : public testing::TestWithParam<Sample> {};

// The line begins and ends within its measured width, give or take a point of overhang, and within one line's height.
TEST_P(DrawnText, StaysInItsMeasuredBox) {
    QtTextSystem text;
    const double width = text.width(GetParam().text, body);
    const double height = text.metrics(body).lineHeight();
    ASSERT_GT(width, 0);
    platform::Drawing drawing;
    drawing.operations.emplace_back(
        platform::DrawText{GetParam().text, body, Color::of(ColorRole::black), CGRectMake(20, 20, width, height)});
    const QRect ink = picture::inked(picture::paint(drawing, {width + 40, height + 40}));
    ASSERT_FALSE(ink.isEmpty());
    EXPECT_GE(ink.left(), 2 * 20 - 3);
    EXPECT_LE(ink.right(), 2 * (20 + width) + 3);
    EXPECT_GE(ink.top(), 2 * 20 - 4);
    EXPECT_LE(ink.bottom(), 2 * (20 + height) + 4);
    // Nothing is left out at the end either.
    EXPECT_GE(ink.width(), 2 * width * 0.7 - 6);
}

INSTANTIATE_TEST_SUITE_P(Names, DrawnText,
                         testing::Values(Sample{"latin", "Documents"}, Sample{"lineFeed", "with\nline\r\nfeeds"},
                                         Sample{"controls", "tab\tand\x1bmore\x7f"},
                                         Sample{"separator", "one\u2028two\u2029three\u0085"},
                                         Sample{"rightToLeft", "\u05de\u05e1\u05de\u05db\u05d9\u05dd"},
                                         Sample{"mixed", "Photos \u05de\u05e1\u05de 2024"},
                                         Sample{"decomposed", "Cafe\u0301 E\u0301te\u0301"},
                                         Sample{"emoji", "\U0001F600\U0001F600\U0001F600"},
                                         Sample{"notUtf8", "bad\xff\xfe name"}),
                         [](const auto& sample) { return std::string(sample.param.name); });

TEST(TextWidth, OfAControlCharacterIsThatOfAVisibleOne) {
    QtTextSystem text;
    for (const char* name : {"a\nb", "a\tb",
                             "a\x01"
                             "b",
                             "a\u2028b"})
        EXPECT_GT(text.width(name, body), text.width("ab", body) + 2) << name;
}

TEST(TextWidth, CountsTrailingBlanks) {
    QtTextSystem text;
    EXPECT_NEAR(text.width("name  ", body), text.width("name", body) + 2 * text.width(" ", body), 0.01);
}

TEST(TextWidth, IsTheSameBeforeAndAfterManyOthersWereMeasured) {
    QtTextSystem text;
    const double before = text.width("Documents", body);
    for (int i = 0; i < 20000; ++i) text.width(std::to_string(i), body);
    EXPECT_EQ(text.width("Documents", body), before);
    EXPECT_NE(text.width("Documents", {13, FontWeight::bold}), before);
    EXPECT_NEAR(text.width("Documents", {26, FontWeight::regular}), 2 * before, 0.5);
}

struct Shortened {
    std::string text;
    double width;
    std::string expected;  // empty: only that it fits
};

TEST(Truncation, KeepsBothEndsAndFits) {
    QtTextSystem text;
    const std::string family = "\U0001F468\u200D\U0001F469\u200D\U0001F467";
    const std::string longName(255, 'w');
    const std::vector<Shortened> cases{
        {"Documents", 200, "Documents"},    {"Documents", 1, "\u2026"},         {"", 0, ""}, {longName, 100, ""},
        {"an invoice of 2024.pdf", 90, ""}, {"line\nfeeds\nall\nover", 50, ""},
    };
    for (const Shortened& each : cases) {
        const std::string result = text.truncatedInMiddle(each.text, body, each.width);
        if (result != "\u2026") {
            EXPECT_LE(text.width(result, body), each.width) << each.text;
        }
        if (!each.expected.empty() || each.text.empty()) {
            EXPECT_EQ(result, each.expected);
        }
    }
    const std::string pdf = text.truncatedInMiddle("an invoice of 2024.pdf", body, 90);
    EXPECT_EQ(pdf.substr(0, 2), "an");
    EXPECT_EQ(pdf.substr(pdf.size() - 3), "pdf");
}

// As much as fits is kept: one more character would be too much.
TEST(Truncation, WastesNoRoom) {
    QtTextSystem text;
    const std::string name(100, 'o');
    const double width = 120;
    const std::string result = text.truncatedInMiddle(name, body, width);
    EXPECT_GT(text.width(result, body), width - text.width("o", body) - 0.5);
}

TEST(Truncation, CutsBetweenWholeCharacters) {
    QtTextSystem text;
    const std::string family = "\U0001F468\u200D\U0001F469\u200D\U0001F467";
    const std::string accent = "e\u0301";
    for (const std::string& cluster : {family, accent}) {
        std::string name;
        for (int i = 0; i < 40; ++i) name += cluster;
        const std::string result = text.truncatedInMiddle(name, body, 100);
        const std::size_t cut = result.find("\u2026");
        ASSERT_NE(cut, std::string::npos);
        EXPECT_GT(cut, 0U);
        EXPECT_EQ(cut % cluster.size(), 0U);
        EXPECT_EQ((result.size() - cut - 3) % cluster.size(), 0U);
    }
}

TEST(Symbol, IsAsLargeAsItSaysInEveryWeight) {
    desk::SymbolSet symbols;
    for (const std::string& name : desk::SymbolSet::names())
        for (const FontWeight weight : {FontWeight::regular, FontWeight::bold}) {
            const Font font{13, weight};
            const auto size = symbols.size(name, font);
            ASSERT_TRUE(size) << name;
            platform::Drawing drawing;
            drawing.operations.emplace_back(
                platform::DrawSymbol{name, font, Color::of(ColorRole::black), CGRectMake(0, 0, 40, 40)});
            const QRect ink = picture::inked(picture::paint(drawing, {40, 40}));
            ASSERT_FALSE(ink.isEmpty()) << name;
            EXPECT_LE(ink.width(), 2 * size->width + 2) << name;
            EXPECT_LE(ink.height(), 2 * size->height + 2) << name;
            EXPECT_NEAR(ink.center().x(), 40, 3) << name;
            EXPECT_NEAR(ink.center().y(), 40, 3) << name;
        }
}

TEST(Symbol, UnknownHasNoSizeAndPaintsNothing) {
    QtTextSystem text;
    EXPECT_EQ(text.symbolSize("no.such.symbol", body), std::nullopt);
    platform::Drawing drawing;
    drawing.operations.emplace_back(
        platform::DrawSymbol{"no.such.symbol", body, Color::of(ColorRole::black), CGRectMake(0, 0, 40, 40)});
    EXPECT_TRUE(picture::inked(picture::paint(drawing, {40, 40})).isEmpty());
}

TEST(BoundedCache, KeepsWhatIsUsedAndForgetsTheRest) {
    desk::BoundedCache<int, int, std::hash<int>, std::equal_to<>> cache(10);
    cache.insert(-1, 42);
    for (int i = 0; i < 1000; ++i) {
        cache.insert(i, i);
        ASSERT_NE(cache.find(-1), nullptr);
        ASSERT_LE(cache.size(), 20U);
    }
    EXPECT_EQ(*cache.find(-1), 42);
    EXPECT_EQ(cache.find(500), nullptr);
}

TEST(Lines, BreakWhereOneExpectsAndAreCutOnlyWhereTheyAreLimited) {
    QtTextSystem text;
    using Lines = std::vector<std::string>;
    const double room = text.width("a quick brown", body) + 1;
    const auto broken = [&](const std::string& whole, std::size_t limit = 0) {
        return text.lines(whole, body, room, limit, platform::TextTruncation::tail);
    };
    EXPECT_EQ(broken(""), Lines{""});
    EXPECT_EQ(broken("a quick brown"), Lines{"a quick brown"});
    EXPECT_EQ(broken("a quick brown fox jumps "), (Lines{"a quick brown", "fox jumps"}));
    EXPECT_EQ(broken("one\n\ntwo\u2028three\r\n"), (Lines{"one", "", "two", "three", ""}));
    EXPECT_EQ(broken("a quick (brown) fox"), (Lines{"a quick", "(brown) fox"}));
    EXPECT_EQ(broken("a quick brown fox", 1), Lines{"a quick bro…"});
    EXPECT_EQ(broken("one\ntwo\nthree and four", 2), (Lines{"one", "two three a…"}));
    // A word that is too long, and one of which no letter has room.
    EXPECT_EQ(broken(std::string(15, 'm') + " m"), (Lines{std::string(7, 'm'), std::string(7, 'm'), "m m"}));
    EXPECT_EQ(text.lines("mm m", body, 1, 0, platform::TextTruncation::tail), (Lines{"m", "m", "m"}));
    EXPECT_GT(broken(std::string(2000, 'x')).size(), 100U);
}

}  // namespace
