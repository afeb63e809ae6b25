// How much of a shadow is left beside its edge.
#pragma once

#include <cmath>
#include <numbers>

namespace desk {

// From 0 far outside to 1 far inside; `inside` is the distance from the edge, negative outside.
inline double blurredEdge(double inside, double sigma) {
    return 0.5 * (1 + std::erf(inside / (sigma * std::numbers::sqrt2)));
}

}  // namespace desk
