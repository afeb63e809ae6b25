#include "desk/menus/ToolTips.h"

#include <algorithm>
#include <utility>

#include "desk/Machine.h"
#include "desk/menus/ToolTipView.h"
#include "views/LaidOutView.h"

namespace desk {

namespace {

using platform::CGPoint;

constexpr platform::Duration restingTime = std::chrono::seconds(1);
constexpr double belowPointer = 20;

}  // namespace

std::optional<std::int32_t> ToolTips::take(const platform::NSEvent& event) {
    using platform::NSEventType;
    const NSEventType type = event.type;
    if (type == NSEventType::mouseMoved)
        mouseMoved();
    else if (platform::isMouseDown(type) || type == NSEventType::scrollWheel || type == NSEventType::keyDown)
        dismiss();
    return std::nullopt;
}

void ToolTips::mouseMoved() {
    const std::optional<Subject> present = subject();
    if (present && (told == present || dismissed == present)) return;
    dismissed.reset();
    hide();
    waiting = machine.scheduler.after(restingTime, [this] { show(); });
}

// The press is under way by now.
void ToolTips::dismiss() {
    dismissed = subjectUnderMouse();
    hide();
}

void ToolTips::hide() {
    if (waiting) machine.scheduler.cancel(*std::exchange(waiting, std::nullopt));
    if (std::exchange(told, std::nullopt)) machine.windows.changed();
}

void ToolTips::show() {
    waiting.reset();
    told = subject();
    if (!told) return;
    const platform::CGSize size = views::idealSize(toolTipView(told->text, {}), machine.text);
    const CGPoint mouse = machine.pointer.location;
    place = placeMenuAt({mouse.x, mouse.y - belowPointer}, size, machine.menus.roomAround(mouse));
    machine.windows.changed();
}

std::optional<ToolTips::ShownToolTip> ToolTips::shown() const {
    if (!told || told != subject()) return std::nullopt;
    return ShownToolTip{told->text, place};
}

std::optional<ToolTips::Subject> ToolTips::subject() const {
    return machine.pointer.isPressed() ? std::nullopt : subjectUnderMouse();
}

std::optional<ToolTips::Subject> ToolTips::subjectUnderMouse() const {
    const CGPoint mouse = machine.pointer.location;
    if (machine.input.isCovered(mouse)) return std::nullopt;
    const ServerWindow* window = machine.windows.windowAt(mouse);
    const platform::NSWindow* shownWindow = window == nullptr ? nullptr : window->window;
    if (shownWindow == nullptr || shownWindow->contentView() == nullptr) return std::nullopt;
    std::string text =
        shownWindow->contentView()->toolTipAt({mouse.x - window->frame.minX(), mouse.y - window->frame.minY()});
    if (text.empty()) return std::nullopt;
    return Subject{window->number, std::move(text)};
}

}  // namespace desk
