// Mouse and keyboard of the machine. Each event goes to the surfaces of the screen from front to back until one takes it; then the global monitors of all processes but the one that
// it was for get copies, as later items. A press of each mouse button belongs to the surface that took it, until its release. AppKit screen points throughout.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "desk/keys/KeyStroke.h"
#include "desk/windows/WindowFrame.h"
#include "platform/Events.h"
#include "platform/Geometry.h"

namespace desk {

class Machine;
class MenuBar;
class Surface;

enum class MouseButton { left, right };

class Input {
public:
    explicit Input(Machine& theMachine);
    ~Input();

    platform::CGPoint mouseLocation() const { return location; }
    bool isPressed(MouseButton button) const { return pressOf(button).has_value(); }
    bool isPressed() const { return isPressed(MouseButton::left) || isPressed(MouseButton::right); }
    // Presses that last are this surface's from now on.
    void handOver(Surface& surface);

    // `modifiers` as in KeyStroke.
    void mouseDown(const platform::CGPoint& point, MouseButton button, int clickCount = 1, std::uint64_t modifiers = 0);
    // With both buttons held the left one drags.
    void mouseDragged(const platform::CGPoint& point);
    void mouseUp(const platform::CGPoint& point, MouseButton button);
    void mouseMoved(const platform::CGPoint& point);
    // How far the content moves, in points: to the right, and downward, which is towards its beginning.
    void scrollWheel(const platform::CGPoint& point, double deltaX, double deltaY);
    CursorShape cursorAt(const platform::CGPoint& point) const;
    // Something stands before the windows there.
    bool isCovered(const platform::CGPoint& point) const;
    MenuBar& menuBar() const { return *bar; }
    void keyDown(const KeyStroke& stroke);
    void keyUp(const KeyStroke& stroke);

    // The window that has the keyboard, of a launched application; 0 when keys go to the frontmost application. A panel that has become key keeps the keyboard until a mouse down in
    // another process's window, another key window of its own process, a change of the frontmost application, or being ordered out.
    std::int64_t keyWindow() const { return key; }
    void makeKey(std::int64_t window);
    void windowOrderedOut(std::int64_t window);
    void frontmostChanged();
    void processPressed(std::int32_t processIdentifier);

private:
    struct Press {
        int clickCount;
        std::uint64_t modifiers;
        Surface* holder = nullptr;
    };

    std::optional<Press>& pressOf(MouseButton button) { return presses[static_cast<std::size_t>(button)]; }
    const std::optional<Press>& pressOf(MouseButton button) const { return presses[static_cast<std::size_t>(button)]; }
    std::array<Surface*, 5> frontToBack() const;
    Surface& surfaceAt(const platform::CGPoint& point) const;
    // Who took it.
    Surface* route(const platform::NSEvent& event);
    // To the one that has the press.
    void follow(const std::optional<Press>& press, const platform::NSEvent& event);
    void sendKey(platform::NSEventType type, const KeyStroke& stroke);
    platform::NSEvent eventHere(platform::NSEventType type) const;
    platform::NSEvent eventOf(const std::optional<Press>& press, platform::NSEventType type) const;
    void offerToOthers(const platform::NSEvent& event, std::int32_t owner);
    std::int32_t ownerOf(std::int64_t window) const;

    Machine& machine;
    std::unique_ptr<Surface> prompt;
    std::unique_ptr<MenuBar> bar;
    std::unique_ptr<Surface> dock;
    std::unique_ptr<Surface> windows;
    platform::CGPoint location;
    std::array<std::optional<Press>, 2> presses;
    std::int64_t key = 0;
};

}  // namespace desk
