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

constexpr platform::Font font{14, platform::FontWeight::regular};
constexpr double tolerance = 0.6;

class Lines : public testing::Test {
protected:
    GuiApplication toolkit;
    QtTextSystem text;
};

TEST_F(Lines, ACaretStandsWhereTheTextBeforeItEnds) {
    const std::string path = "/Users/ana/Documents";
    EXPECT_EQ(text.caretPosition(path, font, 0), 0);
    EXPECT_NEAR(text.caretPosition(path, font, 10), text.width("/Users/ana", font), tolerance);
    EXPECT_NEAR(text.caretPosition(path, font, path.size()), text.width(path, font), tolerance);
    const auto covered = text.stretches(path, font, 1, 6);
    ASSERT_EQ(covered.size(), 1U);
    EXPECT_NEAR(covered[0].begin, text.width("/", font), tolerance);
    EXPECT_NEAR(covered[0].end, text.width("/Users", font), tolerance);
    EXPECT_TRUE(text.stretches(path, font, 3, 3).empty());
}

// Two Latin letters, then three of Hebrew, two bytes each, of which the first stands furthest to the right.
TEST_F(Lines, ASelectionInTextThatRunsBothWaysCoversWhatItsLettersCover) {
    const std::string mixed = "ab\u05d0\u05d1\u05d2";
    const double latin = text.width("ab", font);
    const double whole = text.width(mixed, font);
    const auto first = text.stretches(mixed, font, 2, 4);
    ASSERT_EQ(first.size(), 1U);
    EXPECT_NEAR(first[0].end, whole, tolerance);
    const auto last = text.stretches(mixed, font, 6, 8);
    ASSERT_EQ(last.size(), 1U);
    EXPECT_NEAR(last[0].begin, latin, tolerance);
    EXPECT_EQ(text.stretches(mixed, font, 1, 4).size(), 2U);
    EXPECT_EQ(text.stretches(mixed, font, 0, 8).size(), 1U);
}

TEST_F(Lines, TheEndOfALineLongerThanAnyPictureIsPainted) {
    const std::string line(3000, 'm');
    const double width = text.width(line, font);
    const platform::Drawing drawing{{platform::DrawText{line, font, platform::Color::of(platform::ColorRole::black),
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
