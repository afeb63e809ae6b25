// What stands before all windows: menu bar, Dock, alert.
#include <QPainter>
#include <algorithm>

#include "desk/AlertLayout.h"
#include "desk/Machine.h"
#include "desk/display/Compositor.h"
#include "desk/display/DeskDrawings.h"
#include "desk/display/FinderWords.h"
#include "desk/display/Scene.h"

namespace desk {

namespace {

using platform::CGRect;
using platform::CGRectMake;

MenuBarContent menuBarOf(const Machine& machine) {
    const Process* frontmost = machine.processes.frontmost();
    MenuBarContent content;
    content.clock = clockText(machine.scheduler.now());
    if (frontmost == nullptr) return content;
    content.application = frontmost->name;
    content.menus = {"File", "Edit", "View", "Window", "Help"};
    if (frontmost->processIdentifier == machine.finder.pid()) content.menus.insert(content.menus.begin() + 3, "Go");
    return content;
}

// Finder, Terminal and the editor always stand in it; what else runs with windows of its own comes after them.
std::vector<DockItem> dockOf(const Machine& machine) {
    std::vector<DockItem> items{{"Finder", machine.finder.isRunning()}, {"Terminal", false}, {"Editor", false}};
    for (const Process& process : machine.processes.running()) {
        if (process.policy != platform::NSApplicationActivationPolicy::regular) continue;
        const auto same =
            std::find_if(items.begin(), items.end(), [&](const DockItem& item) { return item.name == process.name; });
        if (same == items.end())
            items.push_back({process.name, true});
        else
            same->isRunning = true;
    }
    return items;
}

// A full-screen window's space shows neither menu bar nor Dock.
bool isFullScreen(const Machine& machine, const CGRect& screen) {
    const std::vector<const ServerWindow*> shown = machine.windows.onScreen();
    return std::any_of(shown.begin(), shown.end(), [&](const ServerWindow* window) {
        const FinderWindow* folder = machine.finder.find(window->number);
        return folder != nullptr && folder->fullScreen && window->frame == screen;
    });
}

}  // namespace

void Compositor::paintScreenFurniture(Machine& machine, Scene& scene, std::size_t screen) {
    const DisplayOptions& options = machine.displays.options()[screen];
    const CGRect& frame = options.frame;
    if (isFullScreen(machine, frame)) return;
    const auto paintAt = [&](const CGRect& place, DrawingBuilder& builder) {
        painter.paint(scene.painter, builder.drawing, scene.palette, scene.scale, scene.pixels(place).topLeft());
    };
    if (options.dock > 0) {
        DrawingBuilder builder(machine.text, scene.palette.scheme);
        const CGRect strip = CGRectMake(frame.minX(), frame.minY(), frame.width(), options.dock);
        drawDock(builder, strip.size, dockOf(machine));
        paintAt(strip, builder);
    }
    if (options.menuBar > 0) {
        DrawingBuilder builder(machine.text, scene.palette.scheme);
        const CGRect strip = CGRectMake(frame.minX(), frame.maxY() - options.menuBar, frame.width(), options.menuBar);
        drawMenuBar(builder, strip.size, menuBarOf(machine));
        paintAt(strip, builder);
    }
}

void Compositor::paintAlert(Machine& machine, Scene& scene) {
    const std::optional<SystemAlert> alert = machine.alert();
    const std::optional<platform::NSScreen> screen = machine.displays.mainScreen();
    if (!alert || !screen) return;
    const AlertLayout layout = layoutOf(*alert, *screen);
    DrawingBuilder builder(machine.text, scene.palette.scheme);
    drawAlert(builder, *alert, layout);
    paintFramed(scene, layout.frame, true, builder.drawing);
}

}  // namespace desk
