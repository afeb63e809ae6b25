// Lengths on half points, the pixels of a 2x display: what is on them is crisp.
// It knows nothing of the display at hand.
#pragma once

#include <cmath>

namespace views {

inline double toHalfPoint(double length) {
    return std::round(length * 2) / 2;
}
inline double upToHalfPoints(double length) {
    return std::ceil(length * 2) / 2;
}

}  // namespace views
