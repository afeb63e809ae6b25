// The numbers of the bar that several files share: its look here, and the overlay's panel, whose drag zone lies over
// the brand label. Lengths are in points; the height of the whole bar is in tracking/OverlayMetrics.h.
#pragma once

#include <algorithm>

namespace brindle::PathBarMetrics {

inline constexpr double plateMargin = 6;
inline constexpr double rowHeight = 32;

inline constexpr double brandFraction = 0.13;
inline constexpr double brandMinimum = 112;
inline constexpr double brandLimit = 150;
inline constexpr double brandMaximum = 149;

// The folder menu behind a crumb.
inline constexpr double chevronWidth = 22;

inline constexpr double copyButtonWidth = 30;
inline constexpr double copyButtonHeight = 28;

// The brand label's width in a bar of this width. With its divider it is the fraction of the bar, within bounds.
inline double brandWidth(double barWidth) {
    const double share = barWidth * brandFraction;
    return share < brandLimit ? std::max(share, brandMinimum) - 1 : brandMaximum;
}

// The x up to and including which a press in the panel is a press on the brand.
inline double brandRegionLimit(double barWidth) {
    return brandWidth(barWidth) + plateMargin;
}

}  // namespace brindle::PathBarMetrics
