// The measure that following windows and placing bars have in common: the tracker keeps room of this height above the front window, and the
// overlay makes its panels that high.
#pragma once

namespace brindle::OverlayMetrics {

inline constexpr double barHeight = 44.0;

}  // namespace brindle::OverlayMetrics
