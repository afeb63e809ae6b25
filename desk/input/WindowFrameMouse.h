// A person's left button on the frame of a titled window, whoever has it, from the press to the release (AppKit screen points). It asks the window's keeper for whatever is to happen.
//
//   title bar     moves the window with the mouse, not clamped by the menu bar; the second press of a double click zooms it
//   edge, corner  resizes a window that can be resized
//   button        acts on a release over the same one; dragged, it moves the window like the rest of the title bar, and so does what the content has there
//
// What is pressed elsewhere is the content's, which this class leaves alone.
#pragma once

#include <cstdint>
#include <optional>
#include <variant>

#include "desk/windows/WindowFrame.h"
#include "desk/windows/WindowKeeper.h"
#include "platform/Geometry.h"

namespace desk {

class Processes;
class WindowStack;
struct ServerWindow;

class WindowFrameMouse {
public:
    WindowFrameMouse(WindowStack& theWindows, Processes& theProcesses) : windows(theWindows), processes(theProcesses) {}

    // They answer whether the event was the frame's.
    bool press(std::int64_t window, const platform::NSEvent& event);
    bool drag(const platform::CGPoint& point);
    bool release(const platform::CGPoint& point);
    CursorShape cursorAt(std::int64_t window, const platform::CGPoint& point) const;

private:
    struct Nothing {};
    struct Content {};
    struct Move {
        platform::CGPoint grip;  // from the mouse to the frame's origin
    };
    struct Resize {
        WindowEdges edges;
        platform::CGRect frame;  // at the press
    };
    using Grasp = std::variant<Nothing, Content, Move, Resize, WindowButton>;
    struct Hold {
        std::int64_t window;
        platform::CGPoint point;  // of the press
        Grasp grasp;
    };

    // Null for a window that is gone.
    WindowKeeper* keeperOf(std::int64_t window) const;
    Grasp graspAt(const ServerWindow& shown, WindowKeeper& keeper, const platform::NSEvent& event) const;
    void dragTitleBarInstead(const ServerWindow& shown, WindowKeeper& keeper, const platform::CGPoint& point);
    bool isFrames() const { return held && !std::holds_alternative<Content>(held->grasp); }

    WindowStack& windows;
    Processes& processes;
    std::optional<Hold> held;
};

}  // namespace desk
