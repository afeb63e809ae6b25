// Windows and panels: concrete classes, to be derived from where sendEvent, canBecomeKey or canBecomeMain differ, over a small handle that the
// backend supplies, with one content view. Frames are AppKit screen points. What a window shows is the content view's business. Main thread only.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "platform/ContentView.h"
#include "platform/Drawing.h"
#include "platform/Events.h"
#include "platform/Geometry.h"
#include "platform/NSWindowDelegate.h"
#include "platform/Responder.h"
#include "platform/WindowSettings.h"
#include "platform/WindowSystem.h"

namespace platform {

struct Platform;

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
    // responder, and everything else, and keys without one, to the content view. A left press on a window that wasn't key, with all that follows up to its release, reaches
    // only a content that accepts it. Command-W and Command-M are the window's own if its style has the button.
    virtual void sendEvent(const NSEvent& event);
    virtual bool canBecomeKey() const { return has(NSWindowStyleMask::titled); }
    virtual bool canBecomeMain() const { return has(NSWindowStyleMask::titled); }

    std::int64_t windowNumber() const { return handle->windowNumber(); }
    CGRect frame() const { return handle->frame(); }
    void setFrame(const CGRect& frame, bool display);
    void setFrameOrigin(const CGPoint& origin);
    // In the middle of the first screen, somewhat above. Without a screen it stays.
    void center();
    CGPoint convertPointToScreen(const CGPoint& point) const;

    int level() const { return handle->level(); }
    void setLevel(int level) { handle->setLevel(level); }
    bool isVisible() const { return handle->isVisible(); }
    void orderOut();
    void orderFrontRegardless();
    void orderWindow(NSWindowOrderingMode mode, std::int64_t relativeTo);
    // Does nothing to a window that can't become key or isn't on screen.
    void makeKeyWindow();
    // A minimised window comes back.
    void makeKeyAndOrderFront();
    bool isKeyWindow() const { return handle->isKey(); }

    // What its buttons do; nothing to a window whose style hasn't the button.
    void performClose();
    void miniaturize();
    void deminiaturize();
    bool isMiniaturized() const { return handle->isMiniaturized(); }
    // Tells the delegate, then orders the window out. Its owner lets it go, whatever isReleasedWhenClosed says.
    void close();
    void setDelegate(NSWindowDelegate* newDelegate) { delegate = newDelegate; }

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
    // Of frames that the user gives it.
    void setMinSize(CGSize value) { change(&WindowSettings::minSize, value); }
    void setMaxSize(CGSize value) { change(&WindowSettings::maxSize, value); }
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
    bool has(unsigned styleBit) const { return (attributes.styleMask & styleBit) != 0; }
    CGSize contentSize() const;
    bool performKeyEquivalent(const NSEvent& event);
    bool contentTakes(const NSEvent& event);
    void visibilityChanged();

    WindowSettings attributes;
    std::unique_ptr<WindowHandle> handle;
    std::unique_ptr<ContentView> content;
    NSResponder* responder = nullptr;
    NSWindowDelegate* delegate = nullptr;
    bool refusesPress = false;  // of the left button, until the next one
    bool isOrderedIn = false;
};

class NSPanel : public NSWindow {
public:
    NSPanel(Platform& thePlatform, const CGRect& contentRect, unsigned styleMask, NSBackingStoreType backing,
            bool defer);
};

}  // namespace platform
