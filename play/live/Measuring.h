// What the desk measures of itself in real time: how closely bars follow a drag, and what an idle desktop costs. It reports figures and asserts nothing.
#pragma once

#include <iosfwd>

namespace play {

// Twenty windows; the active one is dragged by its title bar, then by its bar's brand, by mouse events at 60 and at 120 a second. Needs a display, or the
// offscreen one.
int measureDrags(std::ostream& out);

// A few windows and nobody at the desk for that long.
int measureIdle(std::ostream& out, double seconds);

}  // namespace play
