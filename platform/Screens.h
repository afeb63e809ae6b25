// The displays, in AppKit space, and the colour scheme. Main thread only.
#pragma once

#include <optional>
#include <vector>

#include "platform/Drawing.h"
#include "platform/Geometry.h"
#include "platform/Published.h"

namespace platform {

struct NSScreen {
    CGRect frame;
    CGRect visibleFrame;  // without the menu bar and the Dock
    int maximumFramesPerSecond = 60;
    friend bool operator==(const NSScreen&, const NSScreen&) = default;
};

class Screens {
public:
    virtual ~Screens() = default;
    // The one that was configured first leads; empty when there is no display. The reference is good until the next turn.
    virtual const std::vector<NSScreen>& screens() = 0;
    // The screen with the keyboard focus.
    virtual std::optional<NSScreen> mainScreen() = 0;
};

// Of equal areas the earlier one, so that a rectangle on no screen gets the first; null without screens.
const NSScreen* screenShowingMost(const std::vector<NSScreen>& screens, const CGRect& appKitRect);

struct Appearance : ObservableObject {
    Published<ColorScheme> colorScheme{*this, ColorScheme::light};
};

}  // namespace platform
