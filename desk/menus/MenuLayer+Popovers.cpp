#include <algorithm>

#include "desk/menus/MenuLayer.h"
#include "desk/processes/Applications.h"
#include "desk/processes/KeyboardFocus.h"
#include "desk/windows/Pointer.h"
#include "desk/windows/WindowStack.h"

namespace desk {

namespace {

using platform::CGPoint;
using platform::CGRect;
using platform::NSEvent;

constexpr double contentMargin = 20;

}  // namespace

void MenuLayer::show(const std::shared_ptr<OpenPopover>& popover) {
    shownPopovers.push_back(popover);
    windows.changed();
}

void MenuLayer::hide(const OpenPopover& popover) {
    if (std::erase_if(shownPopovers, [&](const auto& each) { return each.get() == &popover; }) > 0) windows.changed();
}

std::vector<ShownPopover> MenuLayer::popovers() const {
    std::vector<ShownPopover> shown;
    for (const auto& popover : shownPopovers) {
        const ServerWindow* window = windows.find(popover->window);
        if (window == nullptr || !windows.isOnScreen(*window)) continue;
        const CGRect anchor = CGRectOffset(popover->anchor, window->frame.minX(), window->frame.minY());
        shown.push_back({popover.get(), placePopover(anchor, popover->arrowEdge, popover->contentSize,
                                                     roomAround({anchor.midX(), anchor.midY()}))});
    }
    return shown;
}

bool MenuLayer::covers(const CGPoint& point) const {
    if (tracked) return true;
    const std::vector<ShownPopover> shown = popovers();
    return std::any_of(shown.begin(), shown.end(),
                       [&](const ShownPopover& each) { return platform::CGRectContainsPoint(each.place.body, point); });
}

platform::CGSize MenuLayer::mostContent(const CGRect& anchor) const {
    const CGRect room = CGRectInset(roomAround({anchor.midX(), anchor.midY()}), contentMargin, contentMargin);
    return {std::max(0.0, room.width()), std::max(0.0, room.height())};
}

// A press closes every popover but the one it is in and those whose anchor it is on; unless it is in one, it then goes on.
MenuLayer::Taker MenuLayer::pressPopovers(const NSEvent& event) {
    const CGPoint& point = event.locationInWindow;
    const std::vector<ShownPopover> shown = popovers();
    const auto pressed = std::find_if(shown.rbegin(), shown.rend(), [&](const ShownPopover& each) {
        return platform::CGRectContainsPoint(each.place.body, point);
    });
    Taker owner;
    const OpenPopover* hit = nullptr;
    if (pressed != shown.rend()) {
        hit = pressed->popover;
        owner = hit->owner;
        auto& press = held(buttonOf(event.type));
        press = HeldPress{hit->owner, hit->content, pressed->place.body.origin};
        sendToContent(*press, event);
    }
    for (const ShownPopover& each : shown) {
        const bool isAnchors = hit == nullptr && isOnAnchor(each, point);
        if (each.popover != hit && !isAnchors) dismiss(*each.popover);
    }
    return owner;
}

bool MenuLayer::isOnAnchor(const ShownPopover& shown, const CGPoint& point) const {
    const ServerWindow* window = windows.windowAt(point);
    if (window == nullptr || window->number != shown.popover->window) return false;
    return platform::CGRectContainsPoint(
        CGRectOffset(shown.popover->anchor, window->frame.minX(), window->frame.minY()), point);
}

bool MenuLayer::hasKeyboardFocus() const {
    const ServerWindow* window = windows.find(keyboard.keyWindow());
    return window != nullptr && window->window != nullptr && window->window->firstResponder() != nullptr;
}

// It is off the screen at once; its application hears of it in a turn of its own, unless it has let go of the popover by then.
void MenuLayer::dismiss(const OpenPopover& popover) {
    const auto found = std::find_if(shownPopovers.begin(), shownPopovers.end(),
                                    [&](const auto& each) { return each.get() == &popover; });
    if (found == shownPopovers.end()) return;
    const std::weak_ptr<OpenPopover> dismissed = *found;
    LaunchedApplication* owner = applications.find(popover.owner);
    shownPopovers.erase(found);
    windows.changed();
    if (owner == nullptr) return;
    owner->loop().mainAsync([dismissed] {
        if (const auto kept = dismissed.lock(); kept && kept->onDismiss) kept->onDismiss();
    });
}

void MenuLayer::sendToContent(const HeldPress& press, const NSEvent& event) const {
    LaunchedApplication* owner = applications.find(press.owner);
    if (owner == nullptr || press.content.expired()) return;
    NSEvent inContent = event;
    inContent.locationInWindow = {event.locationInWindow.x - press.origin.x, event.locationInWindow.y - press.origin.y};
    owner->loop().mainAsync([content = press.content, inContent] {
        if (const auto kept = content.lock()) kept->handleEvent(inContent);
    });
}

}  // namespace desk
