// The events of mouse and keyboard. Each goes to the surfaces of the screen from front to back until one takes it; then the global monitors of all processes but the one that it was for get
// copies, as later items. A press of each mouse button belongs to the surface that took it, until its release. AppKit screen points throughout.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "desk/keys/KeyStroke.h"
#include "desk/windows/Pointer.h"
#include "desk/windows/WindowFrame.h"
#include "platform/Events.h"
#include "platform/Geometry.h"

namespace desk {

class Applications;
class Scheduler;
class Surface;
class WindowStack;

class Input {
public:
    // The last surface covers every point.
    Input(Scheduler& theScheduler, Applications& theApplications, WindowStack& theWindows, Pointer& thePointer,
          std::vector<Surface*> theSurfaces);

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
    bool isCovered(const platform::CGPoint& point) const { return &surfaceAt(point) != frontToBack.back(); }
    void keyDown(const KeyStroke& stroke);
    void keyUp(const KeyStroke& stroke);

private:
    using Press = std::optional<Pointer::Press>;

    Surface& surfaceAt(const platform::CGPoint& point) const;
    // Who took it.
    Surface* route(const platform::NSEvent& event);
    // To the one that has the press.
    void follow(const Press& press, const platform::NSEvent& event);
    void moveTo(const platform::CGPoint& point);
    void sendKey(platform::NSEventType type, const KeyStroke& stroke);
    platform::NSEvent eventHere(platform::NSEventType type) const;
    platform::NSEvent eventOf(const Press& press, platform::NSEventType type) const;
    void offerToOthers(const platform::NSEvent& event, std::int32_t owner);

    Scheduler& scheduler;
    Applications& applications;
    WindowStack& windows;
    Pointer& pointer;
    std::vector<Surface*> frontToBack;
};

}  // namespace desk
