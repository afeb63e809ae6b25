// What all titled windows have in common, as views: title bar with its three buttons, background, edge. The corners are left square: the compositor rounds them by windowCornerRadius.
#pragma once

#include <string>

#include "desk/look/Shades.h"
#include "desk/windows/WindowFrame.h"
#include "platform/Geometry.h"
#include "views/View.h"

namespace desk {

inline constexpr double windowCornerRadius = 10;

enum class WindowLook { active, inactive };

platform::Color titleColor(WindowLook look);
platform::Color titleBarColor(const Shades& shades, WindowLook look);

// From the title bar's left end; none in a window that is too narrow. Buttons that the style hasn't are dimmed.
views::View windowButtonsView(platform::CGSize window, WindowLook look, unsigned styleMask, const Shades& shades);
// Half a point wide; the last thing drawn of a window.
views::View windowEdgeView(const Shades& shades);

struct PlainWindow {
    std::string title;
    platform::CGSize size;
    WindowLook look = WindowLook::inactive;
    unsigned styleMask = everyWindowButton;
};
// With a centred title above the content, without the edge.
views::View plainWindowView(const PlainWindow& window, const Shades& shades, views::View content = {});

}  // namespace desk
