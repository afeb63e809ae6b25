// What every titled window has around its content: title bar, the three buttons, the edges that resize it. Points are those of the window, from its top left corner, y
// downward, but for frames, which are AppKit's. It neither draws nor moves anything.
#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <optional>

#include "platform/Geometry.h"
#include "platform/WindowSettings.h"

namespace desk {

inline constexpr double windowTitleBarHeight = 28;
inline constexpr double windowButtonDiameter = 12;
// Where the title bar's own content may begin.
inline constexpr double windowButtonsWidth = 78;

enum class WindowButton { close, minimize, zoom };
inline constexpr std::array windowButtons{WindowButton::close, WindowButton::minimize, WindowButton::zoom};

// The bit of the style that a window with that button has.
constexpr unsigned styleBitOf(WindowButton button) {
    constexpr std::array bits{platform::NSWindowStyleMask::closable, platform::NSWindowStyleMask::miniaturizable,
                              platform::NSWindowStyleMask::resizable};
    return bits[static_cast<std::size_t>(button)];
}
inline constexpr unsigned everyWindowButton = platform::NSWindowStyleMask::closable |
                                              platform::NSWindowStyleMask::miniaturizable |
                                              platform::NSWindowStyleMask::resizable;

platform::CGPoint centerOf(WindowButton button);
// None in a window that is too narrow for a title bar beside them.
std::optional<WindowButton> windowButtonAt(const platform::CGPoint& point, platform::CGSize size);

struct WindowEdges {
    bool left = false;
    bool right = false;
    bool top = false;
    bool bottom = false;

    bool any() const { return left || right || top || bottom; }
    friend bool operator==(const WindowEdges&, const WindowEdges&) = default;
};

// The edges that a press there would drag: one, the two of a corner, or none. A window too small to be of use by hand has none.
WindowEdges windowEdgesAt(const platform::CGPoint& point, platform::CGSize size);

// The frame with these edges moved by that much, the others where they were. It becomes no smaller than `least` and no larger than `most`, or than it is already.
platform::CGRect resizedFrame(const platform::CGRect& frame, WindowEdges edges, const platform::CGPoint& by,
                              platform::CGSize least, platform::CGSize most);

enum class CursorShape { arrow, resizeLeftRight, resizeUpDown, resizeNorthWestSouthEast, resizeNorthEastSouthWest };
CursorShape cursorFor(WindowEdges edges);

// From the screen to the window with that frame, and back.
inline platform::CGPoint insideWindow(const platform::CGRect& frame, const platform::CGPoint& point) {
    return {point.x - frame.minX(), frame.maxY() - point.y};
}
// For what is laid out from the top, where a rectangle has its top edge and lacks its bottom one.
inline platform::CGPoint insideLaidOut(const platform::CGRect& frame, const platform::CGPoint& point) {
    return {point.x - frame.minX(), std::nextafter(frame.maxY() - point.y, 0)};
}
// AppKit's rectangles have their bottom edge and lack their top one, so with y downward it is the other way round.
inline bool containsInside(const platform::CGRect& part, const platform::CGPoint& point) {
    return point.x >= part.minX() && point.x < part.maxX() && point.y > part.minY() && point.y <= part.maxY();
}
inline platform::CGRect onScreen(const platform::CGRect& frame, const platform::CGRect& part) {
    return {{frame.minX() + part.minX(), frame.maxY() - part.maxY()}, part.size};
}

}  // namespace desk
