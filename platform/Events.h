// Input events, their monitors and the mouse position. Positions are AppKit points: of the screen in mouseLocation(), of the window in
// locationInWindow (origin at its bottom left). Main thread only.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "platform/Geometry.h"
#include "platform/Time.h"
#include "platform/Token.h"

namespace platform {

class NSWindow;

enum class NSEventType : std::uint8_t {
    leftMouseDown = 1,
    leftMouseUp = 2,
    rightMouseDown = 3,
    rightMouseUp = 4,
    mouseMoved = 5,
    leftMouseDragged = 6,
    rightMouseDragged = 7,
    keyDown = 10,
    keyUp = 11,
    flagsChanged = 12,
    scrollWheel = 22
};

constexpr bool isMouseDown(NSEventType type) {
    return type == NSEventType::leftMouseDown || type == NSEventType::rightMouseDown;
}
constexpr bool isKeyEvent(NSEventType type) {
    return type == NSEventType::keyDown || type == NSEventType::keyUp;
}

using NSEventMask = std::uint64_t;
constexpr NSEventMask maskOf(NSEventType type) {
    return NSEventMask{1} << static_cast<unsigned>(type);
}

namespace NSEventModifierFlags {
inline constexpr std::uint64_t capsLock = 1 << 16;
inline constexpr std::uint64_t shift = 1 << 17;
inline constexpr std::uint64_t control = 1 << 18;
inline constexpr std::uint64_t option = 1 << 19;
inline constexpr std::uint64_t command = 1 << 20;
}  // namespace NSEventModifierFlags

struct NSEvent {
    NSEventType type = NSEventType::mouseMoved;
    std::uint64_t modifierFlags = 0;
    Date timestamp;
    CGPoint locationInWindow;    // without a window: the position on the screen
    NSWindow* window = nullptr;  // valid while the event is handled; none for events aimed at other processes
    int clickCount = 0;
    double scrollingDeltaY = 0;
    // Of key events; the characters are empty for keys that make none.
    std::uint16_t keyCode = 0;
    std::string characters;
    std::optional<std::string> charactersIgnoringModifiers;
};

class Events {
public:
    virtual ~Events() = default;

    // Events aimed at other processes, after their target has handled them. The token is empty when the platform refuses.
    virtual Token addGlobalMonitorForEventsMatchingMask(NSEventMask mask,
                                                        std::function<void(const NSEvent&)> handler) = 0;
    // Events aimed at this process, before they are handled; an empty answer swallows the event. Events that a tracking loop dequeues don't pass here.
    virtual Token addLocalMonitorForEventsMatchingMask(
        NSEventMask mask, std::function<std::optional<NSEvent>(const NSEvent&)> handler) = 0;
    // Screen position now, which can be later than the event at hand.
    virtual CGPoint mouseLocation() = 0;
};

}  // namespace platform
