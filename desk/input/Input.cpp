#include "desk/input/Input.h"

#include <algorithm>
#include <utility>

#include "desk/Machine.h"
#include "desk/input/SpaceKeys.h"
#include "desk/menus/MenuBar.h"
#include "desk/system/Dock.h"

namespace desk {

namespace {

using platform::CGPoint;
using platform::NSEvent;
using platform::NSEventType;

struct ButtonEvents {
    NSEventType down;
    NSEventType dragged;
    NSEventType up;
};

ButtonEvents eventsOf(MouseButton button) {
    if (button == MouseButton::right)
        return {NSEventType::rightMouseDown, NSEventType::rightMouseDragged, NSEventType::rightMouseUp};
    return {NSEventType::leftMouseDown, NSEventType::leftMouseDragged, NSEventType::leftMouseUp};
}

}  // namespace

Input::Input(Machine& theMachine)
    : machine(theMachine),
      bar(std::make_unique<MenuBar>(theMachine)),
      frames(theMachine.windows, theMachine.processes) {}

Input::~Input() = default;

void Input::mouseDown(const CGPoint& point, MouseButton button, int clickCount, std::uint64_t modifiers) {
    location = point;
    modifiersHeld = modifiers;
    machine.toolTips.dismiss();
    const bool isAlerts = isOnAlert(point);
    press = Press{{}, button, clickCount, isAlerts};
    if (!isAlerts && menusTake(eventsOf(button).down, clickCount)) return;
    const Target target = targetAt(point);
    pressAlertButton(point);
    if (target.owner != 0 && target.owner != ownerOf(key)) key = 0;
    press = Press{target, button, clickCount, isAlerts};
    const NSEvent event = eventHere(eventsOf(button).down, clickCount);
    const bool isLeft = button == MouseButton::left;
    if (target.owner != 0)
        machine.processes.keeperOf(target.owner).bringForward(target.window);
    else if (isLeft && !isAlerts)
        pressLeftOnFurniture(point);
    deliver(event, target, isLeft && frames.press(target.window, event));
}

void Input::pressLeftOnFurniture(const CGPoint& point) {
    bar->mouseDown(point);
    pressedDockItem = dockItemAt(machine, point);
}

void Input::releaseLeftOnFurniture(const CGPoint& point) {
    const auto dockItem = std::exchange(pressedDockItem, std::nullopt);
    if (dockItem && dockItem == dockItemAt(machine, point)) openDockItem(machine, dockItems(machine)[*dockItem]);
}

void Input::mouseDragged(const CGPoint& point) {
    location = point;
    bar->mouseMoved(point);
    const Press held = press.value_or(Press{{}, MouseButton::left, 0, false});
    if (!held.isAlerts && menusTake(eventsOf(held.button).dragged, held.clickCount)) return;
    const bool isForFrame = held.button == MouseButton::left && frames.drag(point);
    deliver(eventHere(eventsOf(held.button).dragged, held.clickCount), held.target, isForFrame);
}

void Input::mouseUp(const CGPoint& point, MouseButton button) {
    location = point;
    const Press held = std::exchange(press, std::nullopt).value_or(Press{{}, button, 1, false});
    if (held.isAlerts || !menusTake(eventsOf(button).up, held.clickCount)) {
        const bool isLeft = button == MouseButton::left;
        if (isLeft) releaseLeftOnFurniture(point);
        deliver(eventHere(eventsOf(button).up, held.clickCount), held.target, isLeft && frames.release(point));
    }
    modifiersHeld = 0;
}

void Input::mouseMoved(const CGPoint& point) {
    location = point;
    machine.toolTips.mouseMoved();
    bar->mouseMoved(point);
    // Nobody's: only the copies are of interest.
    if (isOnAlert(point) || !menusTake(NSEventType::mouseMoved))
        offerToOthers(eventHere(NSEventType::mouseMoved, 0), targetAt(point).owner);
}

void Input::scrollWheel(const CGPoint& point, double /*deltaX*/, double deltaY) {
    location = point;
    machine.toolTips.dismiss();
    NSEvent event = eventHere(NSEventType::scrollWheel, 0);
    event.scrollingDeltaY = deltaY;
    if (menusTake(event)) return;
    deliver(event, targetAt(point));
}

CursorShape Input::cursorAt(const CGPoint& point) const {
    if (isOnAlert(point) || machine.menus.covers(point)) return CursorShape::arrow;
    const Target target = press && !press->isAlerts ? press->target : targetAt(point);
    return frames.cursorAt(target.window, point);
}

void Input::pressAlertButton(const CGPoint& point) {
    const auto alert = shownAlert();
    const auto button = alert ? alert->buttonAt(point) : std::nullopt;
    if (button) machine.pressAlertButton(*button);
}

std::optional<ShownAlert> Input::shownAlert() const {
    const auto alert = machine.alert();
    const auto& screens = machine.displays.screens();
    if (!alert || screens.empty()) return std::nullopt;
    return ShownAlert(*alert, screens.front(), {machine.appearance.colorScheme.get()}, machine.text);
}

bool Input::isOnAlert(const CGPoint& point) const {
    const auto alert = shownAlert();
    return alert && platform::CGRectContainsPoint(alert->frame(), point);
}

Input::Target Input::targetAt(const CGPoint& point) const {
    if (isMenuBarOrDock(point) || isOnAlert(point)) return {};
    if (const ServerWindow* window = machine.windows.windowAt(point)) return {window->number, window->owner};
    return {0, machine.finder.isRunning() ? machine.finder.pid() : 0};
}

bool Input::isMenuBarOrDock(const CGPoint& point) const {
    if (machine.windows.isFullScreenSpace()) return false;
    if (isOnDock(machine, point)) return true;
    const auto& screens = machine.displays.screens();
    return std::any_of(screens.begin(), screens.end(), [&](const platform::NSScreen& screen) {
        return platform::CGRectContainsPoint(screen.frame, point) && point.y >= screen.visibleFrame.maxY();
    });
}

NSEvent Input::eventHere(NSEventType type, int clickCount) const {
    NSEvent event;
    event.type = type;
    event.clickCount = clickCount;
    event.timestamp = machine.scheduler.now();
    event.locationInWindow = location;
    event.modifierFlags = modifiersHeld;
    return event;
}

void Input::deliver(const NSEvent& event, const Target& target, bool isForFrame) {
    if (target.owner != 0 && !isForFrame) machine.processes.keeperOf(target.owner).handle(target.window, event);
    offerToOthers(event, target.owner);
}

void Input::offerToOthers(const NSEvent& event, std::int32_t owner) {
    for (const auto& launched : machine.applications.all())
        if (launched->processIdentifier() != owner) launched->offerToGlobalMonitors(event);
}

bool Input::menusTake(NSEventType type, int clickCount) {
    return menusTake(eventHere(type, clickCount));
}

// What is over a menu or a popover is its application's, though no window and no monitor of that application sees it.
bool Input::menusTake(const NSEvent& event) {
    const auto owner = machine.menus.take(event);
    if (owner) offerToOthers(event, *owner);
    return owner.has_value();
}

void Input::keyDown(const KeyStroke& stroke) {
    machine.toolTips.dismiss();
    if (isSpaceKey(stroke))
        changeSpaceBy(machine, stroke);
    else
        deliverKey(NSEventType::keyDown, stroke);
}

void Input::keyUp(const KeyStroke& stroke) {
    if (!isSpaceKey(stroke)) deliverKey(NSEventType::keyUp, stroke);
}

void Input::deliverKey(NSEventType type, const KeyStroke& stroke) {
    NSEvent event = eventHere(type, 0);
    event.keyCode = stroke.keyCode;
    event.modifierFlags = stroke.modifiers;
    event.characters = stroke.characters;
    event.charactersIgnoringModifiers = stroke.charactersIgnoringModifiers;
    if (menusTake(event)) return;
    const Process* frontmost = machine.processes.frontmost();
    const Target inFront{0, frontmost == nullptr ? 0 : frontmost->processIdentifier};
    deliver(event, key != 0 ? Target{key, ownerOf(key)} : inFront);
}

std::int32_t Input::ownerOf(std::int64_t window) const {
    const ServerWindow* entry = machine.windows.find(window);
    return entry == nullptr ? 0 : entry->owner;
}

void Input::makeKey(std::int64_t window) {
    if (std::exchange(key, window) != window) machine.windows.changed();
}

void Input::windowOrderedOut(std::int64_t window) {
    if (key != window) return;
    key = 0;
    const Process* frontmost = machine.processes.frontmost();
    if (frontmost == nullptr || frontmost->processIdentifier != ownerOf(window)) return;
    const ServerWindow* next = machine.windows.find(machine.activation.mainWindow(frontmost->processIdentifier));
    if (next != nullptr && next->window != nullptr) next->window->makeKeyWindow();
}

void Input::frontmostChanged() {
    const Process* frontmost = machine.processes.frontmost();
    const bool isOwn = frontmost != nullptr && frontmost->processIdentifier == ownerOf(key);
    if (!isOwn) key = 0;
}

}  // namespace desk
