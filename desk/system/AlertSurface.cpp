#include "desk/system/AlertSurface.h"

#include <utility>

#include "desk/windows/Displays.h"
#include "platform/Events.h"

namespace desk {

using platform::NSEventType;

std::optional<ShownAlert> AlertSurface::shown() const {
    const Alert* alert = alerts.shown();
    const auto screen = displays.mainScreen();
    if (alert == nullptr || !screen) return std::nullopt;
    return ShownAlert(*alert, *screen, {appearance.colorScheme.get()}, text);
}

bool AlertSurface::covers(const platform::CGPoint& point) const {
    const auto alert = shown();
    return alert && platform::CGRectContainsPoint(alert->frame(), point);
}

std::optional<AlertSurface::PressedButton> AlertSurface::buttonAt(const platform::CGPoint& point) const {
    const auto alert = shown();
    auto label = alert ? alert->buttonAt(point) : std::nullopt;
    return label ? std::optional(PressedButton{alerts.shownNumber(), std::move(*label)}) : std::nullopt;
}

std::optional<std::int32_t> AlertSurface::take(const platform::NSEvent& event) {
    if (platform::isKeyEvent(event.type)) return takeKey(event) ? std::optional(0) : std::nullopt;
    if (event.type == NSEventType::leftMouseUp) {
        const auto button = std::exchange(pressed, std::nullopt);
        if (button && button == buttonAt(event.locationInWindow)) alerts.press(button->label);
        return 0;
    }
    if (event.type == NSEventType::leftMouseDragged) return 0;
    if (!covers(event.locationInWindow)) return std::nullopt;
    if (event.type == NSEventType::leftMouseDown) pressed = buttonAt(event.locationInWindow);
    return 0;
}

bool AlertSurface::takeKey(const platform::NSEvent& event) {
    const Alert* alert = alerts.shown();
    if (alert == nullptr) return false;
    const bool isReturn = event.characters == "\r";
    if (!isReturn && event.characters != "\x1b") return false;
    const auto& button = isReturn ? alert->defaultButton : alert->cancelButton;
    // By value: the alert goes when it is pressed.
    if (event.type == NSEventType::keyDown && button) alerts.press(std::string(*button));
    return true;
}

}  // namespace desk
