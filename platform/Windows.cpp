#include "platform/Windows.h"

#include <cmath>
#include <cstdint>
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
      handle(thePlatform.windows.makeWindow(
          *this, thePlatform.windows.frameRectForContentRect(contentRect, attributes.styleMask))) {}

NSWindow::~NSWindow() {
    if (content) content->didMoveToWindow(nullptr);
}

void NSWindow::sendEvent(const NSEvent& event) {
    if (performKeyEquivalent(event)) return;
    const bool isForContent = contentTakes(event);
    if (isMouseDown(event.type)) makeKeyWindow();
    if (event.type == NSEventType::keyDown && responder != nullptr)
        responder->keyDown(event);
    else if (isForContent)
        content->handleEvent(event);
}

bool NSWindow::contentTakes(const NSEvent& event) {
    if (!content) return false;
    if (event.type == NSEventType::leftMouseDown) refusesPress = !isKeyWindow() && !content->acceptsFirstMouse(event);
    const bool isOfPress = event.type == NSEventType::leftMouseDown || event.type == NSEventType::leftMouseDragged ||
                           event.type == NSEventType::leftMouseUp;
    return !(isOfPress && refusesPress);
}

bool NSWindow::performKeyEquivalent(const NSEvent& event) {
    struct Entry {
        const char* key;
        unsigned styleBit;
        void (NSWindow::*act)();
    };
    static constexpr Entry entries[] = {
        {"w", NSWindowStyleMask::closable, &NSWindow::performClose},
        {"m", NSWindowStyleMask::miniaturizable, &NSWindow::miniaturize},
    };
    namespace Flags = NSEventModifierFlags;
    constexpr std::uint64_t meaningful = Flags::command | Flags::shift | Flags::option | Flags::control;
    if (event.type != NSEventType::keyDown || (event.modifierFlags & meaningful) != Flags::command) return false;
    for (const Entry& entry : entries) {
        if (event.charactersIgnoringModifiers != entry.key || !has(entry.styleBit)) continue;
        (this->*entry.act)();
        return true;
    }
    return false;
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
    if (resized && content) content->setSize(contentSize());
}

CGSize NSWindow::contentSize() const {
    return platform.windows.contentRectForFrameRect(handle->frame(), attributes.styleMask).size;
}

void NSWindow::center() {
    if (platform.screens.screens().empty()) return;
    const CGRect room = platform.screens.screens().front().visibleFrame;
    const CGSize size = handle->frame().size;
    setFrameOrigin({std::floor(room.minX() + (room.width() - size.width) / 2),
                    std::floor(room.minY() + 2.0 / 3 * (room.height() - size.height))});
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
    handle->setMiniaturized(false);
    isOrderedIn = mode != NSWindowOrderingMode::out;
    visibilityChanged();
}

void NSWindow::performClose() {
    if (has(NSWindowStyleMask::closable)) close();
}

void NSWindow::close() {
    const auto keepAlive = weak_from_this().lock();
    if (delegate != nullptr) delegate->windowWillClose();
    orderOut();
}

void NSWindow::miniaturize() {
    if (!has(NSWindowStyleMask::miniaturizable) || !isVisible()) return;
    handle->setMiniaturized(true);
    isOrderedIn = false;
    visibilityChanged();
}

void NSWindow::deminiaturize() {
    if (isMiniaturized()) makeKeyAndOrderFront();
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
    content->setSize(contentSize());
    content->didMoveToWindow(this);
    visibilityChanged();
    handle->setNeedsDisplay();
}

void NSWindow::visibilityChanged() {
    if (!content) return;
    content->setOrderedIn(isOrderedIn);
    content->setOnScreen(handle->isVisible());
}

NSPanel::NSPanel(Platform& thePlatform, const CGRect& contentRect, unsigned styleMask, NSBackingStoreType backing,
                 bool /*defer*/)
    : NSWindow(thePlatform, contentRect, settingsWith(styleMask, backing, true)) {}

}  // namespace platform
