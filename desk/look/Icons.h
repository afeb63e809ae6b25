// Icons of files, applications and minimised windows, as square views of that side.
#pragma once

#include <string_view>

#include "desk/look/Shades.h"
#include "views/View.h"

namespace desk {

views::View folderIcon(double side);
views::View documentIcon(double side);
// Of applications that have none of their own: the first letter of the name on a plate.
views::View applicationIcon(std::string_view name, double side);
views::View windowIcon(const Shades& shades, double side);

}  // namespace desk
