// A person's mouse on Finder's windows, from the press to the release (AppKit screen points). A press raises the window and activates Finder; what lies under it decides what moving
// and releasing mean then. It changes nothing itself: it asks Finder, as the keyboard and the menus do.
//
//   title bar                   moves the window with the mouse, not clamped by the menu bar; the second press of a double click zooms it
//   edge or corner              resizes it
//   window button, arrow, place acts on a release over the same one; dragged from the title bar, the first two move the window like the rest of it
//   row                         selects it; with Command toggles, with Shift extends; the second press of a double click opens it
//   list below the rows         selects nothing, or what the rectangle touches that is dragged open from there
//   scroller                    scrolls with the mouse; beside the knob by a page
//   header, status, sidebar     nothing
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "desk/finder/FinderLayout.h"
#include "desk/finder/FinderNeighbours.h"
#include "desk/windows/WindowFrame.h"
#include "platform/Geometry.h"

namespace desk {

class Finder;
struct FinderWindow;
struct ServerWindow;

struct MousePress {
    platform::CGPoint point;
    int clickCount = 1;
    std::uint64_t modifiers = 0;

    // Who goes on clicking clicks double again.
    bool isSecondOfDouble() const { return clickCount > 0 && clickCount % 2 == 0; }
};

class FinderMouse {
public:
    FinderMouse(Finder& theFinder, const FinderNeighbours& theNeighbours)
        : finder(theFinder), neighbours(theNeighbours) {}

    void mouseDown(std::int64_t number, const MousePress& press);
    void mouseDragged(const platform::CGPoint& point);
    void mouseUp(const platform::CGPoint& point);
    CursorShape cursorAt(std::int64_t number, const platform::CGPoint& point) const;
    void scrollWheel(std::int64_t number, double deltaY);
    // Whatever is held has no effect any more.
    void letGo() { held.reset(); }

private:
    struct Move {
        platform::CGPoint grip;  // from the mouse to the frame's origin
    };
    struct Resize {
        WindowEdges edges;
        platform::CGRect frame;  // at the press
    };
    struct Scroll {
        double scrolled;  // at the press
    };
    struct Band {
        platform::CGPoint from;         // in the whole list
        std::vector<std::string> kept;  // with Command or Shift, what was selected before
    };
    struct Hold {
        std::int64_t window;
        platform::CGPoint point;  // of the press
        std::variant<Move, Resize, Scroll, Band, WindowButton, FinderHit> grasp;
    };

    void bringForward(std::int64_t number);
    void graspFrame(const ServerWindow& shown, const MousePress& press);
    void graspContent(const ServerWindow& shown, const FinderWindow& window, const MousePress& press);
    void pressRow(std::int64_t number, std::size_t row, const MousePress& press);
    void pressScroller(const FinderWindow& window, const MousePress& press, double y);
    void dragTitleBarInstead(const ServerWindow& shown, const platform::CGPoint& point);
    void pressBelowRows(const FinderWindow& window, const MousePress& press, const platform::CGPoint& inWholeList);
    void openBand(const ServerWindow& shown, const Band& band, const platform::CGPoint& point);
    void scrollAlong(const Scroll& scroll, const platform::CGPoint& point);
    void act(const ServerWindow& shown, WindowButton button);
    void act(std::int64_t number, const FinderHit& hit);

    Finder& finder;
    FinderNeighbours neighbours;
    std::optional<Hold> held;
};

}  // namespace desk
