#include "desk/input/Input.h"

#include <algorithm>
#include <utility>

#include "desk/Machine.h"
#include "desk/input/SpaceKeys.h"
#include "desk/input/WindowSurface.h"
#include "desk/menus/MenuBar.h"
#include "desk/system/AlertSurface.h"
#include "desk/system/DockSurface.h"

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
      prompt(std::make_unique<AlertSurface>(theMachine)),
      bar(std::make_unique<MenuBar>(theMachine.clock, theMachine.displays, theMachine.windows, theMachine.processes,
                                    theMachine.menus, theMachine.appearance, theMachine.text)),
      dock(std::make_unique<DockSurface>(theMachine)),
      windows(std::make_unique<WindowSurface>(theMachine, *this)) {}

Input::~Input() = default;

std::array<Surface*, 5> Input::frontToBack() const {
    return {prompt.get(), &machine.menus, bar.get(), dock.get(), windows.get()};
}

Surface& Input::surfaceAt(const CGPoint& point) const {
    const auto surfaces = frontToBack();
    return **std::find_if(surfaces.begin(), surfaces.end(), [&](const Surface* each) { return each->covers(point); });
}

bool Input::isCovered(const CGPoint& point) const {
    return &surfaceAt(point) != windows.get();
}

Surface* Input::route(const NSEvent& event) {
    for (Surface* surface : frontToBack()) {
        const auto owner = surface->take(event);
        if (!owner) continue;
        offerToOthers(event, *owner);
        return surface;
    }
    return nullptr;
}

void Input::follow(const std::optional<Press>& press, const NSEvent& event) {
    Surface* holder = press ? press->holder : nullptr;
    offerToOthers(event, holder == nullptr ? 0 : holder->take(event).value_or(0));
}

void Input::handOver(Surface& surface) {
    for (std::optional<Press>& press : presses)
        if (press) press->holder = &surface;
}

void Input::mouseDown(const CGPoint& point, MouseButton button, int clickCount, std::uint64_t modifiers) {
    location = point;
    machine.toolTips.dismiss();
    std::optional<Press>& press = pressOf(button);
    press = Press{clickCount, modifiers};
    Surface* taker = route(eventOf(press, eventsOf(button).down));
    // What it opened may have the press by now.
    if (press && press->holder == nullptr) press->holder = taker;
}

void Input::mouseDragged(const CGPoint& point) {
    location = point;
    for (Surface* surface : frontToBack()) surface->mouseIsAt(point);
    const MouseButton button = isPressed(MouseButton::left) || !isPressed() ? MouseButton::left : MouseButton::right;
    const std::optional<Press> press = pressOf(button);
    follow(press, eventOf(press, eventsOf(button).dragged));
}

void Input::mouseUp(const CGPoint& point, MouseButton button) {
    location = point;
    const std::optional<Press> press = std::exchange(pressOf(button), std::nullopt);
    follow(press, eventOf(press, eventsOf(button).up));
}

void Input::mouseMoved(const CGPoint& point) {
    location = point;
    machine.toolTips.mouseMoved();
    for (Surface* surface : frontToBack()) surface->mouseIsAt(point);
    route(eventHere(NSEventType::mouseMoved));
}

void Input::scrollWheel(const CGPoint& point, double /*deltaX*/, double deltaY) {
    location = point;
    machine.toolTips.dismiss();
    NSEvent event = eventHere(NSEventType::scrollWheel);
    event.scrollingDeltaY = deltaY;
    route(event);
}

CursorShape Input::cursorAt(const CGPoint& point) const {
    const auto& press = pressOf(MouseButton::left);
    return (press && press->holder != nullptr ? *press->holder : surfaceAt(point)).cursorAt(point);
}

NSEvent Input::eventHere(NSEventType type) const {
    NSEvent event;
    event.type = type;
    event.timestamp = machine.scheduler.now();
    event.locationInWindow = location;
    for (const std::optional<Press>& press : presses)
        if (press) event.modifierFlags |= press->modifiers;
    return event;
}

NSEvent Input::eventOf(const std::optional<Press>& press, NSEventType type) const {
    NSEvent event = eventHere(type);
    event.clickCount = press ? press->clickCount : 1;
    event.modifierFlags = press ? press->modifiers : 0;
    return event;
}

void Input::offerToOthers(const NSEvent& event, std::int32_t owner) {
    for (const auto& launched : machine.applications.all())
        if (launched->processIdentifier() != owner) launched->offerToGlobalMonitors(event);
}

void Input::keyDown(const KeyStroke& stroke) {
    machine.toolTips.dismiss();
    if (isSpaceKey(stroke))
        changeSpaceBy(machine, stroke);
    else
        sendKey(NSEventType::keyDown, stroke);
}

void Input::keyUp(const KeyStroke& stroke) {
    if (!isSpaceKey(stroke)) sendKey(NSEventType::keyUp, stroke);
}

void Input::sendKey(NSEventType type, const KeyStroke& stroke) {
    NSEvent event = eventHere(type);
    event.keyCode = stroke.keyCode;
    event.modifierFlags = stroke.modifiers;
    event.characters = stroke.characters;
    event.charactersIgnoringModifiers = stroke.charactersIgnoringModifiers;
    route(event);
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

void Input::processPressed(std::int32_t processIdentifier) {
    if (ownerOf(key) != processIdentifier) key = 0;
}

}  // namespace desk
