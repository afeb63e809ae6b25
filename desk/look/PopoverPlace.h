// Where a popover stands on the screen, and how large its arrow is. AppKit screen points.
#pragma once

#include "platform/Geometry.h"
#include "platform/Menus.h"

namespace desk {

inline constexpr double popoverArrowLength = 11;
inline constexpr double popoverArrowWidth = 26;
inline constexpr double popoverCornerRadius = 10;

struct PopoverPlace {
    platform::CGRect body;    // what holds the content
    platform::CGPoint tip;    // of the arrow, on or beside the anchor's edge
    platform::RectEdge edge;  // of the anchor, where the popover stands
    friend bool operator==(const PopoverPlace&, const PopoverPlace&) = default;
};

}  // namespace desk
