// What all of the desk's titled windows have in common: background, title bar with its three buttons, edge. The corners are left square: the
// compositor rounds them by windowCornerRadius.
#pragma once

#include <string_view>

#include "desk/display/DrawingBuilder.h"
#include "desk/windows/WindowFrame.h"
#include "platform/Geometry.h"

namespace desk {

inline constexpr double windowCornerRadius = 10;

enum class WindowLook { active, inactive };

// Buttons that the style hasn't are dimmed.
void drawTrafficLights(DrawingBuilder& builder, platform::CGSize size, WindowLook look,
                       unsigned styleMask = everyWindowButton);
// Background, title bar with a centred title, buttons.
void drawPlainWindow(DrawingBuilder& builder, platform::CGSize size, std::string_view title, WindowLook look,
                     unsigned styleMask = everyWindowButton);
// The last thing drawn of a window.
void drawWindowEdge(DrawingBuilder& builder, platform::CGSize size);

platform::Color titleColor(WindowLook look);
platform::Color titleBarColor(const DrawingBuilder& builder, WindowLook look);

}  // namespace desk
