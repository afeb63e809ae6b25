#include "desk/menus/ToolTips.h"

#include <algorithm>
#include <utility>

#include "desk/menus/MenuLayer.h"
#include "desk/menus/Placement.h"
#include "desk/menus/ToolTipView.h"
#include "desk/time/Scheduler.h"
#include "desk/windows/Pointer.h"
#include "desk/windows/WindowStack.h"
#include "platform/ContentView.h"
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
    waiting = scheduler.after(restingTime, [this] { show(); });
}

// The press is under way by now.
void ToolTips::dismiss() {
    dismissed = subjectUnderMouse();
    hide();
}

void ToolTips::hide() {
    if (waiting) scheduler.cancel(*std::exchange(waiting, std::nullopt));
    if (std::exchange(told, std::nullopt)) windows.changed();
}

void ToolTips::show() {
    waiting.reset();
    told = subject();
    if (!told) return;
    const platform::CGSize size = views::idealSize(toolTipView(told->text, {}), text);
    const CGPoint mouse = pointer.location;
    place = placeMenuAt({mouse.x, mouse.y - belowPointer}, size, menus.roomAround(mouse));
    windows.changed();
}

std::optional<ToolTips::ShownToolTip> ToolTips::shown() const {
    if (!told || told != subject()) return std::nullopt;
    return ShownToolTip{told->text, place};
}

std::optional<ToolTips::Subject> ToolTips::subject() const {
    return pointer.isPressed() ? std::nullopt : subjectUnderMouse();
}

std::optional<ToolTips::Subject> ToolTips::subjectUnderMouse() const {
    const CGPoint mouse = pointer.location;
    const bool isCovered =
        std::any_of(inFront.begin(), inFront.end(), [&](const Surface* each) { return each->covers(mouse); });
    if (isCovered) return std::nullopt;
    const ServerWindow* window = windows.windowAt(mouse);
    const platform::NSWindow* shownWindow = window == nullptr ? nullptr : window->window;
    if (shownWindow == nullptr || shownWindow->contentView() == nullptr) return std::nullopt;
    std::string help =
        shownWindow->contentView()->toolTipAt({mouse.x - window->frame.minX(), mouse.y - window->frame.minY()});
    if (help.empty()) return std::nullopt;
    return Subject{window->number, std::move(help)};
}

}  // namespace desk
