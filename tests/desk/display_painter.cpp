// Probe points in painted shapes: the right shade in the right pixel, edges on whole pixels, corners cut, whichever way the painter took.
#include <gtest/gtest.h>

#include <vector>

#include "tests/desk/display_Picture.h"

namespace {

using picture::isNear;
using platform::CGRect;
using platform::CGRectMake;
using platform::Color;
using platform::ColorRole;
using platform::ColorScheme;
using platform::CornerStyle;

struct PlateStyle {
    const char* name;
    double radius;
    Color fillLight;
    Color fillDark;
    Color lineLight;
    Color lineDark;
    double lineWidth;
    QColor centreLight;
    QColor centreDark;
    QColor edgeLight;  // in the middle of the top edge
    QColor edgeDark;
};

std::ostream& operator<<(std::ostream& out, const PlateStyle& style) {
    return out << style.name;
}

constexpr double width = 300;
constexpr double height = 32;

platform::Drawing plate(const PlateStyle& style, ColorScheme scheme) {
    const bool isDark = scheme == ColorScheme::dark;
    const CGRect rect = CGRectMake(0, 0, width, height);
    const CGRect line = CGRectInset(rect, style.lineWidth / 2, style.lineWidth / 2);
    platform::Drawing drawing;
    drawing.operations.emplace_back(
        platform::FillShape{{rect, style.radius, CornerStyle::continuous}, isDark ? style.fillDark : style.fillLight});
    drawing.operations.emplace_back(
        platform::StrokeShape{{line, style.radius - style.lineWidth / 2, CornerStyle::continuous},
                              isDark ? style.lineDark : style.lineLight,
                              style.lineWidth});
    return drawing;
}

class Plate : public testing::TestWithParam<PlateStyle> {};

TEST_P(Plate, HasItsShadesAndSharpEdges) {
    const PlateStyle& style = GetParam();
    for (const ColorScheme scheme : {ColorScheme::light, ColorScheme::dark}) {
        const QImage image = picture::paint(plate(style, scheme), {width, height}, 2, scheme);
        const bool isDark = scheme == ColorScheme::dark;
        const QColor centre = isDark ? style.centreDark : style.centreLight;
        const QColor edge = isDark ? style.edgeDark : style.edgeLight;
        const int line = static_cast<int>(style.lineWidth * 2);
        EXPECT_TRUE(isNear(image.pixelColor(300, 32), centre)) << image.pixelColor(300, 32).name().toStdString();
        for (const int y : {0, line - 1, 63, 64 - line})
            EXPECT_TRUE(isNear(image.pixelColor(300, y), edge)) << y << image.pixelColor(300, y).name().toStdString();
        for (const int y : {line, 63 - line}) EXPECT_TRUE(isNear(image.pixelColor(300, y), centre)) << y;
        for (const int x : {0, line - 1, 599, 600 - line})
            EXPECT_TRUE(isNear(image.pixelColor(x, 32), edge)) << x << image.pixelColor(x, 32).name().toStdString();
        for (const QPoint corner : {QPoint(0, 0), QPoint(599, 0), QPoint(0, 63), QPoint(599, 63)})
            EXPECT_EQ(image.pixelColor(corner).alpha(), 0);
        // No seam where the corners' pictures meet the sides.
        for (int x = 70; x < 530; ++x) ASSERT_EQ(image.pixelColor(x, 1), image.pixelColor(300, 1)) << x;
    }
}

// The line's shade is its colour over the plate's: 255 - 255 * 0.85 * 0.16 = 220, and so on.
INSTANTIATE_TEST_SUITE_P(
    Styles, Plate,
    testing::Values(PlateStyle{"simple", 7, Color::of(ColorRole::white), Color::of(ColorRole::black),
                               Color::of(ColorRole::primary, 0.16), Color::of(ColorRole::primary, 0.28), 1,
                               QColor(255, 255, 255), QColor(0, 0, 0), QColor(220, 220, 220), QColor(61, 61, 61)},
                    PlateStyle{"outline", 10, Color::of(ColorRole::white), Color::of(ColorRole::black),
                               Color::of(ColorRole::accent, 0.55), Color::of(ColorRole::accent, 0.55), 2,
                               QColor(255, 255, 255), QColor(0, 0, 0), QColor(115, 182, 255), QColor(6, 73, 140)},
                    PlateStyle{"capsule", 16, Color::of(ColorRole::windowBackground),
                               Color::of(ColorRole::controlBackground), Color::of(ColorRole::primary, 0.14),
                               Color::of(ColorRole::primary, 0.26), 1, QColor(236, 236, 236), QColor(30, 30, 30),
                               QColor(208, 208, 208), QColor(80, 80, 80)},
                    PlateStyle{"graphite", 6, Color::of(ColorRole::white), Color::of(ColorRole::black),
                               Color::of(ColorRole::primary, 0.38), Color::of(ColorRole::primary, 0.58), 1.5,
                               QColor(255, 255, 255), QColor(0, 0, 0), QColor(173, 173, 173), QColor(126, 126, 126)}),
    [](const auto& style) { return std::string(style.param.name); });

platform::Drawing roundedBlack(const CGRect& rect, double radius, CornerStyle corners) {
    platform::Drawing drawing;
    drawing.operations.emplace_back(platform::FillShape{{rect, radius, corners}, Color::of(ColorRole::black)});
    return drawing;
}

// Put together from pieces on whole pixels, drawn as one path between them: both are the same shape, half a pixel apart.
TEST(Corner, IsTheSameWhicheverWayItIsPainted) {
    for (const CornerStyle style : {CornerStyle::circular, CornerStyle::continuous}) {
        const QImage whole = picture::paint(roundedBlack(CGRectMake(0, 0, 60, 40), 10, style), {60, 40});
        const QImage between = picture::paint(roundedBlack(CGRectMake(0.25, 0.25, 60, 40), 10, style), {62, 42});
        for (int i = 0; i < 24; ++i) {
            const int difference = whole.pixelColor(i, i).alpha() - between.pixelColor(i, i).alpha();
            EXPECT_GE(difference, 0) << i;
            EXPECT_LE(difference, 190) << i;
        }
        EXPECT_EQ(between.pixelColor(60, 40).alpha(), 255);
    }
}

// It leaves the side earlier than a circle of its radius and passes through the same point on the diagonal.
TEST(Corner, ContinuousReachesFurtherAlongTheSides) {
    const CGRect rect = CGRectMake(0, 0, 60, 60);
    const QImage circular = picture::paint(roundedBlack(rect, 10, CornerStyle::circular), {60, 60});
    const QImage continuous = picture::paint(roundedBlack(rect, 10, CornerStyle::continuous), {60, 60});
    EXPECT_EQ(circular.pixelColor(21, 0).alpha(), 255);
    EXPECT_LT(continuous.pixelColor(21, 0).alpha(), 250);
    EXPECT_GT(continuous.pixelColor(21, 0).alpha(), 0);
    for (const int i : {4, 7, 8})
        EXPECT_NEAR(continuous.pixelColor(i, i).alpha(), circular.pixelColor(i, i).alpha(), 40) << i;
}

TEST(Corner, OfACapsuleIsAHalfCircle) {
    const QImage image =
        picture::paint(roundedBlack(CGRectMake(0, 0, 100, 32), 99, CornerStyle::continuous), {100, 32});
    // At 45 degrees the circle of 32 pixels' radius passes 32 - 22.63 = 9.37 pixels in from both edges.
    EXPECT_EQ(image.pixelColor(8, 8).alpha(), 0);
    EXPECT_EQ(image.pixelColor(10, 10).alpha(), 255);
    EXPECT_GE(image.pixelColor(0, 32).alpha(), 250);
}

TEST(Painter, DrawsInOrderAndWithinClips) {
    platform::Drawing drawing;
    const auto fill = [&](const CGRect& rect, std::uint32_t rgb) {
        drawing.operations.emplace_back(platform::FillShape{{rect}, Color::hex(rgb)});
    };
    fill(CGRectMake(0, 0, 20, 20), 0xFF0000);
    drawing.operations.emplace_back(platform::BeginClip{CGRectMake(0, 0, 10, 20)});
    drawing.operations.emplace_back(platform::BeginClip{CGRectMake(5, 0, 15, 10)});
    fill(CGRectMake(0, 0, 20, 20), 0x00FF00);
    drawing.operations.emplace_back(platform::EndClip{});
    fill(CGRectMake(0, 15, 20, 5), 0x0000FF);
    drawing.operations.emplace_back(platform::EndClip{});
    drawing.operations.emplace_back(platform::EndClip{});  // one too many does no harm
    fill(CGRectMake(15, 0, 5, 5), 0xFFFFFF);
    const QImage image = picture::paint(drawing, {20, 20}, 1);
    const std::vector<std::pair<QPoint, QRgb>> probes{
        {{2, 2}, 0xFFFF0000},  {{7, 2}, 0xFF00FF00},  {{7, 12}, 0xFFFF0000},  {{12, 2}, 0xFFFF0000},
        {{2, 17}, 0xFF0000FF}, {{9, 17}, 0xFF0000FF}, {{10, 17}, 0xFFFF0000}, {{17, 2}, 0xFFFFFFFF},
    };
    for (const auto& [point, color] : probes) EXPECT_EQ(image.pixel(point), color) << point.x() << " " << point.y();
}

TEST(Painter, CoversTextWithWhatComesLater) {
    platform::Drawing drawing;
    drawing.operations.emplace_back(
        platform::DrawText{"Covered", {13}, Color::of(ColorRole::black), CGRectMake(4, 2, 80, 16)});
    drawing.operations.emplace_back(platform::FillShape{{CGRectMake(0, 0, 100, 20)}, Color::of(ColorRole::white)});
    EXPECT_TRUE(picture::inked(picture::paint(drawing, {100, 20}), Qt::white).isEmpty());
}

// Capital letters stand in the middle of their box, to a pixel and a half, in any size.
TEST(Painter, CentresTextOnItsLine) {
    for (const double size : {10.0, 11.0, 13.0, 15.0, 22.0}) {
        platform::Drawing drawing;
        drawing.operations.emplace_back(
            platform::DrawText{"HEIM", {size}, Color::of(ColorRole::black), CGRectMake(4, 0, 150, 40)});
        const QRect ink = picture::inked(picture::paint(drawing, {160, 40}));
        EXPECT_NEAR((ink.top() + ink.bottom() + 1) / 2.0, 40, size / 10 + 1.5) << size;
    }
}

TEST(Painter, SurvivesShapesWithoutSense) {
    const double huge = 1e300;
    platform::Drawing drawing;
    for (const CGRect& rect : {CGRectMake(5, 5, -3, 10), CGRectMake(0, 0, 0, 0), CGRectMake(1, 1, 0.3, 0.3)})
        for (const double radius : {-1.0, 0.0, 5.0, huge}) {
            drawing.operations.emplace_back(
                platform::FillShape{{rect, radius, CornerStyle::continuous}, Color::of(ColorRole::red)});
            drawing.operations.emplace_back(
                platform::StrokeShape{{rect, radius, CornerStyle::circular}, Color::of(ColorRole::red), 1});
        }
    drawing.operations.emplace_back(platform::DrawText{"", {0}, {}, {}});
    drawing.operations.emplace_back(platform::DrawText{"x", {-4}, {}, CGRectMake(0, 0, -5, -5)});
    drawing.operations.emplace_back(platform::DrawSymbol{"folder", {0}, {}, {}});
    const QImage image = picture::paint(drawing, {20, 20});
    EXPECT_EQ(image.pixelColor(30, 30).alpha(), 0);
}

}  // namespace
