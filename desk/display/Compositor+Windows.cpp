// The windows of all processes, back to front.
#include <QPainter>
#include <algorithm>
#include <set>

#include "desk/Machine.h"
#include "desk/display/Compositor.h"
#include "desk/display/CornerRounder.h"
#include "desk/display/DeskDrawings.h"
#include "desk/display/FinderWindowDrawing.h"
#include "desk/display/Scene.h"
#include "desk/display/Visibility.h"
#include "desk/display/WindowChrome.h"

namespace desk {

namespace {

using platform::CGRect;
using platform::CGRectMake;
using platform::CGSize;

WindowLook lookOf(bool isActive) {
    return isActive ? WindowLook::active : WindowLook::inactive;
}

bool isTitled(const ServerWindow& window) {
    return (window.window->settings().styleMask & platform::NSWindowStyleMask::titled) != 0;
}

std::string folderOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos || slash == 0 ? "/" : path.substr(0, slash);
}

// The window that looks active: the frontmost process's main one.
std::int64_t activeWindow(Machine& machine, const std::vector<const ServerWindow*>& frontToBack) {
    const Process* frontmost = machine.processes.frontmost();
    if (frontmost == nullptr) return 0;
    if (machine.finder.isRunning() && frontmost->processIdentifier == machine.finder.pid())
        return machine.finder.mainWindow();
    for (const ServerWindow* window : frontToBack)
        if (window->owner == frontmost->processIdentifier && (window->window == nullptr || isTitled(*window)))
            return window->number;
    return 0;
}

template <typename Map>
void keepOnly(Map& map, const std::set<std::int64_t>& numbers) {
    std::erase_if(map, [&](const auto& entry) { return !numbers.contains(entry.first); });
}

}  // namespace

void Compositor::paintWindows(Machine& machine, Scene& scene) {
    const std::vector<const ServerWindow*> frontToBack = machine.windows.onScreen();
    const std::vector<const ServerWindow*> visible = visibleWindows(frontToBack, machine.displays.screens());
    const std::int64_t active = activeWindow(machine, frontToBack);
    std::set<std::int64_t> numbers;
    for (const ServerWindow* window : visible) numbers.insert(window->number);
    keepOnly(pictures, numbers);
    keepOnly(finderDrawings, numbers);
    std::for_each(visible.rbegin(), visible.rend(),
                  [&](const ServerWindow* window) { paintWindow(machine, scene, *window, window->number == active); });
}

void Compositor::paintWindow(Machine& machine, Scene& scene, const ServerWindow& window, bool isActive) {
    if (window.window != nullptr)
        paintApplicationWindow(machine, scene, window, isActive);
    else
        paintForeignWindow(machine, scene, window, isActive);
}

void Compositor::paintApplicationWindow(Machine& machine, Scene& scene, const ServerWindow& window, bool isActive) {
    if (window.window->contentView() == nullptr) return;
    const QImage* content = picture(window, scene.palette, scene.scale);
    if (content == nullptr) return;
    const QRect frame = scene.pixels(window.frame);
    if (!isTitled(window)) {
        scene.painter.drawImage(frame.topLeft(), *content);
        return;
    }
    DrawingBuilder builder(machine.text, scene.palette.scheme);
    drawPlainWindow(builder, window.frame.size, window.window->settings().title, lookOf(isActive));
    const platform::Drawing behind = std::move(builder.drawing);
    builder.drawing = {};
    drawWindowEdge(builder, window.frame.size);
    shadow.paint(scene.painter, frame, isActive ? WindowShadow::Depth::front : WindowShadow::Depth::back, scene.scale);
    const CornerRounder rounder(scene.image, frame, windowCornerRadius * scene.scale);
    painter.paint(scene.painter, behind, scene.palette, scene.scale, frame.topLeft());
    scene.painter.drawImage(QPoint(frame.left(), frame.bottom() + 1 - content->height()), *content);
    rounder.restore(scene.painter);
    painter.paint(scene.painter, builder.drawing, scene.palette, scene.scale, frame.topLeft());
}

void Compositor::paintForeignWindow(Machine& machine, Scene& scene, const ServerWindow& window, bool isActive) {
    const FinderWindow* folder = machine.finder.find(window.number);
    if (folder == nullptr || folder->kind == FinderWindowKind::infoPanel) {
        paintFramed(scene, window.frame, isActive, foreignDrawing(machine, window, isActive));
        return;
    }
    const platform::Drawing& drawing = finderDrawing(machine, *folder, window.frame.size, isActive);
    if (!folder->fullScreen) {
        paintFramed(scene, window.frame, isActive, drawing);
        return;
    }
    painter.paint(scene.painter, drawing, scene.palette, scene.scale, scene.pixels(window.frame).topLeft());
}

void Compositor::paintFramed(Scene& scene, const CGRect& frame, bool isActive, const platform::Drawing& drawing) {
    const QRect pixels = scene.pixels(frame);
    shadow.paint(scene.painter, pixels, isActive ? WindowShadow::Depth::front : WindowShadow::Depth::back, scene.scale);
    const CornerRounder rounder(scene.image, pixels, windowCornerRadius * scene.scale);
    painter.paint(scene.painter, drawing, scene.palette, scene.scale, pixels.topLeft());
    rounder.restore(scene.painter);
}

const platform::Drawing& Compositor::finderDrawing(Machine& machine, const FinderWindow& window, CGSize size,
                                                   bool isActive) {
    FinderContent content = finderReader.read(machine.disk, window, size, lookOf(isActive), machine.scheduler.now());
    const platform::ColorScheme scheme = machine.appearance.colorScheme.get();
    const auto kept = finderDrawings.find(window.number);
    if (kept != finderDrawings.end() && kept->second.scheme == scheme && kept->second.content == content)
        return kept->second.drawing;
    DrawingBuilder builder(machine.text, scheme);
    drawFinderWindow(builder, content);
    FinderDrawing made{std::move(content), scheme, std::move(builder.drawing)};
    return finderDrawings.insert_or_assign(window.number, std::move(made)).first->second.drawing;
}

// An info panel of Finder, or a window of a process of which nothing but its name is known.
platform::Drawing Compositor::foreignDrawing(Machine& machine, const ServerWindow& window, bool isActive) {
    DrawingBuilder builder(machine.text, machine.appearance.colorScheme.get());
    const FinderWindow* panel = machine.finder.find(window.number);
    if (panel != nullptr && !panel->subject.empty()) {
        const FinderItem item = finderItem(machine.disk, panel->subject, machine.scheduler.now());
        drawInfoPanel(builder, window.frame.size, panel->name, item, folderOf(panel->subject), lookOf(isActive));
        return std::move(builder.drawing);
    }
    const Process* owner = machine.processes.find(window.owner);
    const std::string bundle = owner != nullptr && owner->bundleIdentifier ? *owner->bundleIdentifier : window.title;
    drawOtherWindow(builder, window.frame.size, window.title, bundle, lookOf(isActive));
    return std::move(builder.drawing);
}

}  // namespace desk
