// One application's side of every platform interface, as the process that holds it needs it. The ports implement it; a process gets its own when it starts and destroys it when it is gone.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>

#include "platform/Platform.h"

namespace desk {

class LaunchedApplication;

// What is registered now, for tests of leaks.
struct Registrations {
    std::size_t globalMonitors, localMonitors, workspaceObservers, accessibilitySubscriptions, timers, windows;
};

class ApplicationBackend {
public:
    virtual ~ApplicationBackend() = default;
    virtual platform::Platform& platform() = 0;
    // The program is gone: what was shared within it goes as well.
    virtual void dropShared() = 0;
    virtual void answeredTermination(bool agreed) = 0;
    // The process has ended: its windows, menus and its entry among the processes go, the ports stay for whoever still holds on to them.
    virtual void processEnded() = 0;

    // Inside a turn of the application. Empty when a monitor has swallowed the event.
    virtual std::optional<platform::NSEvent> runLocalMonitors(const platform::NSEvent& event) = 0;
    virtual bool hasGlobalMonitorFor(platform::NSEventType type) const = 0;
    virtual void runGlobalMonitors(const platform::NSEvent& event) = 0;
    virtual void notify(platform::WorkspaceNotification notification) = 0;

    virtual Registrations registrations() const = 0;
};

using BackendFactory = std::function<std::unique_ptr<ApplicationBackend>(LaunchedApplication& application)>;

}  // namespace desk
