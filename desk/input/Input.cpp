#include "desk/input/Input.h"

#include <algorithm>
#include <utility>

#include "desk/input/SpaceKeys.h"
#include "desk/processes/Applications.h"
#include "desk/windows/Surface.h"

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

Input::Input(Scheduler& theScheduler, Applications& theApplications, WindowStack& theWindows, Pointer& thePointer,
             std::vector<Surface*> theSurfaces)
    : scheduler(theScheduler),
      applications(theApplications),
      windows(theWindows),
      pointer(thePointer),
      frontToBack(std::move(theSurfaces)) {}

Surface& Input::surfaceAt(const CGPoint& point) const {
    return **std::find_if(frontToBack.begin(), frontToBack.end(),
                          [&](const Surface* each) { return each->covers(point); });
}

Surface* Input::route(const NSEvent& event) {
    for (Surface* surface : frontToBack) {
        const auto owner = surface->take(event);
        if (!owner) continue;
        offerToOthers(event, *owner);
        return surface;
    }
    return nullptr;
}

void Input::follow(const Press& press, const NSEvent& event) {
    Surface* holder = press ? press->holder : nullptr;
    offerToOthers(event, holder == nullptr ? 0 : holder->take(event).value_or(0));
}

void Input::mouseDown(const CGPoint& point, MouseButton button, int clickCount, std::uint64_t modifiers) {
    pointer.location = point;
    Press& press = pointer.press(button);
    press = Pointer::Press{clickCount, modifiers};
    Surface* taker = route(eventOf(press, eventsOf(button).down));
    // What it opened may have the press by now.
    if (press && press->holder == nullptr) press->holder = taker;
}

void Input::moveTo(const CGPoint& point) {
    pointer.location = point;
    for (Surface* surface : frontToBack) surface->mouseIsAt(point);
}

void Input::mouseDragged(const CGPoint& point) {
    moveTo(point);
    const bool isRight = pointer.isPressed(MouseButton::right) && !pointer.isPressed(MouseButton::left);
    const MouseButton button = isRight ? MouseButton::right : MouseButton::left;
    const Press press = pointer.press(button);
    follow(press, eventOf(press, eventsOf(button).dragged));
}

void Input::mouseUp(const CGPoint& point, MouseButton button) {
    pointer.location = point;
    const Press press = std::exchange(pointer.press(button), std::nullopt);
    follow(press, eventOf(press, eventsOf(button).up));
}

void Input::mouseMoved(const CGPoint& point) {
    moveTo(point);
    route(eventHere(NSEventType::mouseMoved));
}

void Input::scrollWheel(const CGPoint& point, double /*deltaX*/, double deltaY) {
    pointer.location = point;
    NSEvent event = eventHere(NSEventType::scrollWheel);
    event.scrollingDeltaY = deltaY;
    route(event);
}

CursorShape Input::cursorAt(const CGPoint& point) const {
    const Press& press = pointer.press(MouseButton::left);
    return (press && press->holder != nullptr ? *press->holder : surfaceAt(point)).cursorAt(point);
}

NSEvent Input::eventHere(NSEventType type) const {
    NSEvent event;
    event.type = type;
    event.timestamp = scheduler.now();
    event.locationInWindow = pointer.location;
    event.modifierFlags = pointer.modifiers();
    return event;
}

NSEvent Input::eventOf(const Press& press, NSEventType type) const {
    NSEvent event = eventHere(type);
    event.clickCount = press ? press->clickCount : 1;
    event.modifierFlags = press ? press->modifiers : 0;
    return event;
}

void Input::offerToOthers(const NSEvent& event, std::int32_t owner) {
    for (const auto& launched : applications.all())
        if (launched->processIdentifier() != owner) launched->offerToGlobalMonitors(event);
}

void Input::keyDown(const KeyStroke& stroke) {
    if (isSpaceKey(stroke))
        changeSpaceBy(windows, stroke);
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

}  // namespace desk
