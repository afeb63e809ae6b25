#include "desk/Machine.h"

#include <algorithm>

#include "desk/ports/ApplicationPorts.h"

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
      launchServices(scheduler, disk, processes, windows, activation),
      input(*this),
      menus(*this),
      toolTips(*this),
      text(theText),
      finder(neighboursOfFinder()),
      scripting(finder, neighboursOfFinder()),
      applications(scheduler, processes, [this](LaunchedApplication& application) { return makePorts(application); }),
      systemSettings(disk, applications, activation, permissions),
      start(startOfStories) {
    subscriptions.push_back(processes.frontmostChanged.subscribe([this] { frontmostHasChanged(); }));
    subscriptions.push_back(activation.keyboardTaken.subscribe([this] { input.makeKey(0); }));
    subscriptions.push_back(windows.spaceChanged.subscribe([this] { spaceHasChanged(); }));
    launchServices.openSystemSettings = [this](const std::string& address) { systemSettings.open(address); };
    finder.launch();
    processes.activate(finder.pid());
}

FinderNeighbours Machine::neighboursOfFinder() {
    return {scheduler, disk, displays, windows, processes, permissions, faults, activation, launchServices, text};
}

std::unique_ptr<ApplicationBackend> Machine::makePorts(LaunchedApplication& application) {
    const PortNeighbours neighbours{clock,          disk,       displays,    windows,   processes, activation,
                                    launchServices, faults,     permissions, input,     menus,     finder,
                                    scripting,      appearance, defaults,    clipboard, text,      journal};
    return std::make_unique<ApplicationPorts>(neighbours, application);
}

Machine::~Machine() = default;

void Machine::frontmostHasChanged() {
    input.frontmostChanged();
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
