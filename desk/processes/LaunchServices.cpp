#include "desk/processes/LaunchServices.h"

#include <algorithm>
#include <utility>

#include "desk/disk/Disk.h"
#include "desk/processes/Activation.h"
#include "desk/processes/Bundle.h"
#include "desk/processes/KnownApplications.h"
#include "desk/processes/Processes.h"
#include "desk/time/Scheduler.h"
#include "desk/windows/WindowKeeper.h"
#include "desk/windows/WindowStack.h"
#include "platform/FileURL.h"

namespace desk {

namespace {

constexpr platform::CGRect frameOfOtherWindow{{220, 140}, {900, 600}};
constexpr platform::CGRect frameOfOpenedWindow{{300, 260}, {640, 400}};

constexpr double cascadeStep = 24;
constexpr std::int64_t cascadeLength = 8;

constexpr std::pair<std::string_view, const char*> knownApplications[] = {
    {"Terminal", "com.apple.Terminal"}, {"Visual Studio Code", "com.microsoft.VSCode"}};

std::optional<std::string> knownIdentifier(std::string_view name) {
    for (const auto& [known, identifier] : knownApplications)
        if (known == name) return identifier;
    return std::nullopt;
}

// The last part of a bundle identifier stands in for a name.
std::string nameOf(const std::string& bundleIdentifier) {
    return bundleIdentifier.substr(bundleIdentifier.rfind('.') + 1);
}

}  // namespace

void LaunchServices::startOtherProcess(const std::string& bundleIdentifier,
                                       const std::optional<std::string>& bundlePath) {
    Process process;
    process.bundleIdentifier = bundleIdentifier;
    process.name = nameOf(bundleIdentifier);
    process.bundlePath = bundlePath.value_or("/Applications/" + process.name + ".app");
    const std::string name = process.name;
    addWindow(addSketched(std::move(process)), name, frameOfOtherWindow, platform::NSWindowOrderingMode::below);
}

std::int32_t LaunchServices::addSketched(Process process) {
    process.end = [this](std::int32_t processIdentifier, Ending) {
        std::vector<std::int64_t> own;
        for (const ServerWindow* window : windows.all())
            if (window->owner == processIdentifier) own.push_back(window->number);
        for (const std::int64_t window : own) windows.remove(window);
        processes.remove(processIdentifier);
    };
    return processes.add(std::move(process));
}

std::int32_t LaunchServices::runningAt(const std::string& bundlePath) {
    for (const Process& process : processes.running())
        if (process.bundlePath == bundlePath) return process.processIdentifier;
    const Bundle bundle = bundleAt(disk, bundlePath);
    Process process;
    process.name = bundle.name();
    process.bundleIdentifier = bundle.identifier() ? bundle.identifier() : knownIdentifier(process.name);
    process.bundlePath = bundlePath;
    return addSketched(std::move(process));
}

void LaunchServices::addWindow(std::int32_t owner, const std::string& title, const platform::CGRect& frame,
                               platform::NSWindowOrderingMode place) {
    ServerWindow window;
    window.number = nextNumber++;
    window.title = title;
    window.frame = frame;
    window.owner = owner;
    windows.add(window);
    windows.order(window.number, place, 0);
}

void LaunchServices::openFiles(const std::vector<std::string>& paths, const std::string& applicationPath) {
    scheduler.after({}, [this, paths, applicationPath] { openNow(paths, applicationPath); });
}

void LaunchServices::openNow(const std::vector<std::string>& paths, const std::string& applicationPath) {
    const bool isThere = std::all_of(paths.begin(), paths.end(), [&](const auto& path) { return disk.exists(path); });
    if (!isThere || disk.kind(applicationPath) != platform::FileKind::directory) return;
    openedFiles.push_back({applicationPath, paths});
    if (paths.empty()) return openApplication(applicationPath);
    const std::int32_t owner = runningAt(applicationPath);
    for (const std::string& path : paths) {
        const double shift = cascadeStep * static_cast<double>(nextNumber % cascadeLength);
        addWindow(owner, std::string(platform::lastPathComponent(path)),
                  CGRectOffset(frameOfOpenedWindow, shift, -shift), platform::NSWindowOrderingMode::above);
    }
    activation.activate(owner, true);
}

void LaunchServices::openDocuments(const std::vector<std::string>& paths) {
    if (const auto editor = knownEditor(disk)) openFiles(paths, *editor);
}

void LaunchServices::openAddress(const std::string& url) {
    openedFiles.push_back({"", {url}});
    for (const auto& [beginning, open] : addressHandlers)
        if (url.starts_with(beginning)) scheduler.after({}, [open = open, url] { open(url); });
}

void LaunchServices::openApplication(const std::string& applicationPath) {
    if (!runs(applicationPath)) {
        const auto own = ownApplications.find(applicationPath);
        if (own != ownApplications.end())
            own->second();
        else if (disk.kind(applicationPath) != platform::FileKind::directory ||
                 (startProgram && startProgram(applicationPath)))
            return;
    }
    const std::int32_t owner = runningAt(applicationPath);
    const Process& process = *processes.find(owner);
    WindowKeeper* keeper = process.keeper;
    if (keeper == nullptr && !hasWindow(owner))
        addWindow(owner, process.name, frameOfOtherWindow, platform::NSWindowOrderingMode::above);
    activation.activate(owner, true);
    if (keeper != nullptr) keeper->reopen();
}

bool LaunchServices::runs(const std::string& bundlePath) const {
    const auto& all = processes.running();
    return std::any_of(all.begin(), all.end(),
                       [&](const Process& process) { return process.bundlePath == bundlePath; });
}

bool LaunchServices::hasWindow(std::int32_t processIdentifier) const {
    const auto all = windows.all();
    return std::any_of(all.begin(), all.end(), [&](const auto* window) { return window->owner == processIdentifier; });
}

}  // namespace desk
