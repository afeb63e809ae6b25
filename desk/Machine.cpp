#include "desk/Machine.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "desk/processes/KnownApplications.h"
#include "platform/FileURL.h"

namespace desk {

namespace {

// 2024-06-03 09:00:00 UTC.
constexpr platform::Date startOfStories{std::chrono::seconds(1'717'405'200)};

constexpr const char* dontAllow = "Don't Allow";
constexpr const char* allow = "OK";

}  // namespace

Machine::Machine(platform::TextSystem& theText)
    : scheduler(startOfStories),
      activation(processes, windows),
      launchServices(scheduler, disk, processes, windows, activation),
      input(*this),
      menus(*this),
      toolTips(*this),
      finder(neighboursOfFinder()),
      scripting(finder, neighboursOfFinder()),
      text(theText),
      start(startOfStories) {
    subscriptions.push_back(processes.frontmostChanged.subscribe([this] { frontmostHasChanged(); }));
    subscriptions.push_back(activation.keyboardTaken.subscribe([this] { input.makeKey(0); }));
    subscriptions.push_back(windows.spaceChanged.subscribe([this] { spaceHasChanged(); }));
    finder.launch();
    processes.activate(finder.pid());
}

FinderNeighbours Machine::neighboursOfFinder() {
    return {scheduler, disk, displays, windows, processes, permissions, faults, activation, launchServices};
}

Machine::~Machine() {
    while (!running.empty()) running.pop_back();
}

LaunchedApplication& Machine::launch(const std::string& bundlePath, const ApplicationImage& image,
                                     const ProgramFactory& factory) {
    Process process;
    process.bundleIdentifier = image.identifier();
    process.bundlePath = bundlePath;
    process.name = image.name;
    process.hasOwnProgram = true;
    const std::int32_t pid = processes.add(std::move(process));
    running.push_back(std::make_unique<LaunchedApplication>(*this, bundlePath, image, pid));
    LaunchedApplication& launched = *running.back();
    launched.start(factory);
    return launched;
}

LaunchedApplication* Machine::application(std::int32_t processIdentifier) const {
    const auto found = std::find_if(running.begin(), running.end(), [&](const auto& candidate) {
        return candidate->processIdentifier() == processIdentifier && !candidate->isDead();
    });
    return found == running.end() ? nullptr : found->get();
}

void Machine::frontmostHasChanged() {
    input.frontmostChanged();
    if (processes.frontmost() != nullptr) notifyApplications(platform::WorkspaceNotification::didActivateApplication);
}

void Machine::spaceHasChanged() {
    menus.closeMenu();
    notifyApplications(platform::WorkspaceNotification::activeSpaceDidChange);
}

void Machine::notifyApplications(platform::WorkspaceNotification notification) {
    for (const auto& launched : running) launched->postWorkspaceNotification(notification);
}

void Machine::useRealTime(RealTime& realTime) {
    scheduler.useRealTime(realTime);
    start = scheduler.now();
}

void Machine::settle() {
    scheduler.settle();
    reap();
}

void Machine::advance(platform::Duration duration) {
    scheduler.advance(duration);
    reap();
}

double Machine::secondsSinceStart() const {
    return platform::inSeconds(scheduler.now() - start);
}

std::optional<SystemAlert> Machine::alert() const {
    if (!permissions.automationPromptIsUp) return std::nullopt;
    const auto sender =
        std::find_if(running.begin(), running.end(), [](const auto& candidate) { return !candidate->isDead(); });
    const Process* process = sender == running.end() ? nullptr : processes.find((*sender)->processIdentifier());
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

void Machine::reap() {
    // Out of the list first: what an application does while it goes may look at the others.
    const auto isAlive = [](const auto& launched) { return !launched->isDead() || launched->isOnStack(); };
    const auto firstGone = std::stable_partition(running.begin(), running.end(), isAlive);
    std::vector<std::unique_ptr<LaunchedApplication>> gone(std::make_move_iterator(firstGone),
                                                           std::make_move_iterator(running.end()));
    running.erase(firstGone, running.end());
}

}  // namespace desk
