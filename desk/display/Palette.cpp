#include "desk/display/Palette.h"

#include <algorithm>
#include <array>

namespace desk {

namespace {

struct Shade {
    std::uint32_t rgb;
    double opacity;
};

struct Row {
    platform::ColorRole role;
    Shade light;
    Shade dark;
};

using platform::ColorRole;

constexpr std::array rows{
    Row{ColorRole::primary, {0x000000, 0.85}, {0xFFFFFF, 0.85}},
    Row{ColorRole::secondary, {0x000000, 0.5}, {0xFFFFFF, 0.55}},
    Row{ColorRole::tertiary, {0x000000, 0.26}, {0xFFFFFF, 0.25}},
    Row{ColorRole::white, {0xFFFFFF, 1}, {0xFFFFFF, 1}},
    Row{ColorRole::black, {0x000000, 1}, {0x000000, 1}},
    Row{ColorRole::red, {0xFF3B30, 1}, {0xFF453A, 1}},
    Row{ColorRole::green, {0x28CD41, 1}, {0x32D74B, 1}},
    Row{ColorRole::orange, {0xFF9500, 1}, {0xFF9F0A, 1}},
    Row{ColorRole::separator, {0x000000, 0.1}, {0xFFFFFF, 0.1}},
    Row{ColorRole::windowBackground, {0xECECEC, 1}, {0x323232, 1}},
    Row{ColorRole::controlBackground, {0xFFFFFF, 1}, {0x1E1E1E, 1}},
    Row{ColorRole::selectedText, {0xB3D7FF, 1}, {0x3F638B, 1}},
};

QColor shade(std::uint32_t rgb, double opacity) {
    QColor result(QRgb(rgb & 0xFFFFFF));
    result.setAlphaF(static_cast<float>(std::clamp(opacity, 0.0, 1.0)));
    return result;
}

}  // namespace

QColor Palette::resolve(const platform::Color& color) const {
    if (color.role == ColorRole::clear) return QColor(0, 0, 0, 0);
    if (color.role == ColorRole::custom) return shade(color.rgb, color.opacity);
    if (color.role == ColorRole::accent) return shade(isDark() ? darkAccent : lightAccent, color.opacity);
    const auto* row = std::find_if(rows.begin(), rows.end(), [&](const Row& each) { return each.role == color.role; });
    if (row == rows.end()) return QColor(0, 0, 0, 0);
    const Shade& own = isDark() ? row->dark : row->light;
    return shade(own.rgb, own.opacity * color.opacity);
}

}  // namespace desk
