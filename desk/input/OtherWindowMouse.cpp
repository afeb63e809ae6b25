#include "desk/input/OtherWindowMouse.h"

#include <utility>

#include "desk/Machine.h"
#include "desk/windows/WindowFrame.h"

namespace desk {

using platform::CGPoint;

void OtherWindowMouse::mouseDown(const ServerWindow& window, const CGPoint& point) {
    const CGPoint inside = insideWindow(window.frame, point);
    const auto button = windowButtonAt(inside, window.frame.size);
    held.reset();
    if (button == WindowButton::close)
        held = Hold{window.number, std::nullopt};
    else if (!button && inside.y <= windowTitleBarHeight)
        held = Hold{window.number, CGPoint{window.frame.origin.x - point.x, window.frame.origin.y - point.y}};
}

void OtherWindowMouse::mouseDragged(const CGPoint& point) {
    const ServerWindow* window = held ? machine.windows.find(held->window) : nullptr;
    if (window == nullptr || !held->grip) return;
    machine.windows.setFrame(held->window, {{point.x + held->grip->x, point.y + held->grip->y}, window->frame.size});
}

void OtherWindowMouse::mouseUp(const CGPoint& point) {
    mouseDragged(point);
    const auto released = std::exchange(held, std::nullopt);
    const ServerWindow* window = released && !released->grip ? machine.windows.find(released->window) : nullptr;
    if (window == nullptr) return;
    const auto button = windowButtonAt(insideWindow(window->frame, point), window->frame.size);
    if (button == WindowButton::close) machine.windows.remove(window->number);
}

}  // namespace desk
