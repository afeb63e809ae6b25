#include "desk/input/WindowSurface.h"

#include "desk/processes/KeyboardFocus.h"
#include "desk/processes/Processes.h"
#include "desk/windows/Pointer.h"
#include "desk/windows/WindowStack.h"

namespace desk {

using platform::CGPoint;
using platform::NSEvent;
using platform::NSEventType;

WindowSurface::WindowSurface(WindowStack& theWindows, Processes& theProcesses, const Pointer& thePointer,
                             KeyboardFocus& theKeyboard)
    : windows(theWindows),
      processes(theProcesses),
      pointer(thePointer),
      keyboard(theKeyboard),
      frames(theWindows, theProcesses) {}

std::optional<std::int32_t> WindowSurface::take(const NSEvent& event) {
    struct Entry {
        NSEventType type;
        std::int32_t (WindowSurface::*handler)(const NSEvent& event);
    };
    static constexpr Entry handlers[] = {{NSEventType::leftMouseDown, &WindowSurface::leftDown},
                                         {NSEventType::leftMouseDragged, &WindowSurface::leftDragged},
                                         {NSEventType::leftMouseUp, &WindowSurface::leftUp},
                                         {NSEventType::rightMouseDown, &WindowSurface::rightDown},
                                         {NSEventType::rightMouseDragged, &WindowSurface::rightGoesOn},
                                         {NSEventType::rightMouseUp, &WindowSurface::rightGoesOn},
                                         {NSEventType::scrollWheel, &WindowSurface::wheel},
                                         {NSEventType::mouseMoved, &WindowSurface::moved},
                                         {NSEventType::keyDown, &WindowSurface::key},
                                         {NSEventType::keyUp, &WindowSurface::key}};
    for (const Entry& entry : handlers)
        if (entry.type == event.type) return (this->*entry.handler)(event);
    return std::nullopt;
}

std::int32_t WindowSurface::leftDown(const NSEvent& event) {
    left = press(event);
    return frames.press(left.window, event) ? left.owner : deliver(event, left);
}

std::int32_t WindowSurface::leftDragged(const NSEvent& event) {
    return frames.drag(event.locationInWindow) ? left.owner : deliver(event, left);
}

std::int32_t WindowSurface::leftUp(const NSEvent& event) {
    return frames.release(event.locationInWindow) ? left.owner : deliver(event, left);
}

std::int32_t WindowSurface::rightDown(const NSEvent& event) {
    right = press(event);
    return deliver(event, right);
}

std::int32_t WindowSurface::rightGoesOn(const NSEvent& event) {
    return deliver(event, right);
}

std::int32_t WindowSurface::wheel(const NSEvent& event) {
    return deliver(event, targetAt(event.locationInWindow));
}

// Nobody's: only the copies are of interest.
std::int32_t WindowSurface::moved(const NSEvent& event) {
    return targetAt(event.locationInWindow).owner;
}

std::int32_t WindowSurface::key(const NSEvent& event) {
    return deliver(event, targetOfKeys());
}

// It comes forward, and another process's window has no longer the keyboard.
WindowSurface::Target WindowSurface::press(const NSEvent& event) {
    const Target target = targetAt(event.locationInWindow);
    if (target.owner == 0) return target;
    keyboard.processPressed(target.owner);
    processes.keeperOf(target.owner).bringForward(target.window);
    return target;
}

std::int32_t WindowSurface::deliver(const NSEvent& event, const Target& target) {
    if (target.owner != 0) processes.keeperOf(target.owner).handle(target.window, event);
    return target.owner;
}

WindowSurface::Target WindowSurface::targetAt(const CGPoint& point) const {
    if (const ServerWindow* window = windows.windowAt(point)) return {window->number, window->owner};
    return {0, windows.desktopOwner};
}

WindowSurface::Target WindowSurface::targetOfKeys() const {
    if (const ServerWindow* window = windows.find(keyboard.keyWindow())) return {window->number, window->owner};
    const Process* frontmost = processes.frontmost();
    return {0, frontmost == nullptr ? 0 : frontmost->processIdentifier};
}

CursorShape WindowSurface::cursorAt(const CGPoint& point) const {
    return frames.cursorAt(pointer.isPressed(MouseButton::left) ? left.window : targetAt(point).window, point);
}

}  // namespace desk
