// What the menu bar shows: the menus' titles, each with its index as its id, and the clock. Where a title stands is asked of the laid-out view.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "desk/look/Shades.h"
#include "views/View.h"

namespace desk {

struct MenuBarContent {
    std::vector<std::string> titles;  // the application's own name is the first
    std::optional<std::size_t> open;
    std::string clock;
};

views::View menuBarView(const MenuBarContent& content, double height, const Shades& shades);

}  // namespace desk
