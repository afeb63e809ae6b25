// Where menus and popovers stand on the screen, given what they belong to and the room there is. AppKit screen points. Pure arithmetic; the room is the part of the
// screen that they may cover.
#pragma once

#include "desk/look/PopoverPlace.h"
#include "platform/Geometry.h"
#include "platform/Menus.h"

namespace desk {

// Both frames are cut to the room when the menu is larger; what is cut off is scrolled to.

// Below the anchor, flush with its left edge; above it where there is more room and below there isn't enough.
platform::CGRect placeMenuBelow(const platform::CGRect& anchor, platform::CGSize size, const platform::CGRect& room);
// The top left corner at the point; to the left of it, or further up, as far as the room's edges ask.
platform::CGRect placeMenuAt(const platform::CGPoint& point, platform::CGSize size, const platform::CGRect& room);

// Centred on the anchor's edge, or on the opposite one where only that leaves room, and moved along it as the room asks.
PopoverPlace placePopover(const platform::CGRect& anchor, platform::RectEdge wanted, platform::CGSize size,
                          const platform::CGRect& screen);

}  // namespace desk
