#include "desk/desktop/Visibility.h"

#include <algorithm>

#include "desk/look/WindowFrameView.h"
#include "platform/Windows.h"

namespace desk {

namespace {

using platform::CGRect;

bool overlap(const CGRect& a, const CGRect& b) {
    const CGRect shared = platform::CGRectIntersection(a, b);
    return !platform::CGRectIsNull(shared) && shared.width() > 0 && shared.height() > 0;
}

bool contains(const CGRect& outer, const CGRect& inner) {
    return inner.minX() >= outer.minX() && inner.maxX() <= outer.maxX() && inner.minY() >= outer.minY() &&
           inner.maxY() <= outer.maxY();
}

bool isOpaque(const ServerWindow& window) {
    return window.window == nullptr || (window.window->settings().styleMask & platform::NSWindowStyleMask::titled) != 0;
}

// Rounded corners show what is behind them.
bool hides(const ServerWindow& front, const ServerWindow& back) {
    return isOpaque(front) && (contains(CGRectInset(front.frame, windowCornerRadius, 0), back.frame) ||
                               contains(CGRectInset(front.frame, 0, windowCornerRadius), back.frame));
}

}  // namespace

std::vector<const ServerWindow*> visibleWindows(const std::vector<const ServerWindow*>& frontToBack,
                                                const std::vector<platform::NSScreen>& screens) {
    std::vector<const ServerWindow*> visible;
    for (const ServerWindow* window : frontToBack) {
        const bool onScreen = std::any_of(screens.begin(), screens.end(),
                                          [&](const auto& screen) { return overlap(screen.frame, window->frame); });
        const bool hidden = std::any_of(visible.begin(), visible.end(),
                                        [&](const ServerWindow* front) { return hides(*front, *window); });
        if (onScreen && !hidden) visible.push_back(window);
    }
    return visible;
}

}  // namespace desk
