// A person's mouse on what Finder's windows show, from the press to the release (AppKit screen points). What lies under the press decides what moving and releasing mean then.
// It changes nothing itself: it asks Finder's browser, as the keyboard and the menus do.
//
//   arrow, place                acts on a release over the same one
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

#include "desk/finder/FinderHit.h"
#include "desk/finder/FinderNeighbours.h"
#include "platform/Events.h"
#include "platform/Geometry.h"

namespace desk {

class Finder;
struct FinderWindow;

class FinderMouse {
public:
    FinderMouse(Finder& theFinder, const FinderNeighbours& theNeighbours)
        : finder(theFinder), neighbours(theNeighbours) {}

    void handle(std::int64_t window, const platform::NSEvent& event);
    // Whatever is held has no effect any more.
    void letGo() { held.reset(); }

private:
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
        std::variant<Scroll, Band, FinderHit> grasp;
    };

    void mouseDown(std::int64_t number, const platform::NSEvent& press);
    void mouseDragged(std::int64_t number, const platform::NSEvent& event);
    void mouseUp(std::int64_t number, const platform::NSEvent& event);
    void scrollWheel(std::int64_t number, const platform::NSEvent& event);
    void pressButton(const FinderWindow& window, const platform::NSEvent& press, const FinderHit& hit);
    void pressRow(const FinderWindow& window, const platform::NSEvent& press, const FinderHit& hit);
    void pressScroller(const FinderWindow& window, const platform::NSEvent& press, const FinderHit& hit);
    void pressBelowRows(const FinderWindow& window, const platform::NSEvent& press, const FinderHit& hit);
    void openBand(const FinderWindow& window, const Band& band, const platform::CGPoint& point);
    void scrollAlong(const FinderWindow& window, const Scroll& scroll, const platform::CGPoint& point);
    void act(std::int64_t number, const FinderHit& hit);
    platform::CGPoint inside(std::int64_t number, const platform::CGPoint& point) const;

    Finder& finder;
    FinderNeighbours neighbours;
    std::optional<Hold> held;
};

}  // namespace desk
