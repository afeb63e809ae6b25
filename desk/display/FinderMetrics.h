// The measures of a folder window, in points, that its content and its drawing share.
#pragma once

#include "desk/display/WindowChrome.h"

namespace desk {

inline constexpr double finderHeaderHeight = 24;
inline constexpr double finderRowHeight = 24;
inline constexpr double finderStatusHeight = 24;
inline constexpr double finderSidebarWidth = 168;
// A narrower window has no sidebar.
inline constexpr double finderSidebarThreshold = 460;

}  // namespace desk
