// Lines of text that are longer than a screen, or run both ways: where the caret stands, what a selection covers, and that their ends are painted.
#include <string>

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

#include "desk/display/GuiApplication.h"
#include "desk/display/Painter.h"
#include "desk/display/QtTextSystem.h"

namespace desk {
namespace {

constexpr platform::Font lineFont{14, platform::FontWeight::regular};
constexpr double lineTolerance = 0.6;

class DisplayLines : public testing::Test {
protected:
    GuiApplication toolkit;
    QtTextSystem text;
};

TEST_F(DisplayLines, ACaretStandsWhereTheTextBeforeItEnds) {
    const std::string path = "/Users/ana/Documents";
    EXPECT_EQ(text.caretPosition(path, lineFont, 0), 0);
    EXPECT_NEAR(text.caretPosition(path, lineFont, 10), text.width("/Users/ana", lineFont), lineTolerance);
    EXPECT_NEAR(text.caretPosition(path, lineFont, path.size()), text.width(path, lineFont), lineTolerance);
    const auto covered = text.stretches(path, lineFont, 1, 6);
    ASSERT_EQ(covered.size(), 1U);
    EXPECT_NEAR(covered[0].begin, text.width("/", lineFont), lineTolerance);
    EXPECT_NEAR(covered[0].end, text.width("/Users", lineFont), lineTolerance);
    EXPECT_TRUE(text.stretches(path, lineFont, 3, 3).empty());
}

// Two Latin letters, then three of Hebrew, two bytes each, of which the first stands furthest to the right.
TEST_F(DisplayLines, ASelectionInTextThatRunsBothWaysCoversWhatItsLettersCover) {
    const std::string mixed = "ab\u05d0\u05d1\u05d2";
    const double latin = text.width("ab", lineFont);
    const double whole = text.width(mixed, lineFont);
    const auto first = text.stretches(mixed, lineFont, 2, 4);
    ASSERT_EQ(first.size(), 1U);
    EXPECT_NEAR(first[0].end, whole, lineTolerance);
    const auto last = text.stretches(mixed, lineFont, 6, 8);
    ASSERT_EQ(last.size(), 1U);
    EXPECT_NEAR(last[0].begin, latin, lineTolerance);
    EXPECT_EQ(text.stretches(mixed, lineFont, 1, 4).size(), 2U);
    EXPECT_EQ(text.stretches(mixed, lineFont, 0, 8).size(), 1U);
}

// Beside Latin letters and beside Hebrew ones, which take another way.
TEST_F(DisplayLines, ASelectedEmojiIsCoveredWhole) {
    const std::string emoji = "\xf0\x9f\x8e\xa8";
    for (const std::string beside : {"ab", "\u05d0\u05d1"}) {
        const std::string mixed = beside + emoji + "ab";
        const auto covered = text.stretches(mixed, lineFont, beside.size(), beside.size() + emoji.size());
        ASSERT_EQ(covered.size(), 1U) << mixed;
        EXPECT_NEAR(covered[0].begin, text.width(beside, lineFont), 1) << mixed;
        EXPECT_NEAR(covered[0].end - covered[0].begin, text.width(emoji, lineFont), 1) << mixed;
    }
}

TEST_F(DisplayLines, TheEndOfALineLongerThanAnyPictureIsPainted) {
    const std::string line(3000, 'm');
    const double width = text.width(line, lineFont);
    const platform::Drawing drawing{{platform::DrawText{line, lineFont, platform::Color::of(platform::ColorRole::black),
                                                        platform::CGRectMake(190 - width, 10, width, 20)}}};
    QImage image(400, 80, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter target(&image);
    Painter().paint(target, drawing, Palette(), 2);
    target.end();
    const auto isInked = [&](int from, int to) {
        for (int x = from; x < to; ++x)
            for (int y = 0; y < image.height(); ++y)
                if (qGray(image.pixel(x, y)) < 96) return true;
        return false;
    };
    EXPECT_TRUE(isInked(0, 60));
    EXPECT_TRUE(isInked(340, 380));
    EXPECT_FALSE(isInked(384, 400));
}

}  // namespace
}  // namespace desk
