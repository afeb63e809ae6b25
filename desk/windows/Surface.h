// One of the things on the screen that stand before one another: prompt, menus, menu bar, Dock, windows. Input asks them from front to back about each event.
// It decides what an event does to it; who else hears of the event is Input's business.
#pragma once

#include <cstdint>
#include <optional>

#include "desk/windows/WindowFrame.h"
#include "platform/Events.h"
#include "platform/Geometry.h"

namespace desk {

class Surface {
public:
    virtual ~Surface() = default;

    // What lies behind it can neither be seen nor pressed there.
    virtual bool covers(const platform::CGPoint& point) const = 0;
    // An event on its way, its location on the screen. The answer is the process that it was for, 0 for none; empty when it goes on to what lies behind. Who takes a press gets what
    // the same button does up to its release, wherever that is.
    virtual std::optional<std::int32_t> take(const platform::NSEvent& event) = 0;
    // Wherever the mouse goes, whoever has it.
    virtual void mouseIsAt(const platform::CGPoint& /*point*/) {}
    virtual CursorShape cursorAt(const platform::CGPoint& /*point*/) const { return CursorShape::arrow; }
};

}  // namespace desk
