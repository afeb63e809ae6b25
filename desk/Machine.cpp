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

// Apart from the numbers of Finder's windows and of panels.
constexpr std::int64_t firstOtherNumber = 1'000'001;
constexpr platform::CGRect frameOfOtherWindow{{220, 140}, {900, 600}};
constexpr platform::CGRect frameOfOpenedWindow{{300, 260}, {640, 400}};

constexpr double cascadeStep = 24;
constexpr std::int64_t cascadeLength = 8;

constexpr const char* dontAllow = "Don't Allow";
constexpr const char* allow = "OK";

// The last part of a bundle identifier stands in for a name.
std::string nameOf(const std::string& bundleIdentifier) {
    return bundleIdentifier.substr(bundleIdentifier.rfind('.') + 1);
}

}  // namespace

Machine::Machine(platform::TextSystem& theText)
    : scheduler(startOfStories),
      input(*this),
      menus(*this),
      toolTips(*this),
      finder(*this),
      scripting(*this),
      text(theText),
      start(startOfStories),
      nextOtherNumber(firstOtherNumber) {
    subscriptions.push_back(processes.frontmostChanged.subscribe([this] { frontmostHasChanged(); }));
    finder.launch();
    processes.activate(finder.pid());
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

void Machine::startOtherProcess(const std::string& bundleIdentifier) {
    Process process;
    process.bundleIdentifier = bundleIdentifier;
    process.name = nameOf(bundleIdentifier);
    process.bundlePath = "/Applications/" + process.name + ".app";
    const std::string name = process.name;
    addForeignWindow(processes.add(std::move(process)), name, frameOfOtherWindow,
                     platform::NSWindowOrderingMode::below);
}

void Machine::addForeignWindow(std::int32_t owner, const std::string& title, const platform::CGRect& frame,
                               platform::NSWindowOrderingMode place) {
    ServerWindow window;
    window.number = nextOtherNumber++;
    window.title = title;
    window.frame = frame;
    window.owner = owner;
    windows.add(window);
    windows.order(window.number, place, 0);
}

void Machine::openFiles(const std::vector<std::string>& paths, const std::string& applicationPath) {
    scheduler.after({}, [this, paths, applicationPath] {
        const bool isThere =
            std::all_of(paths.begin(), paths.end(), [&](const auto& path) { return disk.exists(path); });
        if (!isThere || disk.kind(applicationPath) != platform::FileKind::directory) return;
        opened.push_back({applicationPath, paths});
        const std::int32_t owner = processes.openApplication(applicationPath);
        for (const std::string& path : paths) {
            const double shift = cascadeStep * static_cast<double>(nextOtherNumber % cascadeLength);
            addForeignWindow(owner, std::string(platform::lastPathComponent(path)),
                             CGRectOffset(frameOfOpenedWindow, shift, -shift), platform::NSWindowOrderingMode::above);
        }
        activate(owner, true);
    });
}

void Machine::openDocuments(const std::vector<std::string>& paths) {
    if (const auto editor = knownEditor(disk)) openFiles(paths, *editor);
}

void Machine::openApplication(const std::string& applicationPath) {
    const auto& all = processes.running();
    const bool runs = std::any_of(all.begin(), all.end(),
                                  [&](const Process& process) { return process.bundlePath == applicationPath; });
    if (!runs && disk.kind(applicationPath) != platform::FileKind::directory) return;
    if (!runs && startProgram && startProgram(applicationPath)) return;
    const std::int32_t owner = processes.openApplication(applicationPath);
    if (application(owner) == nullptr && !hasWindow(owner))
        addForeignWindow(owner, processes.find(owner)->name, frameOfOtherWindow, platform::NSWindowOrderingMode::above);
    activate(owner, true);
}

bool Machine::hasWindow(std::int32_t processIdentifier) const {
    const auto all = windows.all();
    return std::any_of(all.begin(), all.end(), [&](const auto* window) { return window->owner == processIdentifier; });
}

bool Machine::activate(const std::string& bundleIdentifier) {
    const Process* process = processes.findByBundleIdentifier(bundleIdentifier);
    if (process == nullptr) return false;
    activate(process->processIdentifier, true);
    return true;
}

void Machine::activate(std::int32_t processIdentifier, bool allWindows) {
    if (processes.find(processIdentifier) == nullptr) return;
    const Process* before = processes.frontmost();
    const bool wasFrontmost = before != nullptr && before->processIdentifier == processIdentifier;
    processes.activate(processIdentifier);
    const std::int64_t main = mainWindow(processIdentifier);
    if (allWindows)
        windows.raiseAll(processIdentifier);
    else
        windows.raise(main);
    LaunchedApplication* launched = application(processIdentifier);
    platform::NSWindow* window = launched == nullptr ? nullptr : launched->window(main);
    if (!wasFrontmost && window != nullptr) window->makeKeyWindow();
}

// 0 when the process has no window on screen that can be main.
std::int64_t Machine::mainWindow(std::int32_t processIdentifier) const {
    if (finder.isRunning() && processIdentifier == finder.pid()) return finder.mainWindow();
    for (const ServerWindow* window : windows.onScreen())
        if (window->owner == processIdentifier && (window->window == nullptr || window->window->canBecomeMain()))
            return window->number;
    return 0;
}

void Machine::switchToSpace(int space) {
    if (space == windows.currentSpace()) return;
    menus.closeMenu();
    std::vector<std::int64_t> affected;
    const auto collect = [&] {
        for (const ServerWindow* window : windows.onScreen())
            if (window->window != nullptr) affected.push_back(window->number);
    };
    collect();
    windows.setCurrentSpace(space);
    collect();
    for (const std::int64_t number : affected) {
        const ServerWindow* window = windows.find(number);
        if (window == nullptr) continue;
        if (auto* content = window->window->contentView()) content->setOnScreen(windows.isOnScreen(*window));
    }
    notifyApplications(platform::WorkspaceNotification::activeSpaceDidChange);
}

void Machine::frontmostHasChanged() {
    input.frontmostChanged();
    if (processes.frontmost() != nullptr) notifyApplications(platform::WorkspaceNotification::didActivateApplication);
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
