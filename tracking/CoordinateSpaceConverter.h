// The way from top-left space, in which the window server and Accessibility speak, to AppKit space, in which everything is published. Both
// hang on one anchor screen, wherever a window lies. It doesn't look at the window's own screen. Main thread only.
#pragma once

#include <optional>

#include "platform/Geometry.h"
#include "platform/Screens.h"

namespace brindle::CoordinateSpaceConverter {

// Unchanged when there is no screen at all.
platform::CGRect appKitRect(platform::Screens& screens, const platform::CGRect& fromTopLeftRect);

// The frame of the screen at the origin, or of the main screen when none stands there.
std::optional<platform::CGRect> anchorFrame(platform::Screens& screens);

}  // namespace brindle::CoordinateSpaceConverter
