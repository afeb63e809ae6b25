// The mouse: where it is on the screen, which of its buttons are held, and the surface that has each press until its release. What a press does is the surface's affair.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "platform/Events.h"
#include "platform/Geometry.h"

namespace desk {

class Surface;

enum class MouseButton { left, right };

constexpr MouseButton buttonOf(platform::NSEventType type) {
    using platform::NSEventType;
    const bool isRight = type == NSEventType::rightMouseDown || type == NSEventType::rightMouseDragged ||
                         type == NSEventType::rightMouseUp;
    return isRight ? MouseButton::right : MouseButton::left;
}

class Pointer {
public:
    struct Press {
        int clickCount = 1;
        std::uint64_t modifiers = 0;  // as in KeyStroke
        Surface* holder = nullptr;
    };

    platform::CGPoint location;

    std::optional<Press>& press(MouseButton button) { return presses[static_cast<std::size_t>(button)]; }
    const std::optional<Press>& press(MouseButton button) const { return presses[static_cast<std::size_t>(button)]; }
    bool isPressed(MouseButton button) const { return press(button).has_value(); }
    bool isPressed() const { return isPressed(MouseButton::left) || isPressed(MouseButton::right); }
    std::uint64_t modifiers() const {
        std::uint64_t held = 0;
        for (const std::optional<Press>& each : presses)
            if (each) held |= each->modifiers;
        return held;
    }
    // A press of that button, if it lasts, is this surface's from now on.
    void handOver(MouseButton button, Surface& surface) {
        if (std::optional<Press>& held = press(button)) held->holder = &surface;
    }

private:
    std::array<std::optional<Press>, 2> presses;
};

}  // namespace desk
