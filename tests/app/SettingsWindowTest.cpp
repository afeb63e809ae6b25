// The settings window as it is painted: each card with its sample, in both schemes, whichever is chosen; and what gives way where there is little room.
#include <gtest/gtest.h>

#include "pathbar/PathBarDesignManager.h"
#include "tests/kit/MachineKit.h"
#include "tests/kit/PaintedShapes.h"

namespace brindle {
namespace {

using platform::CGRect;
using platform::ColorScheme;

struct SettingsWindowTest : testing::Test {
    kit::OrvaneDesk mac;
    PathBarDesignManager& designs = mac.launch().platform().shared<PathBarDesignManager>();

    platform::NSWindow& show() {
        mac.orvane().appDelegate.showSettings();
        mac.machine.settle();
        for (const auto& [number, window] : mac.application().windows())
            if (window->settings().title == "Orvane Settings" && window->isVisible()) return *window;
        throw std::runtime_error("the window isn't there");
    }
};

// 24 and 14 aside leave 604 for two columns of 296 and 12 between; 206 + 18 + 10 + 14 + 15 + 12 are above the first card.
struct Card {
    PathBarDesign design;
    double x, y;
    const char* fill[2];  // light, dark
    double radius;
    const char* outline;
    double lineWidth;
};
const Card cards[] = {{PathBarDesign::finderSimple, 38, 275, {"white 1", "black 1"}, 6, "line primary 0.18", 1},
                      {PathBarDesign::standard, 346, 275, {"white 1", "black 1"}, 8, "line accent 0.65", 2},
                      {PathBarDesign::searchField, 38, 392, {"window 1", "window 1"}, 20, "line primary 0.16", 1},
                      {PathBarDesign::minimalLine, 346, 392, {"white 1", "black 1"}, 4, nullptr, 0},
                      {PathBarDesign::graphite, 38, 509, {"white 1", "black 1"}, 5, "line primary 0.45", 1.5}};

std::string shape(const std::string& what, double x, double y, double width, double height, double radius) {
    std::ostringstream text;
    text << what << " at " << x << " " << y << " is " << width << " " << height << " round " << radius;
    return text.str();
}

std::string stroke(const std::string& what, double x, double y, double width, double height, double radius,
                   double lineWidth) {
    return shape(what, x, y, width, height, radius) + " wide " + kit::shortest(lineWidth);
}

void addCard(std::vector<std::string>& lines, const Card& card, bool isDark, bool isSelected) {
    const double x = card.x + 11;
    const double y = card.y + 11;
    lines.push_back(shape(isSelected ? "accent 0.08" : "window 1", card.x, card.y, 296, 105, 10));
    lines.push_back(shape(card.fill[isDark ? 1 : 0], x, y, 274, 40, card.radius));
    lines.push_back(card.outline == nullptr ? shape("accent 1", x, y + 38, 274, 2, 0)
                                            : stroke(card.outline, x, y, 274, 40, card.radius, card.lineWidth));
    lines.push_back(shape("primary 0.12", x + 47, y + 12, 1, 16, 0));     // 10 + 32 + 5
    lines.push_back(shape("primary 0.12", x + 245.5, y + 12, 1, 16, 0));  // 274 - 10 - 12.5 - 5 - 1
    lines.push_back(
        stroke(isSelected ? "line accent 1" : "line primary 0.1", card.x, card.y, 296, 105, 10, isSelected ? 2 : 1));
}

TEST_F(SettingsWindowTest, EachCardShowsItsStyleAndTheChosenOneIsMarked) {
    platform::NSWindow& window = show();
    for (const ColorScheme scheme : {ColorScheme::light, ColorScheme::dark})
        for (const Card& chosen : cards) {
            mac.machine.appearance.colorScheme.set(scheme);
            designs.select(chosen.design);
            mac.machine.settle();
            std::vector<std::string> expected;
            for (const Card& card : cards)
                addCard(expected, card, scheme == ColorScheme::dark, card.design == chosen.design);
            auto painted = kit::shapes(window.contentView()->drawing());
            ASSERT_EQ(painted.size(), expected.size() + 8);  // window, two boxes, two switches, divider
            painted.erase(painted.begin(), painted.begin() + 8);
            EXPECT_EQ(painted, expected);
        }
}

TEST_F(SettingsWindowTest, OnlyTheLongestTextOfASampleGivesWayAndNothingLeavesItsCard) {
    platform::NSWindow& window = show();
    for (const double width : {600.0, 640.0, 680.0, 1000.0}) {
        window.setFrame({{100, 100}, {width, 678}}, true);
        mac.machine.settle();
        const double cardWidth = (width - 88) / 2;
        int samples = 0;
        for (const auto& operation : window.contentView()->drawing().operations) {
            const auto* text = std::get_if<platform::DrawText>(&operation);
            if (text == nullptr || text->rect.minY() < 275) continue;
            const double x = text->rect.minX() < 38 + cardWidth ? 49 : 61 + cardWidth;
            EXPECT_TRUE(text->rect.minX() >= x && text->rect.maxX() <= x + cardWidth - 22) << width << text->text;
            const bool isCut = text->text.find("…") != std::string::npos;
            EXPECT_EQ(isCut, width < 680 && text->text.starts_with("Mac")) << width << text->text;
            samples += text->text == "Project" ? 1 : 0;
        }
        EXPECT_EQ(samples, 5);
    }
}

}  // namespace
}  // namespace brindle
