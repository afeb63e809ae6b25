#include "pathbar/PathBarBackground.h"

#include <array>

#include "views/nodes/ShapeNode.h"

namespace brindle {

using namespace views;

namespace {

// A shade of one colour in the two schemes.
struct Shades {
    ColorRole role;
    double light;
    double dark;
    Color in(platform::ColorScheme scheme) const {
        return Color::of(role, scheme == platform::ColorScheme::light ? light : dark);
    }
};

struct Fill {
    ColorRole light;
    ColorRole dark;
    Color in(platform::ColorScheme scheme) const {
        return Color::of(scheme == platform::ColorScheme::light ? light : dark);
    }
};

constexpr Fill plain{ColorRole::white, ColorRole::black};
constexpr Fill control{ColorRole::windowBackground, ColorRole::controlBackground};
constexpr double capsule = -1;     // in place of a corner radius
constexpr double bottomLine = -1;  // in place of a line width

struct Style {
    double cornerRadius;
    Fill fill;
    double lineWidth;
    Shades line;
};

// In the order of the enumeration.
constexpr std::array<Style, 5> styles{{{10, plain, 2, {ColorRole::accent, 0.55, 0.55}},
                                       {7, plain, 1, {ColorRole::primary, 0.16, 0.28}},
                                       {capsule, control, 1, {ColorRole::primary, 0.14, 0.26}},
                                       {5, plain, bottomLine, {ColorRole::accent, 0.85, 0.85}},
                                       {6, plain, 1.5, {ColorRole::primary, 0.38, 0.58}}}};

}  // namespace

View pathBarBackground(PathBarDesign design, platform::ColorScheme colorScheme) {
    const Style& style = styles[static_cast<std::size_t>(design)];
    const Shape shape = style.cornerRadius == capsule ? Capsule() : RoundedRectangle(style.cornerRadius);
    View plate = shape.fill(style.fill.in(colorScheme));
    const Color line = style.line.in(colorScheme);
    if (style.lineWidth == bottomLine)
        return std::move(plate).overlay(Rectangle().fill(line).frame({.height = 2}).padding(Edge::horizontal, 4),
                                        Alignment::bottom);
    return std::move(plate).overlay(shape.strokeBorder(line, style.lineWidth));
}

}  // namespace brindle
