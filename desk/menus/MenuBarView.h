// What the menu bar shows: the menus' titles, applications' items and the clock. Titles and items have ids, by which the laid-out view tells where they stand.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "desk/look/Shades.h"
#include "platform/Images.h"
#include "views/View.h"

namespace desk {

struct MenuBarContent {
    std::vector<std::string> titles;       // the application's own name is the first
    std::vector<platform::NSImage> items;  // from the right
    std::string open;                      // the id of what looks pressed
    std::string clock;
};

std::string titleId(std::size_t index);
std::string itemId(std::size_t index);

views::View menuBarView(const MenuBarContent& content, double height, const Shades& shades);

}  // namespace desk
