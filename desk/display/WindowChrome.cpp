#include "desk/display/WindowChrome.h"

#include <array>

namespace desk {

namespace {

using platform::CGRectMake;
using platform::CGSize;
using platform::Color;
using platform::ColorRole;

constexpr std::array<std::uint32_t, 3> buttonColors{0xFF5F57, 0xFEBC2E, 0x28C840};

}  // namespace

Color titleColor(WindowLook look) {
    return Color::of(look == WindowLook::active ? ColorRole::primary : ColorRole::tertiary);
}

Color titleBarColor(const DrawingBuilder& builder, WindowLook look) {
    return look == WindowLook::active ? builder.shade(0xF6F5F6, 0x38373B) : builder.shade(0xEDECED, 0x2C2B2E);
}

void drawTrafficLights(DrawingBuilder& builder, CGSize size, WindowLook look, unsigned styleMask) {
    for (const WindowButton button : windowButtons) {
        if (!windowButtonAt(centerOf(button), size)) continue;
        const std::uint32_t color = buttonColors[static_cast<std::size_t>(button)];
        const bool isBright = look == WindowLook::active && (styleMask & styleBitOf(button)) != 0;
        builder.circle(centerOf(button), windowButtonDiameter,
                       isBright ? Color::hex(color) : builder.shade(0xCFCECF, 0x545356));
    }
}

void drawPlainWindow(DrawingBuilder& builder, CGSize size, std::string_view title, WindowLook look,
                     unsigned styleMask) {
    builder.fill(CGRectMake(0, 0, size.width, size.height), Color::of(ColorRole::windowBackground));
    builder.fill(CGRectMake(0, 0, size.width, windowTitleBarHeight), titleBarColor(builder, look));
    builder.fill(CGRectMake(0, windowTitleBarHeight - 0.5, size.width, 0.5), Color::of(ColorRole::separator));
    drawTrafficLights(builder, size, look, styleMask);
    const double room = size.width - 2 * windowButtonsWidth;
    if (room > 0)
        builder.text(title, {13, platform::FontWeight::semibold}, titleColor(look),
                     CGRectMake(windowButtonsWidth, 0, room, windowTitleBarHeight), TextAlignment::center);
}

void drawWindowEdge(DrawingBuilder& builder, CGSize size) {
    builder.border(CGRectMake(0, 0, size.width, size.height), builder.shade(0x000000, 0xFFFFFF, 0.14), 0.5,
                   windowCornerRadius);
}

}  // namespace desk
