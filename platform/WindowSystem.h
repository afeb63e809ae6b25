// The backend's side of windows: one handle for each, made by the system. NSWindow is built on these; nobody else uses them.
// They take no decision: which window becomes key or closes is NSWindow's business and the user's.
#pragma once

#include <cstdint>
#include <memory>

#include "platform/Geometry.h"
#include "platform/WindowSettings.h"

namespace platform {

class NSWindow;

// It is destroyed with the window.
class WindowHandle {
public:
    virtual ~WindowHandle() = default;
    virtual std::int64_t windowNumber() const = 0;
    virtual CGRect frame() const = 0;
    virtual void setFrame(const CGRect& frame) = 0;
    virtual int level() const = 0;
    // Setting the level that the window has already doesn't reorder it.
    virtual void setLevel(int level) = 0;
    virtual bool isVisible() const = 0;
    // Relative to 0: to the front or back of its level. Relative to a window that is gone: to the front of its level.
    virtual void orderWindow(NSWindowOrderingMode mode, std::int64_t relativeTo) = 0;
    // Into the Dock and back to where it was; a minimised window isn't visible.
    virtual void setMiniaturized(bool /*miniaturized*/) {}
    virtual bool isMiniaturized() const { return false; }
    virtual void makeKey() = 0;
    virtual bool isKey() const = 0;
    virtual void settingsChanged() = 0;
    // The content's drawing has changed: the next composed frame shows it.
    virtual void setNeedsDisplay() = 0;
};

class WindowSystem {
public:
    virtual ~WindowSystem() = default;
    // The backend sends the window its events through NSWindow::sendEvent, but for presses on title bar and edges, which it handles by itself.
    virtual std::unique_ptr<WindowHandle> makeWindow(NSWindow& window, const CGRect& frame) = 0;
    // A frame is the content and what the style puts around it.
    virtual CGRect frameRectForContentRect(const CGRect& content, unsigned /*styleMask*/) const { return content; }
    virtual CGRect contentRectForFrameRect(const CGRect& frame, unsigned /*styleMask*/) const { return frame; }
};

}  // namespace platform
