// Draws an open menu, its frame's top left corner at (0, 0). The corners are left square: the compositor rounds them by menuCornerRadius.
#pragma once

#include "desk/display/DrawingBuilder.h"
#include "desk/menus/OpenMenu.h"

namespace desk {

inline constexpr double menuCornerRadius = 8;

void drawMenu(DrawingBuilder& builder, const OpenMenu& menu);

}  // namespace desk
