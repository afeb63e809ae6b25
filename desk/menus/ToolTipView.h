// What a tooltip shows: one line in a small frame. It takes what the line needs.
#pragma once

#include <string>

#include "desk/look/Shades.h"
#include "views/View.h"

namespace desk {

views::View toolTipView(const std::string& text, const Shades& shades);

}  // namespace desk
