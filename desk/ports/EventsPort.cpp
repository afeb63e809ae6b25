#include "desk/ports/EventsPort.h"

#include <utility>

#include "desk/windows/Pointer.h"

namespace desk {

namespace {

bool matches(platform::NSEventMask mask, platform::NSEventType type) {
    return (mask & platform::maskOf(type)) != 0;
}

}  // namespace

platform::Token EventsPort::addGlobalMonitorForEventsMatchingMask(
    platform::NSEventMask mask, std::function<void(const platform::NSEvent&)> handler) {
    return globalMonitors.add({mask, std::move(handler)});
}

platform::Token EventsPort::addLocalMonitorForEventsMatchingMask(
    platform::NSEventMask mask, std::function<std::optional<platform::NSEvent>(const platform::NSEvent&)> handler) {
    return localMonitors.add({mask, std::move(handler)});
}

platform::CGPoint EventsPort::mouseLocation() {
    return pointer.location;
}

bool EventsPort::hasGlobalMonitorFor(platform::NSEventType type) const {
    bool found = false;
    globalMonitors.visit([&](const GlobalMonitor& monitor) { found = found || matches(monitor.mask, type); });
    return found;
}

void EventsPort::runGlobalMonitors(const platform::NSEvent& event) const {
    globalMonitors.visit([&](const GlobalMonitor& monitor) {
        if (matches(monitor.mask, event.type)) monitor.handler(event);
    });
}

std::optional<platform::NSEvent> EventsPort::runLocalMonitors(const platform::NSEvent& event) const {
    std::optional<platform::NSEvent> current = event;
    localMonitors.visit([&](const LocalMonitor& monitor) {
        if (current && matches(monitor.mask, current->type)) current = monitor.handler(*current);
    });
    return current;
}

}  // namespace desk
