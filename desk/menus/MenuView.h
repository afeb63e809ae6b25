// What an open menu looks like, its frame's top left corner at (0, 0). The corners are left square: the compositor rounds them by menuCornerRadius.
#pragma once

#include "desk/look/Shades.h"
#include "desk/menus/OpenMenu.h"
#include "platform/Drawing.h"
#include "platform/Text.h"

namespace desk {

inline constexpr double menuCornerRadius = 8;

platform::Drawing drawingOf(const OpenMenu& menu, const Shades& shades, platform::TextSystem& text);

}  // namespace desk
