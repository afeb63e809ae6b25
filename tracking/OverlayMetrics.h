// The measure that following windows and drawing bars have in common. The tracker keeps room of this height above the front window; the
// bar's own metrics take it from here.
#pragma once

namespace brindle::OverlayMetrics {

inline constexpr double barHeight = 44.0;

}  // namespace brindle::OverlayMetrics
