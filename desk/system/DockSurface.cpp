#include "desk/system/DockSurface.h"

#include <utility>

#include "desk/Machine.h"
#include "desk/system/Dock.h"

namespace desk {

bool DockSurface::covers(const platform::CGPoint& point) const {
    return !machine.windows.isFullScreenSpace() && isOnDock(machine, point);
}

std::optional<std::int32_t> DockSurface::take(const platform::NSEvent& event) {
    using platform::NSEventType;
    const platform::CGPoint& point = event.locationInWindow;
    if (event.type == NSEventType::leftMouseUp) {
        const auto item = std::exchange(pressed, std::nullopt);
        if (item && item == dockItemAt(machine, point)) openDockItem(machine, dockItems(machine)[*item]);
        return 0;
    }
    if (platform::isKeyEvent(event.type) || !covers(point)) return std::nullopt;
    if (event.type == NSEventType::leftMouseDown) pressed = dockItemAt(machine, point);
    return 0;
}

}  // namespace desk
