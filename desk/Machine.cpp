#include "desk/Machine.h"

#include <algorithm>

#include "desk/ports/ApplicationPorts.h"
#include "desk/processes/KnownApplications.h"

namespace desk {

namespace {

// 2024-06-03 09:00:00 UTC.
constexpr platform::Date startOfStories{std::chrono::seconds(1'717'405'200)};

}  // namespace

Machine::Machine(platform::TextSystem& theText)
    : scheduler(startOfStories),
      sketchedWindows(windows, displays, processes, activation),
      processes(sketchedWindows),
      activation(processes, windows),
      keyboard(windows, processes, activation),
      launchServices(scheduler, disk, processes, windows, activation),
      text(theText),
      finder(neighboursOfFinder()),
      scripting(finder, neighboursOfFinder()),
      systemSettings(disk, applications, launchServices, permissions, loginItem),
      alertSurface(alerts, displays, appearance, text),
      toolTips(scheduler, windows, pointer, menus, {&alertSurface, &menus, &menuBar, &dock}, text),
      menus(scheduler, displays, windows, applications, pointer, keyboard, text),
      menuBar(clock, displays, windows, processes, menus, appearance, text),
      dock(disk, displays, windows, processes, launchServices, appearance, text),
      windowSurface(windows, processes, pointer, keyboard),
      input(scheduler, applications, windows, pointer,
            {&alertSurface, &toolTips, &menus, &menuBar, &dock, &windowSurface}),
      applications(scheduler, processes, [this](LaunchedApplication& application) { return makePorts(application); }),
      start(startOfStories) {
    subscriptions.push_back(processes.frontmostChanged.subscribe([this] { frontmostHasChanged(); }));
    subscriptions.push_back(alerts.changed.subscribe([this] { windows.changed(); }));
    launchServices.addOwnApplication(finderPath, [this] { finder.launch(); });
    subscriptions.push_back(windows.spaceChanged.subscribe([this] { spaceHasChanged(); }));
    finder.launch();
    processes.activate(finder.pid());
}

FinderNeighbours Machine::neighboursOfFinder() {
    return {scheduler, disk, displays, windows, processes, permissions, faults, activation, launchServices, text};
}

std::unique_ptr<ApplicationBackend> Machine::makePorts(LaunchedApplication& application) {
    const PortNeighbours neighbours{clock,
                                    disk,
                                    displays,
                                    windows,
                                    processes,
                                    activation,
                                    launchServices,
                                    faults,
                                    permissions,
                                    pointer,
                                    keyboard,
                                    alerts,
                                    menus,
                                    menuBar,
                                    finder,
                                    scripting,
                                    appearance,
                                    defaults,
                                    clipboard,
                                    calendar,
                                    loginItem,
                                    analyticsEvents,
                                    text,
                                    journal,
                                    {scheduler, disk, launchServices, alerts, journal, updateFeed}};
    return std::make_unique<ApplicationPorts>(neighbours, application);
}

Machine::~Machine() = default;

void Machine::frontmostHasChanged() {
    if (processes.frontmost() != nullptr) applications.notify(platform::WorkspaceNotification::didActivateApplication);
}

void Machine::spaceHasChanged() {
    menus.closeMenu();
    applications.notify(platform::WorkspaceNotification::activeSpaceDidChange);
}

void Machine::useRealTime(RealTime& realTime) {
    scheduler.useRealTime(realTime);
    start = scheduler.now();
}

void Machine::settle() {
    scheduler.settle();
    applications.reap();
}

void Machine::advance(platform::Duration duration) {
    scheduler.advance(duration);
    applications.reap();
}

}  // namespace desk
