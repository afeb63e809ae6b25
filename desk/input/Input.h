// Mouse and keyboard of the machine. It routes each event to the window under the mouse or to whoever has the keyboard, lets the target handle it, and then gives copies
// to the global monitors of other processes as later items. AppKit screen points throughout.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "desk/input/WindowFrameMouse.h"
#include "desk/keys/KeyStroke.h"
#include "desk/system/ShownAlert.h"
#include "platform/Events.h"
#include "platform/Geometry.h"

namespace desk {

class Machine;
class MenuBar;

enum class MouseButton { left, right };

class Input {
public:
    explicit Input(Machine& theMachine);
    ~Input();

    platform::CGPoint mouseLocation() const { return location; }
    // A mouse button is held.
    bool isPressed() const { return press.has_value(); }
    std::optional<MouseButton> pressedButton() const { return press ? std::optional(press->button) : std::nullopt; }

    // `modifiers` as in KeyStroke.
    void mouseDown(const platform::CGPoint& point, MouseButton button, int clickCount = 1, std::uint64_t modifiers = 0);
    void mouseDragged(const platform::CGPoint& point);
    void mouseUp(const platform::CGPoint& point, MouseButton button);
    void mouseMoved(const platform::CGPoint& point);
    // How far the content moves, in points: to the right, and downward, which is towards its beginning.
    void scrollWheel(const platform::CGPoint& point, double deltaX, double deltaY);
    CursorShape cursorAt(const platform::CGPoint& point) const;
    const MenuBar& menuBar() const { return *bar; }
    void keyDown(const KeyStroke& stroke);
    void keyUp(const KeyStroke& stroke);

    // The window that has the keyboard, of a launched application; 0 when keys go to the frontmost application. A panel that has become key keeps the keyboard until a mouse down in
    // another process's window, another key window of its own process, a change of the frontmost application, being ordered out, or Finder's own `activate`, which a script sends.
    std::int64_t keyWindow() const { return key; }
    void makeKey(std::int64_t window);
    void windowOrderedOut(std::int64_t window);
    void frontmostChanged();

    // A system alert stands above everything, an open menu included.
    bool isOnAlert(const platform::CGPoint& point) const;

private:
    // Who handles a mouse event. Without a window it is the desktop's, which is Finder's; without an owner nobody's.
    struct Target {
        std::int64_t window = 0;
        std::int32_t owner = 0;
    };

    Target targetAt(const platform::CGPoint& point) const;
    bool isMenuBarOrDock(const platform::CGPoint& point) const;
    std::optional<ShownAlert> shownAlert() const;
    void pressAlertButton(const platform::CGPoint& point);
    void pressLeftOnFurniture(const platform::CGPoint& point);
    void releaseLeftOnFurniture(const platform::CGPoint& point);
    void deliverKey(platform::NSEventType type, const KeyStroke& stroke);
    void deliver(const platform::NSEvent& event, const Target& target, bool isForFrame = false);
    // Whether a menu or a popover has taken it.
    bool menusTake(platform::NSEventType type, int clickCount = 0);
    bool menusTake(const platform::NSEvent& event);
    platform::NSEvent eventHere(platform::NSEventType type, int clickCount) const;
    void offerToOthers(const platform::NSEvent& event, std::int32_t owner);
    std::int32_t ownerOf(std::int64_t window) const;

    Machine& machine;
    std::unique_ptr<MenuBar> bar;
    WindowFrameMouse frames;
    std::optional<std::size_t> pressedDockItem;
    platform::CGPoint location;
    std::uint64_t modifiersHeld = 0;  // from a press to its release
    std::int64_t key = 0;
    struct Press {
        Target target;  // has the mouse until the release, wherever that goes
        MouseButton button;
        int clickCount;
        bool isAlerts;
    };
    std::optional<Press> press;
};

}  // namespace desk
