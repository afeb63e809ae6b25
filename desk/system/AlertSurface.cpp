#include "desk/system/AlertSurface.h"

#include "desk/Machine.h"

namespace desk {

std::optional<ShownAlert> AlertSurface::shownAlert() const {
    const auto alert = machine.alert();
    const auto& screens = machine.displays.screens();
    if (!alert || screens.empty()) return std::nullopt;
    return ShownAlert(*alert, screens.front(), {machine.appearance.colorScheme.get()}, machine.text);
}

bool AlertSurface::covers(const platform::CGPoint& point) const {
    const auto shown = shownAlert();
    return shown && platform::CGRectContainsPoint(shown->frame(), point);
}

std::optional<std::int32_t> AlertSurface::take(const platform::NSEvent& event) {
    if (platform::isKeyEvent(event.type) || !covers(event.locationInWindow)) return std::nullopt;
    const auto button =
        platform::isMouseDown(event.type) ? shownAlert()->buttonAt(event.locationInWindow) : std::nullopt;
    if (button) machine.pressAlertButton(*button);
    return 0;
}

}  // namespace desk
