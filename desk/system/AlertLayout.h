// Where a system alert and its buttons stand on the screen: the display paints them there, input presses them there. AppKit screen points.
#pragma once

#include <string>
#include <vector>

#include "desk/processes/Permissions.h"
#include "platform/Geometry.h"
#include "platform/Screens.h"

namespace desk {

struct AlertButton {
    std::string label;
    platform::CGRect frame;
};

struct AlertLayout {
    platform::CGRect frame;
    platform::CGRect text;
    std::vector<AlertButton> buttons;  // left to right; the last one is the default button

    const AlertButton* buttonAt(const platform::CGPoint& point) const;
    const AlertButton* buttonLabelled(const std::string& label) const;
};

AlertLayout layoutOf(const SystemAlert& alert, const platform::NSScreen& screen);

}  // namespace desk
