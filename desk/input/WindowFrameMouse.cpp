#include "desk/input/WindowFrameMouse.h"

#include <cmath>
#include <utility>

#include "desk/processes/Processes.h"
#include "desk/windows/WindowStack.h"

namespace desk {

using platform::CGPoint;
using platform::CGRect;

namespace {

namespace Style = platform::NSWindowStyleMask;

constexpr double stillHand = 4;  // a hand that clicks moves the mouse as far as this

using ButtonAction = void (WindowKeeper::*)(std::int64_t window);
constexpr ButtonAction buttonActions[] = {&WindowKeeper::close, &WindowKeeper::minimize,
                                          &WindowKeeper::pressZoomButton};

CGPoint gripOf(const ServerWindow& shown, const CGPoint& mouse) {
    return {shown.frame.origin.x - mouse.x, shown.frame.origin.y - mouse.y};
}

}  // namespace

WindowKeeper* WindowFrameMouse::keeperOf(std::int64_t window) const {
    const ServerWindow* shown = windows.find(window);
    return shown == nullptr ? nullptr : &processes.keeperOf(shown->owner);
}

bool WindowFrameMouse::press(std::int64_t window, const platform::NSEvent& event) {
    held.reset();
    WindowKeeper* keeper = keeperOf(window);
    if (keeper == nullptr) return false;
    held = Hold{window, event.locationInWindow, Nothing{}};
    held->grasp = graspAt(*windows.find(window), *keeper, event);
    if (isFrames()) keeper->makeKey(window);
    return isFrames();
}

WindowFrameMouse::Grasp WindowFrameMouse::graspAt(const ServerWindow& shown, WindowKeeper& keeper,
                                                  const platform::NSEvent& event) const {
    const WindowTraits traits = keeper.traits(shown.number);
    if (!traits.has(Style::titled)) return Content{};
    const CGPoint point = insideWindow(shown.frame, event.locationInWindow);
    if (const auto button = windowButtonAt(point, shown.frame.size)) return *button;
    const WindowEdges edges = windowEdgesAt(point, shown.frame.size);
    if (edges.any() && traits.isResizable()) return Resize{edges, shown.frame};
    if (point.y > windowTitleBarHeight || keeper.hasContentInTitleBar(shown.number, point)) return Content{};
    if (traits.isFullScreen) return Nothing{};
    if (!isSecondOfDouble(event)) return Move{gripOf(shown, event.locationInWindow)};
    if (traits.isResizable()) keeper.zoom(shown.number);
    return Nothing{};
}

// All of the title bar moves the window, also where something stands in it that a click would press.
void WindowFrameMouse::dragTitleBarInstead(const ServerWindow& shown, WindowKeeper& keeper, const CGPoint& point) {
    const WindowTraits traits = keeper.traits(shown.number);
    const bool isPressed =
        std::holds_alternative<WindowButton>(held->grasp) || std::holds_alternative<Content>(held->grasp);
    const bool isInTitleBar = insideWindow(shown.frame, held->point).y <= windowTitleBarHeight;
    const bool hasMoved = std::hypot(point.x - held->point.x, point.y - held->point.y) > stillHand;
    if (!isPressed || !isInTitleBar || !hasMoved || !traits.has(Style::titled) || traits.isFullScreen) return;
    if (std::holds_alternative<Content>(held->grasp)) keeper.letGo();
    held->grasp = Move{gripOf(shown, held->point)};
}

bool WindowFrameMouse::drag(const CGPoint& point) {
    WindowKeeper* keeper = held ? keeperOf(held->window) : nullptr;
    if (keeper == nullptr) return isFrames();
    const ServerWindow& shown = *windows.find(held->window);
    dragTitleBarInstead(shown, *keeper, point);
    if (const auto* move = std::get_if<Move>(&held->grasp)) {
        keeper->setFrame(held->window, {{point.x + move->grip.x, point.y + move->grip.y}, shown.frame.size});
    } else if (const auto* resize = std::get_if<Resize>(&held->grasp)) {
        const WindowTraits traits = keeper->traits(held->window);
        keeper->setFrame(held->window,
                         resizedFrame(resize->frame, resize->edges, {point.x - held->point.x, point.y - held->point.y},
                                      traits.least, traits.most));
    }
    return isFrames();
}

bool WindowFrameMouse::release(const CGPoint& point) {
    const bool isFrame = drag(point);
    const auto released = std::exchange(held, std::nullopt);
    WindowKeeper* keeper = released ? keeperOf(released->window) : nullptr;
    const auto* button = keeper == nullptr ? nullptr : std::get_if<WindowButton>(&released->grasp);
    if (button == nullptr) return isFrame;
    const ServerWindow& shown = *windows.find(released->window);
    const ButtonAction act = buttonActions[static_cast<std::size_t>(*button)];
    const bool isOverIt = windowButtonAt(insideWindow(shown.frame, point), shown.frame.size) == *button;
    if (isOverIt && keeper->traits(released->window).has(styleBitOf(*button))) (keeper->*act)(released->window);
    return isFrame;
}

CursorShape WindowFrameMouse::cursorAt(std::int64_t window, const CGPoint& point) const {
    if (const auto* resize = held ? std::get_if<Resize>(&held->grasp) : nullptr) return cursorFor(resize->edges);
    const WindowKeeper* keeper = keeperOf(window);
    if (keeper == nullptr) return CursorShape::arrow;
    const WindowTraits traits = keeper->traits(window);
    if (!traits.has(Style::titled) || !traits.isResizable()) return CursorShape::arrow;
    const platform::CGRect& frame = windows.find(window)->frame;
    return cursorFor(windowEdgesAt(insideWindow(frame, point), frame.size));
}

}  // namespace desk
