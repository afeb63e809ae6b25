#include "desk/processes/LaunchedApplication.h"

#include <utility>

#include "desk/Machine.h"
#include "desk/ports/AccessibilityPort.h"
#include "desk/ports/AppleEventsPort.h"
#include "desk/ports/BundlePort.h"
#include "desk/ports/DefaultsPort.h"
#include "desk/ports/EventsPort.h"
#include "desk/ports/FilesPort.h"
#include "desk/ports/MenusPort.h"
#include "desk/ports/NSApplicationPort.h"
#include "desk/ports/PasteboardPort.h"
#include "desk/ports/UuidPort.h"
#include "desk/ports/WindowPort.h"
#include "desk/ports/WindowServerPort.h"
#include "desk/ports/WorkspacePort.h"
#include "desk/text/IcuCollation.h"
#include "desk/text/IcuTextBoundaries.h"

namespace desk {

std::optional<std::string> ApplicationImage::identifier() const {
    if (info.empty()) return bundleIdentifier;
    const platform::Value* entry = platform::find(info, "CFBundleIdentifier");
    const auto* text = entry == nullptr ? nullptr : entry->as<std::string>();
    if (text == nullptr) return std::nullopt;
    return *text;
}

std::string ApplicationImage::domain(const std::string& bundlePath) const {
    return identifier().value_or(bundlePath);
}

struct LaunchedApplication::Ports {
    Ports(Machine& machine, LaunchedApplication& self, const ApplicationImage& image)
        : workspace(machine.processes, machine.activation, machine.launchServices, self),
          windowServer(machine.windows, machine.displays, machine.finder, machine.faults),
          accessibility(machine.finder, machine.permissions, self),
          appleEvents(machine.scripting, self),
          events(machine.input),
          application(machine.processes, machine.activation, self),
          windows(machine, self),
          menus(machine.menus, machine.windows, self),
          files(machine.disk),
          defaults(machine.defaults[image.domain(self.bundlePath())], self),
          bundle(image.identifier(), self.bundlePath()),
          pasteboard(machine.clipboard),
          uuids(self.processIdentifier()) {}

    WorkspacePort workspace;
    WindowServerPort windowServer;
    AccessibilityPort accessibility;
    AppleEventsPort appleEvents;
    EventsPort events;
    NSApplicationPort application;
    WindowPort windows;
    MenusPort menus;
    IcuTextBoundaries textBoundaries;
    IcuCollation collation;
    FilesPort files;
    DefaultsPort defaults;
    BundlePort bundle;
    PasteboardPort pasteboard;
    UuidPort uuids;
};

LaunchedApplication::LaunchedApplication(Machine& theMachine, std::string theBundlePath, const ApplicationImage& image,
                                         std::int32_t theProcessIdentifier)
    : machine(theMachine),
      path(std::move(theBundlePath)),
      pid(theProcessIdentifier),
      runLoop(std::make_unique<ApplicationLoop>(
          theMachine.scheduler, [this](const platform::NSEvent& event) { sendEvent(inItsWindow(event)); })),
      ports(std::make_unique<Ports>(theMachine, *this, image)),
      slots(std::make_unique<platform::SharedSlots>()),
      platformOfIt(new platform::Platform{machine.clock,
                                          *runLoop,
                                          *runLoop,
                                          ports->workspace,
                                          machine.displays,
                                          machine.appearance,
                                          ports->windowServer,
                                          ports->accessibility,
                                          ports->appleEvents,
                                          ports->events,
                                          ports->application,
                                          ports->windows,
                                          ports->menus,
                                          machine.text,
                                          ports->textBoundaries,
                                          ports->collation,
                                          ports->files,
                                          ports->defaults,
                                          ports->bundle,
                                          ports->pasteboard,
                                          ports->uuids,
                                          *slots}) {}

// What is posted may hold on to the program, the program to what is shared, and both to the ports.
LaunchedApplication::~LaunchedApplication() {
    dead = true;
    runLoop->shutDown();
    runningProgram.reset();
    slots.reset();
}

void LaunchedApplication::start(const ProgramFactory& factory) {
    ++callDepth;
    runningProgram = factory(*platformOfIt);
    --callDepth;
    runLoop->mainAsync([this] {
        runningProgram->delegate().applicationWillFinishLaunching();
        if (!dead) runningProgram->delegate().applicationDidFinishLaunching();
    });
}

void LaunchedApplication::terminate() {
    if (dead) return;
    const bool agreed = !runningProgram || runningProgram->delegate().applicationShouldTerminate() ==
                                               platform::NSApplicationTerminateReply::terminateNow;
    if (!agreed) return;
    dead = true;
    runLoop->shutDown();
    for (const auto& [number, window] : ownWindows) {
        machine.windows.remove(number);
        machine.input.windowOrderedOut(number);
    }
    machine.menus.applicationEnded(pid);
    machine.processes.remove(pid);
}

platform::NSEvent LaunchedApplication::inItsWindow(platform::NSEvent event) {
    if (event.window == nullptr) return event;
    const platform::CGPoint origin = event.window->frame().origin;
    event.locationInWindow = {event.locationInWindow.x - origin.x, event.locationInWindow.y - origin.y};
    return event;
}

void LaunchedApplication::sendEvent(const platform::NSEvent& event) {
    const auto keepAlive = event.window == nullptr ? nullptr : event.window->weak_from_this().lock();
    const auto answered = ports->events.runLocalMonitors(event);
    if (!dead && answered && answered->window != nullptr) answered->window->sendEvent(*answered);
}

void LaunchedApplication::offerToGlobalMonitors(const platform::NSEvent& event) {
    if (dead || !ports->events.hasGlobalMonitorFor(event.type)) return;
    runLoop->mainAsync([this, event] { ports->events.runGlobalMonitors(event); });
}

void LaunchedApplication::postWorkspaceNotification(platform::WorkspaceNotification notification) {
    if (!dead) runLoop->mainAsync([this, notification] { ports->workspace.notify(notification); });
}

platform::NSWindow* LaunchedApplication::window(std::int64_t number) {
    const auto entry = ownWindows.find(number);
    return entry == ownWindows.end() ? nullptr : entry->second;
}

LaunchedApplication::Registrations LaunchedApplication::registrations() const {
    return {ports->events.globalMonitorCount(),
            ports->events.localMonitorCount(),
            ports->workspace.observerCount(),
            ports->accessibility.subscriptionCount(),
            runLoop->timerCount(),
            ownWindows.size()};
}

}  // namespace desk
