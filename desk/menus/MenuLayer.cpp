#include "desk/menus/MenuLayer.h"

#include <algorithm>

#include "desk/processes/Applications.h"
#include "desk/time/Scheduler.h"
#include "desk/windows/Displays.h"
#include "desk/windows/Pointer.h"
#include "desk/windows/WindowStack.h"
#include "views/text/KeyBindings.h"

namespace desk {

namespace {

using platform::CGPoint;
using platform::CGRect;
using platform::CGRectMake;
using platform::CGSize;
using platform::NSEvent;
using platform::NSEventType;

constexpr double slop = 4;  // a hand that clicks moves the mouse as far as this
// Without a display there is no edge to keep to.
constexpr CGRect boundless{{-1e6, -1e6}, {2e6, 2e6}};

constexpr platform::Duration scrollPeriod = std::chrono::milliseconds(25);
constexpr double firstScrollStep = 6;
constexpr double mostScrollStep = 400;
constexpr double scrollGrowth = 1.04;

constexpr std::uint16_t escapeKey = 53;
constexpr platform::Duration typingPause = std::chrono::seconds(1);  // after it a new word begins

}  // namespace

CGRect MenuLayer::roomAround(const CGPoint& point) const {
    const std::vector<platform::NSScreen>& screens = displays.screens();
    if (screens.empty()) return boundless;
    const auto distance = [&](const platform::NSScreen& screen) {
        const double x = std::clamp(point.x, screen.frame.minX(), screen.frame.maxX());
        const double y = std::clamp(point.y, screen.frame.minY(), screen.frame.maxY());
        return std::hypot(point.x - x, point.y - y);
    };
    const auto nearest = std::min_element(screens.begin(), screens.end(),
                                          [&](const auto& a, const auto& b) { return distance(a) < distance(b); });
    return windows.isFullScreenSpace() ? nearest->frame : nearest->visibleFrame;
}

std::uint64_t MenuLayer::openBelow(std::int32_t owner, const CGRect& anchor, std::vector<platform::MenuItem> items) {
    return open(
        owner, std::move(items), anchor,
        [this, anchor](CGSize size) {
            return placeMenuBelow(anchor, size, roomAround({anchor.minX(), anchor.minY()}));
        },
        MouseButton::left);
}

std::uint64_t MenuLayer::openAt(std::int32_t owner, const CGPoint& point, std::vector<platform::MenuItem> items) {
    return open(
        owner, std::move(items), CGRectMake(point.x - slop, point.y - slop, 2 * slop, 2 * slop),
        [this, point](CGSize size) { return placeMenuAt(point, size, roomAround(point)); },
        pointer.isPressed(MouseButton::right) ? MouseButton::right : MouseButton::left);
}

std::uint64_t MenuLayer::open(std::int32_t owner, std::vector<platform::MenuItem> items, const CGRect& source,
                              Placing place, MouseButton button) {
    closeMenu();
    ++lastNumber;
    if (items.empty()) return lastNumber;
    OpenMenu menu = placed(std::move(items), place);
    tracked.emplace(Tracked{lastNumber, owner, std::move(menu), std::move(place), source, std::nullopt});
    if (pointer.isPressed(button)) {
        tracked->pressedAt = pointer.location;
        held(button) = HeldPress{owner, {}, {}};
        pointer.handOver(button, *this);
    }
    windows.changed();
    return lastNumber;
}

OpenMenu MenuLayer::placed(std::vector<platform::MenuItem> items, const Placing& place) const {
    MenuLayout layout(items, text);
    const CGRect frame = place(layout.size());
    return {std::move(items), std::move(layout), frame};
}

void MenuLayer::update(std::uint64_t menu, std::vector<platform::MenuItem> items) {
    if (!isOpen(menu)) return;
    if (items.empty()) return closeMenu();
    OpenMenu fresh = placed(std::move(items), tracked->place);
    fresh.goOnFrom(tracked->menu);
    // What the entries before held on to goes at the end.
    const OpenMenu before = std::exchange(tracked->menu, std::move(fresh));
    windows.changed();
}

void MenuLayer::close(std::uint64_t menu) {
    if (isOpen(menu)) closeMenu();
}

// What its entries' actions hold on to goes after the menu has.
void MenuLayer::closeMenu() {
    if (!tracked) return;
    stopScrolling();
    const Tracked closing = *std::exchange(tracked, std::nullopt);
    windows.changed();
}

void MenuLayer::reveal(std::size_t row) {
    if (tracked && tracked->menu.reveal(row)) windows.changed();
}

void MenuLayer::applicationEnded(std::int32_t owner) {
    if (tracked && tracked->owner == owner) closeMenu();
    for (auto& press : heldPresses)
        if (press && press->owner == owner) press.reset();
    std::erase_if(shownPopovers, [&](const auto& popover) { return popover->owner == owner; });
}

MenuLayer::Taker MenuLayer::take(const NSEvent& event) {
    struct Entry {
        NSEventType type;
        Taker (MenuLayer::*handler)(const NSEvent&);
    };
    static constexpr Entry handlers[] = {{NSEventType::leftMouseDown, &MenuLayer::mouseDown},
                                         {NSEventType::rightMouseDown, &MenuLayer::mouseDown},
                                         {NSEventType::leftMouseUp, &MenuLayer::mouseUp},
                                         {NSEventType::rightMouseUp, &MenuLayer::mouseUp},
                                         {NSEventType::leftMouseDragged, &MenuLayer::mouseDragged},
                                         {NSEventType::rightMouseDragged, &MenuLayer::mouseDragged},
                                         {NSEventType::mouseMoved, &MenuLayer::mouseMoved},
                                         {NSEventType::scrollWheel, &MenuLayer::scrollWheel},
                                         {NSEventType::keyDown, &MenuLayer::keyDown},
                                         {NSEventType::keyUp, &MenuLayer::keyUp}};
    for (const Entry& entry : handlers)
        if (entry.type == event.type) return (this->*entry.handler)(event);
    return std::nullopt;
}

MenuLayer::Taker MenuLayer::mouseDown(const NSEvent& event) {
    held(buttonOf(event.type)).reset();
    if (!tracked) return pressPopovers(event);
    const std::int32_t owner = tracked->owner;
    held(buttonOf(event.type)) = HeldPress{owner, {}, {}};
    if (platform::CGRectContainsPoint(tracked->menu.frame(), event.locationInWindow))
        hover(event.locationInWindow);
    else
        closeMenu();
    return owner;
}

MenuLayer::Taker MenuLayer::mouseDragged(const NSEvent& event) {
    if (tracked) return mouseMoved(event);
    const std::optional<HeldPress>& press = held(buttonOf(event.type));
    if (!press) return std::nullopt;
    sendToContent(*press, event);
    return press->owner;
}

MenuLayer::Taker MenuLayer::mouseUp(const NSEvent& event) {
    const std::optional<HeldPress> press = std::exchange(held(buttonOf(event.type)), std::nullopt);
    if (tracked) {
        const std::int32_t owner = tracked->owner;
        released(event.locationInWindow);
        return owner;
    }
    if (!press) return std::nullopt;
    sendToContent(*press, event);
    return press->owner;
}

void MenuLayer::released(const CGPoint& point) {
    const auto began = std::exchange(tracked->pressedAt, std::nullopt);
    const bool isClick = began && std::hypot(point.x - began->x, point.y - began->y) <= slop;
    const auto row = tracked->menu.rowAt(point);
    if (row && !isClick && tracked->menu.canChoose(*row))
        choose(*row);
    else if (!isClick && !platform::CGRectContainsPoint(tracked->menu.frame(), point) &&
             !platform::CGRectContainsPoint(tracked->source, point))
        closeMenu();
}

MenuLayer::Taker MenuLayer::mouseMoved(const NSEvent& event) {
    if (!tracked) return std::nullopt;
    hover(event.locationInWindow);
    return tracked->owner;
}

MenuLayer::Taker MenuLayer::scrollWheel(const NSEvent& event) {
    if (!tracked) return std::nullopt;
    const bool isInside = platform::CGRectContainsPoint(tracked->menu.frame(), event.locationInWindow);
    if (isInside && tracked->menu.scrollBy(-event.scrollingDeltaY)) windows.changed();
    hover(event.locationInWindow);
    return tracked->owner;
}

void MenuLayer::hover(const CGPoint& point) {
    if (tracked->menu.highlight(tracked->menu.rowAt(point))) windows.changed();
    if (tracked->menu.scrollerAt(point) == 0)
        stopScrolling();
    else if (!scrolling)
        scrolling = scheduler.after(scrollPeriod, [this] { keepScrolling(); });
}

// While the mouse rests on the arrow at one of the menu's ends; the longer, the faster.
void MenuLayer::keepScrolling() {
    scrolling.reset();
    const CGPoint mouse = pointer.location;
    scrollStep = std::clamp(scrollStep * scrollGrowth, firstScrollStep, mostScrollStep);
    if (tracked->menu.scrollBy(tracked->menu.scrollerAt(mouse) * scrollStep)) windows.changed();
    hover(mouse);
}

void MenuLayer::stopScrolling() {
    scrollStep = 0;
    if (scrolling) scheduler.cancel(*std::exchange(scrolling, std::nullopt));
}

MenuLayer::Taker MenuLayer::keyDown(const NSEvent& event) {
    Taker owner;
    if (tracked) {
        owner = tracked->owner;
        menuKey(event);
    } else if (event.keyCode == escapeKey && !hasKeyboardFocus()) {
        const std::vector<ShownPopover> shown = popovers();
        if (!shown.empty()) {
            owner = shown.back().popover->owner;
            dismiss(*shown.back().popover);
        }
    }
    if (owner) takenKey = {event.keyCode, *owner};
    return owner;
}

MenuLayer::Taker MenuLayer::keyUp(const NSEvent& event) {
    if (takenKey && takenKey->first == event.keyCode) return std::exchange(takenKey, std::nullopt)->second;
    return tracked ? Taker(tracked->owner) : std::nullopt;
}

void MenuLayer::menuKey(const NSEvent& event) {
    struct Entry {
        std::uint16_t keyCode;
        void (*act)(MenuLayer&);
    };
    static constexpr auto chooseCurrent = [](MenuLayer& layer) {
        if (const auto row = layer.tracked->menu.highlighted())
            layer.choose(*row);
        else
            layer.closeMenu();
    };
    static constexpr Entry entries[] = {
        {escapeKey, [](MenuLayer& layer) { layer.closeMenu(); }},
        {125, [](MenuLayer& layer) { layer.tracked->menu.walk(1); }},
        {126, [](MenuLayer& layer) { layer.tracked->menu.walk(-1); }},
        {115, [](MenuLayer& layer) { layer.tracked->menu.walkFrom(0, 1); }},
        {119, [](MenuLayer& layer) { layer.tracked->menu.walkFrom(layer.tracked->menu.items().size(), -1); }},
        {116, [](MenuLayer& layer) { layer.tracked->menu.walkPage(-1); }},
        {121, [](MenuLayer& layer) { layer.tracked->menu.walkPage(1); }},
        {36, chooseCurrent},  // Return, Enter, the space bar
        {76, chooseCurrent},
        {49, chooseCurrent}};
    for (const Entry& entry : entries) {
        if (entry.keyCode != event.keyCode) continue;
        entry.act(*this);
        windows.changed();
        return;
    }
    typeToSelect(event);
}

void MenuLayer::typeToSelect(const NSEvent& event) {
    const std::string typed = views::typedText(event);
    if (typed.empty()) return;
    const platform::Date now = scheduler.now();
    if (now - tracked->lastTyped >= typingPause) tracked->typed.clear();
    tracked->lastTyped = now;
    tracked->typed += typed;
    if (tracked->menu.highlightTitle(tracked->typed)) windows.changed();
}

void MenuLayer::choose(std::size_t row) {
    const auto action = tracked->menu.items()[row].action;
    LaunchedApplication* owner = applications.find(tracked->owner);
    closeMenu();
    if (!action) return;
    if (owner != nullptr)
        owner->loop().mainAsync(action);
    else
        scheduler.after({}, action);
}

}  // namespace desk
