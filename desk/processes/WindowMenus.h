// The menus of an application of which the menu bar knows nothing but its windows: closing one, choosing one, quitting. The application's keeper and its starter do these things.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/Menus.h"

namespace desk {

class Processes;
class WindowStack;

// Behind the one of its own name, which goes by no name.
std::vector<std::string> windowMenus();
std::vector<platform::MenuItem> windowMenuItems(Processes& processes, WindowStack& windows, std::int32_t process,
                                                const std::string& menu);

}  // namespace desk
