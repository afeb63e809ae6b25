// Windows and panels: concrete classes, to be derived from where sendEvent, canBecomeKey or canBecomeMain differ, over a small handle that the
// backend supplies, with one content view. Frames are AppKit screen points. What a window shows is the content view's business. Main thread only.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "platform/Drawing.h"
#include "platform/Events.h"
#include "platform/Geometry.h"
#include "platform/Responder.h"
#include "platform/WindowSettings.h"

namespace platform {

struct Platform;

// What fills a window. The window owns it.
class ContentView {
public:
    virtual ~ContentView() = default;
    // Told when it is set on a window, with null when it is taken off, and when the window's size or visibility on screen changes.
    virtual void didMoveToWindow(NSWindow* window) = 0;
    virtual void setSize(CGSize size) = 0;
    virtual void setOnScreen(bool onScreen) = 0;
    // Whether a mouse down that only brings the application or window forward elsewhere acts at once here.
    virtual bool acceptsFirstMouse(const NSEvent& event) = 0;
    // Mouse and key events that the window hands on.
    virtual void handleEvent(const NSEvent& event) = 0;
    // What the view under that point, in the window's AppKit coordinates, says about itself when the mouse rests on it; empty for nothing.
    virtual std::string toolTipAt(CGPoint /*point*/) const { return {}; }
    // What is to be painted now, up to date as of the last end of turn; and a number that changes whenever that does.
    virtual const Drawing& drawing() = 0;
    virtual std::uint64_t drawingVersion() const = 0;
};

// The backend's side of one window. It is destroyed with the window.
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
    virtual void makeKey() = 0;
    virtual bool isKey() const = 0;
    virtual void settingsChanged() = 0;
    // The content's drawing has changed: the next composed frame shows it.
    virtual void setNeedsDisplay() = 0;
};

class WindowSystem {
public:
    virtual ~WindowSystem() = default;
    // The backend sends the window its events through NSWindow::sendEvent.
    virtual std::unique_ptr<WindowHandle> makeWindow(NSWindow& window, const CGRect& frame) = 0;
};

// Owned through std::shared_ptr: the backend keeps a window alive while it sends it an event, in which it may be closed and let go.
class NSWindow : public std::enable_shared_from_this<NSWindow> {
public:
    // A deferred window gets its backing when it is first ordered in; that makes no difference to its user.
    NSWindow(Platform& thePlatform, const CGRect& contentRect, unsigned styleMask, NSBackingStoreType backing,
             bool defer);
    NSWindow(const NSWindow&) = delete;
    NSWindow& operator=(const NSWindow&) = delete;
    virtual ~NSWindow();

    // Every event for this window arrives here first. The inherited operation makes the window key on a mouse down if it can become key, hands keys to the first
    // responder, and everything else, and keys without one, to the content view.
    virtual void sendEvent(const NSEvent& event);
    virtual bool canBecomeKey() const { return (attributes.styleMask & NSWindowStyleMask::titled) != 0; }
    virtual bool canBecomeMain() const { return (attributes.styleMask & NSWindowStyleMask::titled) != 0; }

    std::int64_t windowNumber() const { return handle->windowNumber(); }
    CGRect frame() const { return handle->frame(); }
    void setFrame(const CGRect& frame, bool display);
    void setFrameOrigin(const CGPoint& origin);
    CGPoint convertPointToScreen(const CGPoint& point) const;

    int level() const { return handle->level(); }
    void setLevel(int level) { handle->setLevel(level); }
    bool isVisible() const { return handle->isVisible(); }
    void orderOut();
    void orderFrontRegardless();
    void orderWindow(NSWindowOrderingMode mode, std::int64_t relativeTo);
    // Does nothing to a window that can't become key or isn't on screen.
    void makeKeyWindow();
    void makeKeyAndOrderFront();
    bool isKeyWindow() const { return handle->isKey(); }

    // Asks the present one to resign, then the new one to become it; false when either refuses, and there is then the old one or none. Null for none.
    bool makeFirstResponder(NSResponder* responder);
    NSResponder* firstResponder() const { return responder; }
    // For a responder that goes away and can't be asked any more.
    void forgetFirstResponder() { responder = nullptr; }

    void setContentView(std::unique_ptr<ContentView> view);
    ContentView* contentView() const { return content.get(); }
    void setNeedsDisplay() { handle->setNeedsDisplay(); }

    const WindowSettings& settings() const { return attributes; }
    void setReleasedWhenClosed(bool value) { change(&WindowSettings::isReleasedWhenClosed, value); }
    void setHasShadow(bool value) { change(&WindowSettings::hasShadow, value); }
    void setOpaque(bool value) { change(&WindowSettings::isOpaque, value); }
    void setHidesOnDeactivate(bool value) { change(&WindowSettings::hidesOnDeactivate, value); }
    void setIgnoresMouseEvents(bool value) { change(&WindowSettings::ignoresMouseEvents, value); }
    void setAcceptsMouseMovedEvents(bool value) { change(&WindowSettings::acceptsMouseMovedEvents, value); }
    void setAnimationBehavior(NSWindowAnimationBehavior value) { change(&WindowSettings::animationBehavior, value); }
    void setCollectionBehavior(unsigned value) { change(&WindowSettings::collectionBehavior, value); }
    void setBackgroundColor(Color value) { change(&WindowSettings::backgroundColor, value); }
    void setTitle(std::string value) { change(&WindowSettings::title, std::move(value)); }

    Platform& platform;

protected:
    NSWindow(Platform& thePlatform, const CGRect& contentRect, WindowSettings settings);

private:
    template <typename Value>
    void change(Value WindowSettings::*field, Value value) {
        attributes.*field = std::move(value);
        handle->settingsChanged();
    }
    void visibilityChanged();

    WindowSettings attributes;
    std::unique_ptr<WindowHandle> handle;
    std::unique_ptr<ContentView> content;
    NSResponder* responder = nullptr;
};

class NSPanel : public NSWindow {
public:
    NSPanel(Platform& thePlatform, const CGRect& contentRect, unsigned styleMask, NSBackingStoreType backing,
            bool defer);
};

}  // namespace platform
