// What the screens show at one moment.
#pragma once

#include <vector>

#include "desk/display/Layer.h"
#include "platform/Drawing.h"
#include "platform/Geometry.h"

namespace desk {

struct DesktopContents {
    std::vector<platform::CGRect> screens;
    platform::ColorScheme scheme = platform::ColorScheme::light;
    std::vector<Layer> layers;  // back to front
};

}  // namespace desk
