#include "desk/Machine.h"

#include <algorithm>

#include "desk/ports/ApplicationPorts.h"

namespace desk {

namespace {

// 2024-06-03 09:00:00 UTC.
constexpr platform::Date startOfStories{std::chrono::seconds(1'717'405'200)};

constexpr const char* dontAllow = "Don't Allow";
constexpr const char* allow = "OK";

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
      start(startOfStories) {
    subscriptions.push_back(processes.frontmostChanged.subscribe([this] { frontmostHasChanged(); }));
    subscriptions.push_back(activation.keyboardTaken.subscribe([this] { input.makeKey(0); }));
    subscriptions.push_back(windows.spaceChanged.subscribe([this] { spaceHasChanged(); }));
    finder.launch();
    processes.activate(finder.pid());
}

FinderNeighbours Machine::neighboursOfFinder() {
    return {scheduler, disk, displays, windows, processes, permissions, faults, activation, launchServices, text};
}

std::unique_ptr<ApplicationBackend> Machine::makePorts(LaunchedApplication& application) {
    const PortNeighbours neighbours{clock,          disk,       displays,    windows,   processes, activation,
                                    launchServices, faults,     permissions, input,     menus,     finder,
                                    scripting,      appearance, defaults,    clipboard, text};
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

double Machine::secondsSinceStart() const {
    return platform::inSeconds(scheduler.now() - start);
}

std::optional<SystemAlert> Machine::alert() const {
    if (!permissions.automationPromptIsUp) return std::nullopt;
    const auto sender = std::find_if(applications.all().begin(), applications.all().end(),
                                     [](const auto& candidate) { return !candidate->isDead(); });
    const Process* process =
        sender == applications.all().end() ? nullptr : processes.find((*sender)->processIdentifier());
    const std::string name = process == nullptr ? "An application" : "“" + process->name + "”";
    return SystemAlert{name +
                           " wants access to control “Finder”. Allowing control will provide access to documents and "
                           "data in “Finder”, and to perform actions within that app.",
                       "",
                       {dontAllow, allow}};
}

bool Machine::pressAlertButton(const std::string& label) {
    if (!permissions.automationPromptIsUp || (label != dontAllow && label != allow)) return false;
    permissions.automationPromptIsUp = false;
    permissions.setAutomation(label == allow ? AutomationPermission::allowed : AutomationPermission::denied);
    return true;
}

}  // namespace desk
