// What the contact sheet shows, in its order.
#pragma once

#include <span>
#include <string>

namespace play {

struct SheetState {
    std::string caption;
    int width;           // of the window and so of its bar, in points
    std::string target;  // a folder, or the name of a virtual location; empty: no window, and so no bar
    std::string before;  // script lines before the launch
    std::string story;   // and after the bar has come up
};

std::span<const SheetState> sheetStates();

}  // namespace play
