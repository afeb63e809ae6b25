// What fills a window below its title bar. The window owns it; points and sizes are those of the content, in AppKit's direction.
// It does not know how it comes on screen.
#pragma once

#include <cstdint>
#include <string>

#include "platform/Drawing.h"
#include "platform/Events.h"
#include "platform/Geometry.h"

namespace platform {

class NSWindow;

class ContentView {
public:
    virtual ~ContentView() = default;
    // Told when it is set on a window, with null when it is taken off, and when the content's size changes.
    virtual void didMoveToWindow(NSWindow* window) = 0;
    virtual void setSize(CGSize size) = 0;
    // Whether the window is ordered in and not minimised, on whatever space; and whether it is to be seen on the present one. Told again when nothing has changed.
    virtual void setOrderedIn(bool /*orderedIn*/) {}
    virtual void setOnScreen(bool onScreen) = 0;
    // Asked for a press of the left button on a window that isn't key: whether it acts at once, or only brings the window forward.
    virtual bool acceptsFirstMouse(const NSEvent& event) = 0;
    // Mouse and key events that the window hands on.
    virtual void handleEvent(const NSEvent& event) = 0;
    // What the view under that point says about itself when the mouse rests on it; empty for nothing.
    virtual std::string toolTipAt(CGPoint /*point*/) const { return {}; }
    // What is to be painted now, up to date as of the last end of turn; and a number that changes whenever that does.
    virtual const Drawing& drawing() = 0;
    virtual std::uint64_t drawingVersion() const = 0;
};

}  // namespace platform
