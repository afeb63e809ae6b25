// What an application has put into the right part of the menu bar. The application's handle and MenuBar share it; where it stands is worked out anew each time (MenuBar::shown).
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "platform/Images.h"

namespace desk {

struct BarItem {
    std::int32_t owner = 0;  // process identifier
    platform::NSImage image;
    std::string label;
    std::function<void()> pressed;  // asks the application to open its menu, in a turn of its own
};

}  // namespace desk
