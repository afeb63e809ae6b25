#include "desk/ports/NSApplicationPort.h"

#include "desk/ports/ApplicationIcon.h"
#include "desk/processes/Activation.h"
#include "desk/processes/Journal.h"
#include "desk/processes/LaunchedApplication.h"
#include "desk/processes/Processes.h"
#include "desk/time/WallClock.h"

namespace desk {

void NSApplicationPort::setActivationPolicy(platform::NSApplicationActivationPolicy policy) {
    constexpr const char* names[] = {"regular", "accessory", "prohibited"};
    if (!application.isDead()) note(std::string("policy ") + names[static_cast<int>(policy)]);
    processes.setPolicy(application.processIdentifier(), policy);
}

void NSApplicationPort::activate(bool ignoringOtherApps) {
    if (application.isDead()) return;
    const desk::Bundle& bundle = application.bundle();
    note("activate " + bundle.identifier().value_or(bundle.name()) + (ignoringOtherApps ? " ignoring-others" : ""));
    if (!ignoringOtherApps && processes.frontmost() != nullptr) return;
    activation.activate(application.processIdentifier(), false);
}

void NSApplicationPort::note(std::string what) {
    journal.note(application.processIdentifier(), std::move(what));
}

platform::NSImage NSApplicationPort::applicationIconImage() {
    return applicationIcon(application.bundle(), images);
}

void NSApplicationPort::terminate() {
    application.terminate();
}

std::optional<platform::NSEvent> NSApplicationPort::nextEventMatchingMask(platform::NSEventMask mask,
                                                                          platform::Date untilDate,
                                                                          platform::NSRunLoopMode /*mode*/,
                                                                          bool dequeue) {
    auto event = application.loop().nextEvent(mask, clock.due(untilDate), dequeue);
    if (event) event = LaunchedApplication::inItsWindow(*event);
    return event;
}

}  // namespace desk
