#include "play/soak/CopyWatch.h"

#include <cmath>
#include <utility>

#include "play/BarParts.h"
#include "play/Session.h"
#include "play/soak/Expectations.h"

namespace play {

namespace {

constexpr double leastWidth = 320;  // a narrower bar's parts lie on one another
constexpr double reach = 5;         // from the middle of the button

bool isOfLeftButton(std::string_view line, std::string_view verb) {
    return line.starts_with(verb) && !line.ends_with(" right");
}

}  // namespace

std::optional<Finding> CopyWatch::look(std::string_view line) {
    const bool isDistractedNow = isDistracted();
    const bool isDisturbed = std::exchange(wasDistracted, isDistractedNow) || isDistractedNow;
    if (session.application() == nullptr || session.application()->isOnStack()) held = 0;
    const auto* bar = barAtMouse();
    const std::int64_t panel = bar == nullptr ? 0 : bar->panel->windowNumber();
    const std::string copied = std::exchange(path, {});
    if (isOfLeftButton(line, "mouse down ")) held = !isDisturbed && isOnTop(panel) ? panel : 0;
    const bool isReleased = isOfLeftButton(line, "mouse up ");
    const std::int64_t released = isReleased ? std::exchange(held, 0) : 0;
    if (held != 0 && held == panel && bar->viewModel->windowState.get()) {
        const auto& state = *bar->viewModel->windowState.get();
        path = state.selectedFilePath.value_or(state.path);
    }
    if (released == 0 || released != panel || copied.empty() || session.machine.clipboard == copied)
        return std::nullopt;
    return Finding{"copy",
                   "a held copy button was released and copied nothing: " + copied,
                   {"expect /clipboard " + jsonOf(copied)}};
}

const brindle::FinderOverlayWindowController* CopyWatch::barAtMouse() const {
    const auto* orvane = session.orvane();
    const auto* coordinator = orvane == nullptr ? nullptr : orvane->appDelegate.coordinator();
    if (coordinator == nullptr) return nullptr;
    const platform::CGPoint mouse = session.machine.pointer.location;
    for (const auto& [id, bar] : coordinator->liveControllers()) {
        const platform::CGRect frame = bar->panel->frame();
        if (frame.width() < leastWidth || !platform::CGRectContainsPoint(frame, mouse)) continue;
        const auto button = barPartPoint(session, bar->panel->windowNumber(), "copy", {});
        if (button && std::hypot(frame.minX() + button->x - mouse.x, frame.maxY() - button->y - mouse.y) < reach)
            return bar.get();
    }
    return nullptr;
}

// It has taken the press: it is in front there, and has the keyboard.
bool CopyWatch::isOnTop(std::int64_t panel) const {
    const auto& machine = session.machine;
    const auto* shown = machine.windows.windowAt(machine.pointer.location);
    return panel != 0 && shown != nullptr && shown->number == panel && machine.keyboard.keyWindow() == panel;
}

bool CopyWatch::isDistracted() const {
    const auto& menus = session.machine.menus;
    return menus.menu() != nullptr || !menus.popovers().empty() || session.machine.alerts.shown() != nullptr ||
           session.machine.input.isCovered(session.machine.pointer.location) || session.application() == nullptr ||
           session.application()->isOnStack();
}

}  // namespace play
