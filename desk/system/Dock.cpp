#include "desk/system/Dock.h"

#include <algorithm>
#include <utility>

#include "desk/disk/Disk.h"
#include "desk/processes/KnownApplications.h"
#include "desk/processes/LaunchServices.h"
#include "desk/processes/Processes.h"
#include "desk/system/DockView.h"
#include "desk/windows/Displays.h"
#include "desk/windows/WindowFrame.h"
#include "desk/windows/WindowKeeper.h"
#include "desk/windows/WindowStack.h"
#include "platform/FileURL.h"

namespace desk {

namespace {

using platform::CGPoint;
using platform::CGRect;

std::string nameOfApplication(const std::string& path) {
    const std::string_view name = platform::lastPathComponent(path);
    return std::string(name.substr(0, name.rfind('.')));
}

}  // namespace

std::vector<DockItem> Dock::items() const {
    std::vector<DockItem> items{{"Finder", finderPath}};
    for (const std::string& path :
         {std::string(browserPath), std::string(terminalPath), knownEditor(disk).value_or("")})
        if (disk.kind(path) == platform::FileKind::directory) items.push_back({nameOfApplication(path), path});
    addRunning(items);
    for (const ServerWindow* window : windows.all())
        if (window->minimized) items.push_back({window->title, {}, false, window->number});
    return items;
}

void Dock::addRunning(std::vector<DockItem>& items) const {
    for (const Process& process : processes.running()) {
        if (process.policy != platform::NSApplicationActivationPolicy::regular) continue;
        const auto same = std::find_if(items.begin(), items.end(),
                                       [&](const DockItem& item) { return item.path == process.bundlePath; });
        if (same == items.end())
            items.push_back({process.name, process.bundlePath, true});
        else
            same->isRunning = true;
    }
}

views::LaidOutView Dock::shown(platform::CGSize strip) const {
    return {dockView(items(), strip.height, {appearance.colorScheme.get()}), strip, text};
}

std::string Dock::idAt(const CGPoint& point) const {
    for (const DisplayOptions& options : displays.options()) {
        const CGRect strip = options.dockStrip();
        if (options.dock <= 0 || !platform::CGRectContainsPoint(strip, point)) continue;
        const views::LaidOutView dock = shown(strip.size);
        const std::string* id = dock.idAt(insideLaidOut(strip, point));
        return id == nullptr ? std::string() : *id;
    }
    return {};
}

std::optional<std::size_t> Dock::itemAt(const CGPoint& point) const {
    const std::string id = idAt(point);
    if (id.empty() || id == dockPlateId) return std::nullopt;
    return std::stoul(id);
}

bool Dock::covers(const CGPoint& point) const {
    return !windows.isFullScreenSpace() && !idAt(point).empty();
}

std::optional<std::int32_t> Dock::take(const platform::NSEvent& event) {
    using platform::NSEventType;
    const CGPoint& point = event.locationInWindow;
    if (event.type == NSEventType::leftMouseUp) {
        const auto item = std::exchange(pressed, std::nullopt);
        if (item && item == itemAt(point)) open(items()[*item]);
        return 0;
    }
    if (platform::isKeyEvent(event.type) || !covers(point)) return std::nullopt;
    if (event.type == NSEventType::leftMouseDown) pressed = itemAt(point);
    return 0;
}

void Dock::open(const DockItem& item) {
    if (item.window == 0)
        launchServices.openApplication(item.path);
    else if (const ServerWindow* window = windows.find(item.window))
        processes.keeperOf(window->owner).restore(item.window);
    const Process* frontmost = processes.frontmost();
    if (frontmost != nullptr) followToItsSpace(frontmost->processIdentifier);
}

void Dock::followToItsSpace(std::int32_t owner) {
    std::optional<int> elsewhere;
    for (const ServerWindow* window : windows.all()) {
        if (window->owner != owner || !window->isIn()) continue;
        if (windows.isOnScreen(*window)) return;
        if (!elsewhere) elsewhere = window->space;
    }
    if (elsewhere) windows.switchToSpace(*elsewhere);
}

}  // namespace desk
