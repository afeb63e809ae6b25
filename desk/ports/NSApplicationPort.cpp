#include "desk/ports/NSApplicationPort.h"

#include "desk/processes/Activation.h"
#include "desk/processes/LaunchedApplication.h"
#include "desk/processes/Processes.h"
#include "desk/time/WallClock.h"

namespace desk {

void NSApplicationPort::setActivationPolicy(platform::NSApplicationActivationPolicy policy) {
    processes.setPolicy(application.processIdentifier(), policy);
}

void NSApplicationPort::activate(bool ignoringOtherApps) {
    if (application.isDead()) return;
    if (!ignoringOtherApps && processes.frontmost() != nullptr) return;
    activation.activate(application.processIdentifier(), false);
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
