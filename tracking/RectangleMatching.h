// How near two rectangles are to each other, and which screen shows most of one: the two measures by which windows are recognised and
// screens chosen throughout tracking. Rectangles compared are in the same space.
#pragma once

#include <cmath>

#include "platform/Geometry.h"
#include "platform/Screens.h"

namespace brindle {

inline double frameDistance(const platform::CGRect& a, const platform::CGRect& b) {
    return std::abs(a.minX() - b.minX()) + std::abs(a.minY() - b.minY()) + std::abs(a.width() - b.width()) +
           std::abs(a.height() - b.height());
}

// Of equal areas the earlier screen, so that a rectangle on no screen gets the first; null without screens. Good until the next turn.
inline const platform::NSScreen* screenShowingMost(platform::Screens& screens, const platform::CGRect& appKitRect) {
    const platform::NSScreen* best = nullptr;
    double bestArea = 0;
    for (const platform::NSScreen& screen : screens.screens()) {
        const platform::CGRect shared = platform::CGRectIntersection(screen.frame, appKitRect);
        const double area = platform::CGRectIsNull(shared) ? 0 : shared.width() * shared.height();
        if (best != nullptr && !(area > bestArea)) continue;
        best = &screen;
        bestArea = area;
    }
    return best;
}

}  // namespace brindle
