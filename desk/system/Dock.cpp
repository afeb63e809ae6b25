#include "desk/system/Dock.h"

#include <algorithm>
#include <cmath>

#include "desk/Machine.h"
#include "desk/processes/KnownApplications.h"
#include "desk/system/DockView.h"
#include "desk/windows/WindowFrame.h"
#include "platform/FileURL.h"

namespace desk {

namespace {

using platform::CGPoint;
using platform::CGRect;
using platform::CGRectMake;

bool isInApplications(const Machine& machine, const std::string& path) {
    return machine.disk.kind(path) == platform::FileKind::directory;
}

std::string nameOfApplication(const std::string& path) {
    const std::string_view name = platform::lastPathComponent(path);
    return std::string(name.substr(0, name.rfind('.')));
}

void addRunning(const Machine& machine, std::vector<DockItem>& items) {
    for (const Process& process : machine.processes.running()) {
        if (process.policy != platform::NSApplicationActivationPolicy::regular) continue;
        const auto same = std::find_if(items.begin(), items.end(),
                                       [&](const DockItem& item) { return item.path == process.bundlePath; });
        if (same == items.end())
            items.push_back({process.name, process.bundlePath, true});
        else
            same->isRunning = true;
    }
}

// The Dock's strip on the screen that shows that point.
std::optional<CGRect> stripAt(const Machine& machine, const CGPoint& point) {
    for (const DisplayOptions& options : machine.displays.options()) {
        const CGRect& frame = options.frame;
        const CGRect strip = CGRectMake(frame.minX(), frame.minY(), frame.width(), options.dock);
        if (options.dock > 0 && platform::CGRectContainsPoint(strip, point)) return strip;
    }
    return std::nullopt;
}

std::string idAt(const Machine& machine, const CGPoint& point) {
    const auto strip = stripAt(machine, point);
    if (!strip) return {};
    const views::LaidOutView dock = shownDock(machine, strip->size);
    const std::string* id = dock.idAt(insideLaidOut(*strip, point));
    return id == nullptr ? std::string() : *id;
}

void openFinder(Machine& machine) {
    Finder& finder = machine.finder;
    finder.launch();
    machine.activation.activate(finder.pid(), true);
    const auto windows = finder.windows();
    const bool hasFolderWindow = std::any_of(windows.begin(), windows.end(), [](const FinderWindow* window) {
        return window->kind == FinderWindowKind::folder;
    });
    if (!hasFolderWindow) finder.open(machine.disk.home());
}

// Whoever has all of its windows on another space is followed there.
void followToItsSpace(Machine& machine, std::int32_t owner) {
    std::optional<int> elsewhere;
    for (const ServerWindow* window : machine.windows.all()) {
        if (window->owner != owner || !window->orderedIn || window->minimized) continue;
        if (machine.windows.isOnScreen(*window)) return;
        if (!elsewhere) elsewhere = window->space;
    }
    if (elsewhere) machine.windows.switchToSpace(*elsewhere);
}

}  // namespace

std::vector<DockItem> dockItems(const Machine& machine) {
    std::vector<DockItem> items{{"Finder", finderPath}};
    const std::optional<std::string> editor = knownEditor(machine.disk);
    for (const std::string& path : {std::string(browserPath), std::string(terminalPath), editor.value_or("")})
        if (isInApplications(machine, path)) items.push_back({nameOfApplication(path), path});
    addRunning(machine, items);
    for (const ServerWindow* window : machine.windows.all())
        if (window->minimized) items.push_back({window->title, {}, false, window->number});
    return items;
}

views::LaidOutView shownDock(const Machine& machine, platform::CGSize strip) {
    const Shades shades{machine.appearance.colorScheme.get()};
    return {dockView(dockItems(machine), strip.height, shades), strip, machine.text};
}

bool isOnDock(const Machine& machine, const CGPoint& point) {
    return !idAt(machine, point).empty();
}

std::optional<std::size_t> dockItemAt(const Machine& machine, const CGPoint& point) {
    const std::string id = idAt(machine, point);
    if (id.empty() || id == dockPlateId) return std::nullopt;
    return std::stoul(id);
}

void openDockItem(Machine& machine, const DockItem& item) {
    if (item.window != 0) {
        if (const ServerWindow* window = machine.windows.find(item.window))
            machine.processes.keeperOf(window->owner).restore(item.window);
    } else if (item.path == finderPath) {
        openFinder(machine);
    } else {
        machine.launchServices.openApplication(item.path);
    }
    const Process* frontmost = machine.processes.frontmost();
    if (frontmost != nullptr) followToItsSpace(machine, frontmost->processIdentifier);
}

}  // namespace desk
