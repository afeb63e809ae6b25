// The event monitors of one application and the mouse position. It keeps the monitors; the application offers it the events.
#pragma once

#include <functional>
#include <optional>

#include "platform/Events.h"
#include "platform/Registry.h"

namespace desk {

class Pointer;

class EventsPort final : public platform::Events {
public:
    explicit EventsPort(const Pointer& thePointer) : pointer(thePointer) {}

    platform::Token addGlobalMonitorForEventsMatchingMask(
        platform::NSEventMask mask, std::function<void(const platform::NSEvent&)> handler) override;
    platform::Token addLocalMonitorForEventsMatchingMask(
        platform::NSEventMask mask,
        std::function<std::optional<platform::NSEvent>(const platform::NSEvent&)> handler) override;
    platform::CGPoint mouseLocation() override;

    bool hasGlobalMonitorFor(platform::NSEventType type) const;
    void runGlobalMonitors(const platform::NSEvent& event) const;
    // Each monitor gets what the one before it answered; empty when one has swallowed it.
    std::optional<platform::NSEvent> runLocalMonitors(const platform::NSEvent& event) const;

    std::size_t globalMonitorCount() const { return globalMonitors.size(); }
    std::size_t localMonitorCount() const { return localMonitors.size(); }

private:
    struct GlobalMonitor {
        platform::NSEventMask mask;
        std::function<void(const platform::NSEvent&)> handler;
    };
    struct LocalMonitor {
        platform::NSEventMask mask;
        std::function<std::optional<platform::NSEvent>(const platform::NSEvent&)> handler;
    };

    const Pointer& pointer;
    platform::Registry<GlobalMonitor> globalMonitors;
    platform::Registry<LocalMonitor> localMonitors;
};

}  // namespace desk
