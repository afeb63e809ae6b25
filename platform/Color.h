// Colours as views name them: by role, so that a window follows the colour scheme and the user's accent without being declared anew.
#pragma once

#include <cstdint>

namespace platform {

enum class ColorScheme { light, dark };

// Colours by role; the backend resolves them by colour scheme and accent when it paints.
enum class ColorRole : std::uint8_t {
    primary,
    secondary,
    tertiary,
    accent,
    white,
    black,
    red,
    green,
    orange,
    separator,
    windowBackground,
    controlBackground,
    selectedText,
    clear,
    custom
};

struct Color {
    ColorRole role = ColorRole::primary;
    double opacity = 1;
    std::uint32_t rgb = 0;  // 0xRRGGBB, of ColorRole::custom alone

    static constexpr Color of(ColorRole theRole, double theOpacity = 1) { return {theRole, theOpacity, 0}; }
    static constexpr Color hex(std::uint32_t theRgb, double theOpacity = 1) {
        return {ColorRole::custom, theOpacity, theRgb};
    }
    friend bool operator==(const Color&, const Color&) = default;
};

}  // namespace platform
