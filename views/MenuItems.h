// What the platform's menu shows of a menu's declared content. HostingView asks when a menu opens; each kind of node
// adds its own.
#pragma once

#include <vector>

#include "platform/Menus.h"
#include "views/View.h"

namespace views {

// A button is an entry, a divider a separator, a text or label an entry that can't be chosen; containers give what they
// contain. The content has been evaluated, and stays as long as the actions do.
std::vector<platform::MenuItem> menuItems(const View& content);
void addMenuItemsOf(const View& view, std::vector<platform::MenuItem>& items);

// With the texts and the first symbol inside; it can't be chosen.
platform::MenuItem labelledMenuItem(const View& view);

}  // namespace views
