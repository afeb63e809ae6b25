// A person's mouse on the windows of processes that the desk only sketches: the title bar moves them, the close button closes them. Their content takes presses and does nothing.
#pragma once

#include <cstdint>
#include <optional>

#include "platform/Geometry.h"

namespace desk {

class Machine;
struct ServerWindow;

class OtherWindowMouse {
public:
    explicit OtherWindowMouse(Machine& theMachine) : machine(theMachine) {}

    void mouseDown(const ServerWindow& window, const platform::CGPoint& point);
    void mouseDragged(const platform::CGPoint& point);
    void mouseUp(const platform::CGPoint& point);

private:
    struct Hold {
        std::int64_t window;
        std::optional<platform::CGPoint> grip;  // of the title bar; else the close button is held
    };

    Machine& machine;
    std::optional<Hold> held;
};

}  // namespace desk
