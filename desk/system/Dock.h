// The Dock at the lower edge of a screen: the applications that always stand in it, those that run besides, and minimised windows at its right end. What is drawn and what a
// click hits come from here; it holds nothing itself.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/Geometry.h"
#include "views/LaidOutView.h"

namespace desk {

class Machine;

struct DockItem {
    std::string name;
    std::string path;  // of an application
    bool isRunning = false;
    std::int64_t window = 0;  // a minimised window, then there is no path
};

std::vector<DockItem> dockItems(const Machine& machine);

// In the strip of that size at the screen's lower edge; see DockView.h.
views::LaidOutView shownDock(const Machine& machine, platform::CGSize strip);

// Which of the items stands there (a point of the screen); empty beside the Dock and between icons.
std::optional<std::size_t> dockItemAt(const Machine& machine, const platform::CGPoint& point);
bool isOnDock(const Machine& machine, const platform::CGPoint& point);
// As a click does: an application comes to the front, started if it doesn't run; a window is restored.
void openDockItem(Machine& machine, const DockItem& item);

}  // namespace desk
