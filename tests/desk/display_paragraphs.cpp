// Texts of several lines as views: measured, placed and drawn with the desk's fonts.
#include <gtest/gtest.h>

#include "desk/display/QtTextSystem.h"
#include "tests/kit/ViewPlatform.h"
#include "views/Views.h"

namespace {

using namespace views;

constexpr const char* sentence = "The quick brown fox jumps over the lazy dog";

struct Page {
    std::uint32_t lineLimit;
    HorizontalAlignment alignment;
    double height;  // of the frame around it

    View body() const {
        return VStack({.spacing = 0}, Text(sentence)
                                          .font({.size = 13})
                                          .lineLimit(lineLimit)
                                          .multilineTextAlignment(alignment)
                                          .frame({.width = 100, .height = height, .alignment = Alignment::topLeading})
                                          .clipped());
    }
};

class Paragraphs : public testing::Test {
protected:
    std::vector<platform::DrawText> drawn(const Page& page) {
        kit::ViewPlatform machine(text);
        NSHostingView<Page> host(machine.platform, Page(page));
        host.setSize({100, 200});
        machine.endTurn();
        std::vector<platform::DrawText> lines;
        for (const auto& operation : host.drawing().operations)
            if (const auto* line = std::get_if<platform::DrawText>(&operation)) lines.push_back(*line);
        return lines;
    }

    desk::QtTextSystem text;
    const double lineHeight = text.metrics({.size = 13}).lineHeight();
};

TEST_F(Paragraphs, AreBrokenToTheirWidthAndAligned) {
    const auto lines = drawn({0, HorizontalAlignment::trailing, 150});
    ASSERT_EQ(lines.size(), 4U);
    std::string all;
    for (std::size_t index = 0; index < lines.size(); ++index) {
        all += (index == 0 ? "" : " ") + lines[index].text;
        EXPECT_LE(lines[index].rect.maxX(), 100);
        EXPECT_NEAR(lines[index].rect.maxX(), lines[0].rect.maxX(), 0.6);
        EXPECT_NEAR(lines[index].rect.minY() - lines[0].rect.minY(), static_cast<double>(index) * lineHeight, 1e-9);
    }
    EXPECT_EQ(all, sentence);
}

TEST_F(Paragraphs, EndInAnEllipsisOnlyWhereTheyAreLimited) {
    const auto lines = drawn({2, HorizontalAlignment::leading, 150});
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_TRUE(lines[1].text.ends_with("…")) << lines[1].text;
    EXPECT_EQ(drawn({1, HorizontalAlignment::leading, 150}).size(), 1U);
}

TEST_F(Paragraphs, GiveUpNoLinesToHeightAndAClipLeavesOutWhatItHides) {
    const auto lines = drawn({0, HorizontalAlignment::leading, 2 * lineHeight});
    ASSERT_EQ(lines.size(), 2U) << "two of four are in the clip";
    EXPECT_FALSE(lines[1].text.ends_with("…"));
}

struct Shapes {
    View body() const {
        return ZStack({}, Circle().stroke(Color::of(ColorRole::accent), 4),
                      RoundedRectangle(6).fill(Color::of(ColorRole::red)));
    }
};

TEST(DrawnShapes, ACircleIsInTheMiddleAndAStrokeOnTheEdge) {
    kit::ViewPlatform machine;
    NSHostingView<Shapes> host(machine.platform, {});
    host.setSize({60, 40});
    machine.endTurn();
    const platform::Drawing expected{
        {platform::StrokeShape{{{{10, 0}, {40, 40}}, 20, CornerStyle::circular}, Color::of(ColorRole::accent), 4},
         platform::FillShape{{{{0, 0}, {60, 40}}, 6, CornerStyle::continuous}, Color::of(ColorRole::red)}}};
    EXPECT_EQ(host.drawing(), expected);
}

}  // namespace
