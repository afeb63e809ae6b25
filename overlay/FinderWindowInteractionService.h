// Acts on a Finder window through Accessibility on behalf of its bar: brings the window forward, and moves it while the
// bar is dragged. The panel's callbacks use it, one for each overlay. A window state holds no element, so the window is
// looked for anew at each gesture, by its geometry alone. Nothing is reported: a window that isn't found, or can't be
// read, stays as it is. Main thread only.
#pragma once

#include <optional>

#include "platform/Lifetime.h"
#include "platform/Platform.h"
#include "tracking/FinderWindowState.h"

namespace brindle {

class FinderWindowInteractionService {
public:
    explicit FinderWindowInteractionService(platform::Platform& thePlatform) : platform(thePlatform) {}

    // Brings the window forward, and Finder with it. The state's frame says where to look.
    void raise(const FinderWindowState& window);

    // Whether a drag has started; a full-screen window is only brought forward. The panel's frame, in AppKit space,
    // says where the window's top left corner is now, which is more than the state may know. The mouse position is in
    // AppKit space.
    bool beginDrag(const FinderWindowState& window, const platform::CGRect& panelFrame,
                   platform::CGPoint mousePosition);
    // Moves the window as far from where it was as the mouse is from where it was: one write, no read.
    void updateDrag(platform::CGPoint mousePosition);
    void endDrag();

private:
    struct Target {
        platform::AXUIElement application;
        platform::NSRunningApplication finder;
        platform::AXUIElement element;
    };
    // Fixed for one drag.
    struct DragSession {
        platform::AXUIElement application;
        platform::NSRunningApplication finder;
        platform::AXUIElement element;
        platform::CGPoint initialWindowPosition;  // top-left space
        platform::CGPoint initialMousePosition;   // AppKit space
    };

    std::optional<Target> target(const FinderWindowState& state, const std::optional<platform::CGRect>& panelFrame);
    std::optional<platform::AXUIElement> matchingWindowElement(const FinderWindowState& state,
                                                               const std::optional<platform::CGRect>& panelFrame,
                                                               const platform::AXUIElement& application);
    void focusAndRaise(const platform::AXUIElement& element, const platform::AXUIElement& application);
    // The raising sequence.
    void activate(const platform::AXUIElement& element, const platform::AXUIElement& application,
                  const platform::NSRunningApplication& finder);

    platform::Platform& platform;
    std::optional<DragSession> dragSession;
    platform::Lifetime lifetime;
};

}  // namespace brindle
