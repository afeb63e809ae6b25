// A window of an application of which the desk knows no more than the name: its icon, and a line below it.
#pragma once

#include <string>

#include "desk/look/WindowFrameView.h"

namespace desk {

views::View sketchedWindowView(const PlainWindow& window, const std::string& application, const std::string& note,
                               const Shades& shades);

}  // namespace desk
