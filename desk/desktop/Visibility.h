// Which windows can be seen at all: on some screen, and not wholly behind one opaque window. Front to back, as the window stack lists them.
#pragma once

#include <vector>

#include "desk/windows/WindowStack.h"
#include "platform/Geometry.h"
#include "platform/Screens.h"

namespace desk {

// In the order given. A window is opaque but for its corners; a panel with a clear background hides nothing.
std::vector<const ServerWindow*> visibleWindows(const std::vector<const ServerWindow*>& frontToBack,
                                                const std::vector<platform::NSScreen>& screens);

}  // namespace desk
