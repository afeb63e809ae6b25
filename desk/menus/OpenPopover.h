// A popover that an application has put up: its content, and the anchor that it points at, which moves along with its window. The application's handle and MenuLayer
// share it; where it stands on the screen is worked out anew each time (MenuLayer::popovers).
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "platform/Geometry.h"
#include "platform/Menus.h"
#include "platform/Windows.h"

namespace desk {

struct OpenPopover {
    std::int32_t owner = 0;   // process identifier
    std::int64_t window = 0;  // that it belongs to
    platform::CGRect anchor;  // from the window's origin
    platform::RectEdge arrowEdge = platform::RectEdge::minY;
    platform::CGSize contentSize;
    std::shared_ptr<platform::ContentView> content;
    std::function<void()> onDismiss;
};

}  // namespace desk
