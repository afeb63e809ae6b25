// The window of one bar: borderless, and able to take the keyboard without its application becoming active. It tells
// gestures apart, a press anywhere from a drag by the brand, and hands them to its callbacks; what they do to Finder
// isn't its business. FinderOverlayWindowController makes it. Main thread only.
#pragma once

#include <functional>

#include "platform/Windows.h"

namespace brindle {

class FinderOverlayPanel final : public platform::NSPanel {
public:
    explicit FinderOverlayPanel(platform::Platform& thePlatform);

    // At each left or right mouse down, before anything else is done about it.
    std::function<void()> onInteraction;
    // A press on the brand: the panel's frame and the mouse position, on the screen. The answer says whether to follow
    // the mouse.
    std::function<bool(const platform::CGRect& panelFrame, platform::CGPoint mousePosition)> onDragBegan;
    std::function<void(platform::CGPoint mousePosition)> onDragChanged;
    std::function<void()> onDragEnded;
    // True before the first, false after the last of the mouse moves that a drag takes.
    std::function<void(bool isDragging)> onDragStateChanged;

    bool canBecomeKey() const override { return true; }
    bool canBecomeMain() const override { return false; }
    void sendEvent(const platform::NSEvent& event) override;

private:
    bool isInBrandRegion(platform::CGPoint locationInWindow) const;
    // Takes the mouse until it is released, in a loop of its own, in which this panel may be closed.
    void trackBrandDrag(const platform::NSEvent& startingWith);
    platform::CGPoint screenPosition(const platform::NSEvent& event) const;
};

}  // namespace brindle
