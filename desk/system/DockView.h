// What a Dock of that height shows: its items' icons on a plate, each with its index as its id, the plate's being `dockPlateId`. Empty where there is no room for icons.
#pragma once

#include <vector>

#include "desk/look/Shades.h"
#include "desk/system/Dock.h"
#include "views/View.h"

namespace desk {

inline constexpr auto dockPlateId = "plate";

views::View dockView(const std::vector<DockItem>& items, double height, const Shades& shades);

}  // namespace desk
