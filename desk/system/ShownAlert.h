// An alert as it stands on a screen, a little above the middle, as high as its texts ask for: what it shows, and which button lies where. The default button is at the right. It presses nothing.
#pragma once

#include <optional>
#include <string>

#include "desk/look/Shades.h"
#include "desk/processes/Alerts.h"
#include "platform/Geometry.h"
#include "platform/Screens.h"
#include "views/LaidOutView.h"

namespace desk {

class ShownAlert {
public:
    ShownAlert(const Alert& alert, const platform::NSScreen& screen, const Shades& shades, platform::TextSystem& text);

    // AppKit screen points, as all others here.
    const platform::CGRect& frame() const { return place; }
    platform::Drawing drawing() const { return view.drawing(); }
    // Its label; empty beside all buttons.
    std::optional<std::string> buttonAt(const platform::CGPoint& point) const;
    std::optional<platform::CGRect> buttonLabelled(const std::string& label) const;

private:
    platform::CGRect place;
    views::LaidOutView view;
};

}  // namespace desk
