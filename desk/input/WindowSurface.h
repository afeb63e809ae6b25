// The windows of all processes and the desktop behind them, towards mouse and keyboard: which window an event is for, and whether its frame or its content has it. Keys go to the key
// window, else to the frontmost process. What a process makes of its events is its keeper's business.
#pragma once

#include "desk/input/WindowFrameMouse.h"
#include "desk/windows/Surface.h"

namespace desk {

class KeyboardFocus;
class Pointer;

class WindowSurface final : public Surface {
public:
    WindowSurface(WindowStack& theWindows, Processes& theProcesses, const Pointer& thePointer,
                  KeyboardFocus& theKeyboard);

    bool covers(const platform::CGPoint& /*point*/) const override { return true; }
    std::optional<std::int32_t> take(const platform::NSEvent& event) override;
    CursorShape cursorAt(const platform::CGPoint& point) const override;

private:
    // Without a window it is the desktop's; without an owner nobody's.
    struct Target {
        std::int64_t window = 0;
        std::int32_t owner = 0;
    };

    std::int32_t leftDown(const platform::NSEvent& event);
    std::int32_t leftDragged(const platform::NSEvent& event);
    std::int32_t leftUp(const platform::NSEvent& event);
    std::int32_t rightDown(const platform::NSEvent& event);
    std::int32_t rightGoesOn(const platform::NSEvent& event);
    std::int32_t wheel(const platform::NSEvent& event);
    std::int32_t moved(const platform::NSEvent& event);
    std::int32_t key(const platform::NSEvent& event);
    Target targetAt(const platform::CGPoint& point) const;
    Target targetOfKeys() const;
    Target press(const platform::NSEvent& event);
    std::int32_t deliver(const platform::NSEvent& event, const Target& target);

    WindowStack& windows;
    Processes& processes;
    const Pointer& pointer;
    KeyboardFocus& keyboard;
    WindowFrameMouse frames;
    Target left;  // of the latest press of that button
    Target right;
};

}  // namespace desk
