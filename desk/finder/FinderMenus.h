// What Finder's menus in the menu bar hold: its commands, and its folder windows.
#pragma once

#include <string>
#include <vector>

#include "platform/Menus.h"

namespace desk {

class Finder;
class WindowStack;

std::vector<std::string> finderMenus();
// Each can be chosen if it could be done now.
std::vector<platform::MenuItem> finderMenuItems(Finder& finder, WindowStack& windows, const std::string& menu);

}  // namespace desk
