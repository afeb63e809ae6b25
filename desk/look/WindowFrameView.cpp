#include "desk/look/WindowFrameView.h"

#include <array>
#include <utility>

#include "views/Views.h"

namespace desk {

namespace {

using platform::Color;
using platform::ColorRole;
using views::Alignment;
using views::Edge;
using views::View;

constexpr std::array<std::uint32_t, 3> buttonColors{0xFF5F57, 0xFEBC2E, 0x28C840};

View buttonView(WindowButton button, bool isBright, const Shades& shades) {
    const Color color =
        isBright ? Color::hex(buttonColors[static_cast<std::size_t>(button)]) : shades(0xCFCECF, 0x545356);
    return View(views::Capsule(platform::CornerStyle::circular).fill(color))
        .frame({.width = windowButtonDiameter, .height = windowButtonDiameter});
}

View titleBarView(const PlainWindow& window, const Shades& shades) {
    const bool hasRoom = window.size.width > 2 * windowButtonsWidth;
    return views::Text(hasRoom ? window.title : std::string())
        .font({13, platform::FontWeight::semibold})
        .foregroundStyle(titleColor(window.look))
        .padding(Edge::horizontal, windowButtonsWidth)
        .frame({.width = window.size.width, .height = windowTitleBarHeight})
        .background(titleBarColor(shades, window.look))
        .overlay(windowButtonsView(window.size, window.look, window.styleMask, shades), Alignment::leading)
        .overlay(View(views::Rectangle().fill(Color::of(ColorRole::separator))).frame({.height = 0.5}),
                 Alignment::bottom);
}

}  // namespace

Color titleColor(WindowLook look) {
    return Color::of(look == WindowLook::active ? ColorRole::primary : ColorRole::tertiary);
}

Color titleBarColor(const Shades& shades, WindowLook look) {
    return look == WindowLook::active ? shades(0xF6F5F6, 0x38373B) : shades(0xEDECED, 0x2C2B2E);
}

View windowButtonsView(platform::CGSize window, WindowLook look, unsigned styleMask, const Shades& shades) {
    const double distance = centerOf(WindowButton::minimize).x - centerOf(WindowButton::close).x;
    View row = views::HStack({.spacing = distance - windowButtonDiameter});
    for (const WindowButton button : windowButtons) {
        if (!windowButtonAt(centerOf(button), window)) continue;
        const bool isBright = look == WindowLook::active && (styleMask & styleBitOf(button)) != 0;
        row.addChildren(buttonView(button, isBright, shades));
    }
    return std::move(row)
        .padding(Edge::leading, centerOf(WindowButton::close).x - windowButtonDiameter / 2)
        .frame({.height = windowTitleBarHeight});
}

View windowEdgeView(const Shades& shades) {
    return views::RoundedRectangle(windowCornerRadius).strokeBorder(shades.ink(0.14), 0.5);
}

View plainWindowView(const PlainWindow& window, const Shades& shades, View content) {
    const double height = std::max(0.0, window.size.height - windowTitleBarHeight);
    return views::VStack({.spacing = 0}, titleBarView(window, shades),
                         std::move(content).frame({.width = window.size.width, .height = height}))
        .frame({.width = window.size.width, .height = window.size.height, .alignment = Alignment::top})
        .background(Color::of(ColorRole::windowBackground));
}

}  // namespace desk
