#include "platform/Windows.h"

#include <utility>

#include "platform/Platform.h"

namespace platform {

namespace {

WindowSettings settingsWith(unsigned styleMask, NSBackingStoreType backing, bool isPanel) {
    WindowSettings settings;
    settings.styleMask = styleMask;
    settings.backing = backing;
    settings.isPanel = isPanel;
    return settings;
}

}  // namespace

NSWindow::NSWindow(Platform& thePlatform, const CGRect& contentRect, unsigned styleMask, NSBackingStoreType backing,
                   bool /*defer*/)
    : NSWindow(thePlatform, contentRect, settingsWith(styleMask, backing, false)) {}

NSWindow::NSWindow(Platform& thePlatform, const CGRect& contentRect, WindowSettings settings)
    : platform(thePlatform),
      attributes(std::move(settings)),
      handle(thePlatform.windows.makeWindow(*this, contentRect)) {}

NSWindow::~NSWindow() {
    if (content) content->didMoveToWindow(nullptr);
}

void NSWindow::sendEvent(const NSEvent& event) {
    const bool isMouseDown = event.type == NSEventType::leftMouseDown || event.type == NSEventType::rightMouseDown;
    if (isMouseDown) makeKeyWindow();
    if (event.type == NSEventType::keyDown && responder != nullptr)
        responder->keyDown(event);
    else if (content)
        content->handleEvent(event);
}

bool NSWindow::makeFirstResponder(NSResponder* newResponder) {
    if (newResponder == responder) return true;
    if (responder != nullptr && !responder->resignFirstResponder()) return false;
    responder = nullptr;
    if (newResponder == nullptr) return true;
    if (!newResponder->becomeFirstResponder()) return false;
    responder = newResponder;
    return true;
}

void NSWindow::setFrame(const CGRect& frame, bool /*display*/) {
    const bool resized = frame.size != handle->frame().size;
    handle->setFrame(frame);
    if (resized && content) content->setSize(frame.size);
}

void NSWindow::setFrameOrigin(const CGPoint& origin) {
    handle->setFrame({origin, handle->frame().size});
}

CGPoint NSWindow::convertPointToScreen(const CGPoint& point) const {
    const CGPoint origin = handle->frame().origin;
    return {origin.x + point.x, origin.y + point.y};
}

void NSWindow::orderOut() {
    orderWindow(NSWindowOrderingMode::out, 0);
}

void NSWindow::orderFrontRegardless() {
    orderWindow(NSWindowOrderingMode::above, 0);
}

void NSWindow::orderWindow(NSWindowOrderingMode mode, std::int64_t relativeTo) {
    handle->orderWindow(mode, relativeTo);
    visibilityChanged();
}

void NSWindow::makeKeyWindow() {
    if (canBecomeKey() && isVisible()) handle->makeKey();
}

void NSWindow::makeKeyAndOrderFront() {
    orderFrontRegardless();
    makeKeyWindow();
}

void NSWindow::setContentView(std::unique_ptr<ContentView> view) {
    if (content) content->didMoveToWindow(nullptr);
    content = std::move(view);
    if (!content) return;
    content->setSize(handle->frame().size);
    content->didMoveToWindow(this);
    visibilityChanged();
    handle->setNeedsDisplay();
}

void NSWindow::visibilityChanged() {
    if (content) content->setOnScreen(handle->isVisible());
}

NSPanel::NSPanel(Platform& thePlatform, const CGRect& contentRect, unsigned styleMask, NSBackingStoreType backing,
                 bool /*defer*/)
    : NSWindow(thePlatform, contentRect, settingsWith(styleMask, backing, true)) {}

}  // namespace platform
