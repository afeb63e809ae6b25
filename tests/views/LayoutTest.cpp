// Frames worked out by hand: a character is 0.6 of the font size wide (6 points at size 10), a line 1.2 high (12 at
// 10), a symbol a square.
#include <gtest/gtest.h>

#include "tests/kit/FixedText.h"
#include "views/LayoutPass.h"
#include "views/Reconciler.h"
#include "views/Views.h"

namespace {

using namespace views;

std::string layOut(View view, CGSize size) {
    kit::FixedText text;
    Layout layout;
    LayoutPass pass(
        text, [](View& reader, const LayoutPass::Declaration& declare) { declare(reader.children); }, layout);
    pass.layOut(view, size);
    return layout.description();
}

View ten(std::string text) {
    return Text(std::move(text)).font({.size = 10}).lineLimit(1);
}
View box(double width, double height) {
    return View(Color::of(ColorRole::black)).frame({.width = width, .height = height});
}

TEST(Layout, AViewThatTakesLessThanItIsOfferedStandsInTheMiddle) {
    EXPECT_EQ(layOut(ten("abcd"), {100, 20}), "text \"abcd\" 38 4 24 12\n");
}

TEST(Layout, PaddingAndFramesApplyFromTheInsideOut) {
    EXPECT_EQ(
        layOut(ten("ab").padding(Edge::leading, 4).frame({.width = 30, .height = 20, .alignment = Alignment::trailing}),
               {30, 20}),
        "frame 0 0 30 20\n"
        "  padding 14 4 16 12\n"
        "    text \"ab\" 18 4 12 12\n");
    EXPECT_EQ(layOut(ten("ab").frame({.width = 30, .height = 20}).padding(Edge::leading, 4), {34, 20}),
              "padding 0 0 34 20\n"
              "  frame 4 0 30 20\n"
              "    text \"ab\" 13 4 12 12\n");
}

TEST(Layout, AFlexibleFrameGrowsToItsMaximumAndNotBelowItsContent) {
    EXPECT_EQ(layOut(ten("ab").frame({.maxWidth = infinity, .alignment = Alignment::leading}), {50, 12}),
              "flexibleFrame 0 0 50 12\n"
              "  text \"ab\" 0 0 12 12\n");
    EXPECT_EQ(layOut(ten("ab").frame({.maxWidth = 40, .maxHeight = infinity}), {50, 30}), "flexibleFrame 5 0 40 30\n"
                                                                                          "  text \"ab\" 19 9 12 12\n");
    EXPECT_EQ(layOut(ten("ab").frame({.minWidth = 20}), {50, 12}), "flexibleFrame 15 0 20 12\n"
                                                                   "  text \"ab\" 19 0 12 12\n");
}

TEST(Layout, TextOfferedLessTakesWhatItIsOfferedButNeverLessThanItsEllipsis) {
    EXPECT_EQ(layOut(ten("abcdefgh"), {30, 12}), "text \"abcdefgh\" 0 0 30 12\n");
    EXPECT_EQ(layOut(ten("abcdefgh"), {2, 12}), "text \"abcdefgh\" -2 0 6 12\n");
    EXPECT_EQ(layOut(ten("abcdefgh").fixedSize(true, false), {30, 12}), "fixedSize -9 0 48 12\n"
                                                                        "  text \"abcdefgh\" -9 0 48 12\n");
}

TEST(Layout, AStackServesTheLeastFlexibleFirst) {
    // The box is offered a third of 96 and takes 40; the text a half of 56 and takes 12; the colour gets the rest.
    EXPECT_EQ(layOut(HStack({.spacing = 2}, View(Color::of(ColorRole::black)), ten("ab"), box(40, 10)), {100, 20}),
              "hStack 0 0 100 20\n"
              "  shape 0 0 44 20\n"
              "  text \"ab\" 46 4 12 12\n"
              "  frame 60 5 40 10\n"
              "    shape 60 5 40 10\n");
}

TEST(Layout, AStackServesHigherPrioritiesFirstAndKeepsTheMinimumOfTheOthers) {
    // 60 points: the first keeps its ellipsis of 6, so the second gets all but that.
    EXPECT_EQ(layOut(HStack({.spacing = 0}, ten("abcdef"), ten("ghijklmnop").layoutPriority(1)), {60, 12}),
              "hStack 0 0 60 12\n"
              "  text \"abcdef\" 0 0 6 12\n"
              "  text \"ghijklmnop\" 6 0 54 12\n");
    EXPECT_EQ(layOut(HStack({.spacing = 0}, ten("abcdef"), ten("ghijkl")), {60, 12}), "hStack 0 0 60 12\n"
                                                                                      "  text \"abcdef\" 0 0 30 12\n"
                                                                                      "  text \"ghijkl\" 30 0 30 12\n");
}

TEST(Layout, DistinctPrioritiesWithRoomForAllGetTheirIdeals) {
    EXPECT_EQ(
        layOut(HStack({.spacing = 0}, ten("abc").layoutPriority(1), ten("de").padding(1).layoutPriority(2)), {60, 14}),
        "hStack 14 0 32 14\n"
        "  text \"abc\" 14 1 18 12\n"
        "  padding 32 0 14 14\n"
        "    text \"de\" 33 1 12 12\n");
}

TEST(Layout, SpacersAndDividersFollowTheStacksAxis) {
    EXPECT_EQ(layOut(HStack({.spacing = 0}, ten("a"), Spacer(), Divider(), ten("b")), {40, 20}),
              "hStack 0 0 40 20\n"
              "  text \"a\" 0 4 6 12\n"
              "  spacer 6 10 27 0\n"
              "  divider 33 0 1 20\n"
              "  text \"b\" 34 4 6 12\n");
    EXPECT_EQ(layOut(VStack({.alignment = HorizontalAlignment::leading, .spacing = 1}, ten("a"), Divider(), Spacer(0)),
                     {40, 20}),
              "vStack 0 0 40 20\n"
              "  text \"a\" 0 0 6 12\n"
              "  divider 0 13 40 1\n"
              "  spacer 0 15 0 5\n");
}

TEST(Layout, LayersAlignTheirChildren) {
    EXPECT_EQ(layOut(ZStack({.alignment = Alignment::leading}, View(Color::of(ColorRole::clear)), ten("ab")), {40, 20}),
              "layers 0 0 40 20\n"
              "  shape 0 0 40 20\n"
              "  text \"ab\" 0 4 12 12\n");
}

TEST(Layout, BackgroundsAndOverlaysTakeTheSizeOfWhatTheyDecorate) {
    EXPECT_EQ(layOut(ten("ab").background(Color::of(ColorRole::white)).overlay(box(4, 2), Alignment::bottom), {40, 20}),
              "overlay 14 4 12 12\n"
              "  background 14 4 12 12\n"
              "    shape 14 4 12 12\n"
              "    text \"ab\" 14 4 12 12\n"
              "  frame 18 14 4 2\n"
              "    shape 18 14 4 2\n");
}

TEST(Layout, AGeometryReaderTakesAllAndShowsItsContentFromTheTopLeft) {
    EXPECT_EQ(layOut(HStack({.spacing = 0}, box(10, 10),
                            GeometryReader([](CGSize size) { return box(size.width / 2, size.height); })),
                     {50, 20}),
              "hStack 0 0 50 20\n"
              "  frame 0 5 10 10\n"
              "    shape 0 5 10 10\n"
              "  geometryReader 10 0 40 20\n"
              "    frame 10 0 20 20\n"
              "      shape 10 0 20 20\n");
}

TEST(Layout, GroupsAndRepeatedContentAreChildrenOfTheStackAroundThem) {
    const std::vector<std::string> names{"a", "bc"};
    EXPECT_EQ(layOut(HStack({.spacing = 1}, EmptyView(), Group(ten("x"), EmptyView()),
                            ForEach(
                                names, [](const std::string& name) { return name; },
                                [](std::size_t, const std::string& name) { return ten(name); })),
                     {26, 12}),
              "hStack 0 0 26 12\n"
              "  text \"x\" 0 0 6 12\n"
              "  text \"a\" 7 0 6 12\n"
              "  text \"bc\" 14 0 12 12\n");
}

TEST(Layout, MoreModifiersThanAViewHasRoomForStillApplyInOrder) {
    EXPECT_EQ(layOut(ten("a").padding(1).padding(2).padding(3).padding(4), {26, 32}),
              "padding 0 0 26 32\n"
              "  padding 4 4 18 24\n"
              "    padding 7 7 12 18\n"
              "      padding 9 9 8 14\n"
              "        text \"a\" 10 10 6 12\n");
}

TEST(Layout, AGridGivesEachRowTheHeightOfItsHighestViewAndEachColumnItsShare) {
    std::vector<View> cells;
    cells.push_back(box(10, 10));
    cells.push_back(ten("ab"));
    cells.push_back(View(Color::of(ColorRole::black)).frame({.height = 4}));
    EXPECT_EQ(
        layOut(LazyVGrid({.columns = {{.spacing = 6}, {.spacing = 2}}, .spacing = 5}, std::move(cells)), {50, 40}),
        "grid 0 9.5 50 21\n"
        "  frame 6 10.5 10 10\n"
        "    shape 6 10.5 10 10\n"
        "  text \"ab\" 33 9.5 12 12\n"
        "  frame 0 26.5 22 4\n"
        "    shape 0 26.5 22 4\n");
}

}  // namespace
