#include "desk/menus/Placement.h"

#include <algorithm>
#include <cmath>

namespace desk {

namespace {

using platform::CGPoint;
using platform::CGRect;
using platform::CGRectMake;
using platform::CGSize;
using platform::RectEdge;

constexpr double menuGap = 2;     // between a button and its menu
constexpr double roomMargin = 4;  // between a popover and the room's edges

// As near to `wanted` as keeps [answer, answer + length) within the bounds; too long a length begins at the lower one.
double shifted(double wanted, double length, double lowest, double highest) {
    return std::max(lowest, std::min(wanted, highest - length));
}

RectEdge opposite(RectEdge edge) {
    switch (edge) {
    case RectEdge::minX:
        return RectEdge::maxX;
    case RectEdge::maxX:
        return RectEdge::minX;
    case RectEdge::minY:
        return RectEdge::maxY;
    case RectEdge::maxY:
        break;
    }
    return RectEdge::minY;
}

bool isUpright(RectEdge edge) {
    return edge == RectEdge::minY || edge == RectEdge::maxY;
}

double roomBeyond(const CGRect& anchor, RectEdge edge, const CGRect& room) {
    switch (edge) {
    case RectEdge::minX:
        return anchor.minX() - room.minX();
    case RectEdge::maxX:
        return room.maxX() - anchor.maxX();
    case RectEdge::minY:
        return anchor.minY() - room.minY();
    case RectEdge::maxY:
        break;
    }
    return room.maxY() - anchor.maxY();
}

CGPoint middleOfEdge(const CGRect& anchor, RectEdge edge) {
    switch (edge) {
    case RectEdge::minX:
        return {anchor.minX(), anchor.midY()};
    case RectEdge::maxX:
        return {anchor.maxX(), anchor.midY()};
    case RectEdge::minY:
        return {anchor.midX(), anchor.minY()};
    case RectEdge::maxY:
        break;
    }
    return {anchor.midX(), anchor.maxY()};
}

// The arrow's tip stays clear of the round corners.
double tipAlong(double middle, double lowest, double highest) {
    const double inset = popoverCornerRadius + popoverArrowWidth / 2;
    if (highest - lowest < 2 * inset) return (lowest + highest) / 2;
    return std::clamp(middle, lowest + inset, highest - inset);
}

}  // namespace

CGRect placeMenuBelow(const CGRect& anchor, CGSize size, const CGRect& room) {
    const double width = std::min(size.width, room.width());
    const double below = anchor.minY() - menuGap - room.minY();
    const double above = room.maxY() - anchor.maxY() - menuGap;
    const bool standsBelow = size.height <= below || below >= above;
    const double height = std::min(size.height, std::max(0.0, standsBelow ? below : above));
    const double y = standsBelow ? anchor.minY() - menuGap - height : anchor.maxY() + menuGap;
    return CGRectMake(shifted(anchor.minX(), width, room.minX(), room.maxX()), y, width, height);
}

CGRect placeMenuAt(const CGPoint& point, CGSize size, const CGRect& room) {
    const double width = std::min(size.width, room.width());
    const double height = std::min(size.height, room.height());
    const bool fitsRight = point.x + width <= room.maxX();
    const bool fitsLeft = point.x - width >= room.minX();
    const double x = fitsRight || !fitsLeft ? point.x : point.x - width;
    return CGRectMake(shifted(x, width, room.minX(), room.maxX()),
                      shifted(point.y - height, height, room.minY(), room.maxY()), width, height);
}

PopoverPlace placePopover(const CGRect& anchor, RectEdge wanted, CGSize size, const CGRect& screen) {
    const CGRect room = CGRectInset(screen, roomMargin, roomMargin);
    const double depth = (isUpright(wanted) ? size.height : size.width) + popoverArrowLength;
    const bool fits = roomBeyond(anchor, wanted, room) >= depth;
    const bool fitsOpposite = roomBeyond(anchor, opposite(wanted), room) >= depth;
    const RectEdge edge = !fits && fitsOpposite ? opposite(wanted) : wanted;
    CGPoint tip = middleOfEdge(anchor, edge);
    if (isUpright(edge)) {
        const double x = shifted(tip.x - size.width / 2, size.width, room.minX(), room.maxX());
        const double y = edge == RectEdge::minY ? tip.y - depth : tip.y + popoverArrowLength;
        tip.x = tipAlong(tip.x, x, x + size.width);
        return {CGRectMake(std::round(x), y, size.width, size.height), tip, edge};
    }
    const double x = edge == RectEdge::minX ? tip.x - depth : tip.x + popoverArrowLength;
    const double y = shifted(tip.y - size.height / 2, size.height, room.minY(), room.maxY());
    tip.y = tipAlong(tip.y, y, y + size.height);
    return {CGRectMake(x, std::round(y), size.width, size.height), tip, edge};
}

}  // namespace desk
