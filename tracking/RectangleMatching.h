// How near two rectangles are to each other: the measure by which windows are recognised throughout tracking and by bars. It converts nothing; both are in the same space.
#pragma once

#include <cmath>

#include "platform/Geometry.h"

namespace brindle {

inline double frameDistance(const platform::CGRect& a, const platform::CGRect& b) {
    return std::abs(a.minX() - b.minX()) + std::abs(a.minY() - b.minY()) + std::abs(a.width() - b.width()) +
           std::abs(a.height() - b.height());
}

}  // namespace brindle
