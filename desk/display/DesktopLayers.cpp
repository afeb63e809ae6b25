// The windows of all processes.
#include "desk/display/DesktopLayers.h"

#include <algorithm>
#include <set>

#include "desk/Machine.h"
#include "desk/display/DeskDrawings.h"
#include "desk/display/FinderWindowDrawing.h"
#include "desk/display/Visibility.h"
#include "desk/display/WindowChrome.h"
#include "platform/FileURL.h"

namespace desk {

namespace {

WindowLook lookOf(bool isActive) {
    return isActive ? WindowLook::active : WindowLook::inactive;
}

bool isTitled(const ServerWindow& window) {
    return (window.window->settings().styleMask & platform::NSWindowStyleMask::titled) != 0;
}

// The window that looks active: the frontmost process's main one.
std::int64_t activeWindow(Machine& machine) {
    const Process* frontmost = machine.processes.frontmost();
    return frontmost == nullptr ? 0 : machine.activation.mainWindow(frontmost->processIdentifier);
}

// With the look of a framed window: shadow, round corners.
Layer framed(const ServerWindow& window, bool isActive) {
    Layer layer;
    layer.id = window.number;
    layer.frame = window.frame;
    layer.cornerRadius = windowCornerRadius;
    layer.shadow = isActive ? WindowShadow::Depth::front : WindowShadow::Depth::back;
    layer.isOpaque = true;
    return layer;
}

// An info panel of Finder, or a window of a process of which nothing but its name is known.
platform::Drawing foreignDrawing(Machine& machine, const ServerWindow& window, bool isActive) {
    DrawingBuilder builder(machine.text, machine.appearance.colorScheme.get());
    const FinderWindow* panel = machine.finder.find(window.number);
    if (panel != nullptr && !panel->subject.empty()) {
        const FinderItem item = finderItem(machine.disk, panel->subject, machine.clock.now());
        drawInfoPanel(builder, window.frame.size, panel->name, item,
                      platform::deletingLastPathComponent(panel->subject), lookOf(isActive));
        return std::move(builder.drawing);
    }
    const Process* owner = machine.processes.find(window.owner);
    const std::string name = owner == nullptr ? window.title : owner->name;
    const std::string note = owner != nullptr && owner->bundleIdentifier ? *owner->bundleIdentifier : name;
    drawOtherWindow(builder, window.frame.size, window.title, name, note, lookOf(isActive));
    return std::move(builder.drawing);
}

}  // namespace

std::vector<Layer> DesktopLayers::read(Machine& machine) {
    std::vector<Layer> layers;
    addWindows(machine, layers);
    for (std::size_t i = 0; i < machine.displays.screens().size(); ++i) addScreenFurniture(machine, i, layers);
    addMenus(machine, layers);
    addAlert(machine, layers);
    return layers;
}

void DesktopLayers::addWindows(Machine& machine, std::vector<Layer>& layers) {
    const std::vector<const ServerWindow*> frontToBack = machine.windows.onScreen();
    const std::vector<const ServerWindow*> visible = visibleWindows(frontToBack, machine.displays.screens());
    const std::int64_t active = activeWindow(machine);
    std::set<std::int64_t> numbers;
    for (const ServerWindow* window : visible) numbers.insert(window->number);
    std::erase_if(finderDrawings, [&](const auto& entry) { return !numbers.contains(entry.first); });
    for (auto entry = visible.rbegin(); entry != visible.rend(); ++entry) {
        const ServerWindow& window = **entry;
        const bool isActive = window.number == active;
        if (window.window == nullptr)
            layers.push_back(foreignWindow(machine, window, isActive));
        else if (window.window->contentView() != nullptr)
            layers.push_back(applicationWindow(machine, window, isActive));
    }
}

Layer DesktopLayers::applicationWindow(Machine& machine, const ServerWindow& window, bool isActive) {
    platform::ContentView& view = *window.window->contentView();
    // What is drawn is brought up to date first: the version is that of what was asked for last.
    view.drawing();
    const Layer::Content content{window.number, view.drawingVersion()};
    if (!isTitled(window)) {
        Layer layer;
        layer.id = window.number;
        layer.frame = window.frame;
        layer.content = content;
        return layer;
    }
    Layer layer = framed(window, isActive);
    layer.content = content;
    const platform::ColorScheme scheme = machine.appearance.colorScheme.get();
    DrawingBuilder behind(machine.text, scheme);
    drawPlainWindow(behind, window.frame.size, window.window->settings().title, lookOf(isActive),
                    window.window->settings().styleMask);
    layer.background = std::make_shared<platform::Drawing>(std::move(behind.drawing));
    DrawingBuilder edge(machine.text, scheme);
    drawWindowEdge(edge, window.frame.size);
    layer.foreground = std::make_shared<platform::Drawing>(std::move(edge.drawing));
    return layer;
}

Layer DesktopLayers::foreignWindow(Machine& machine, const ServerWindow& window, bool isActive) {
    Layer layer = framed(window, isActive);
    const FinderWindow* folder = machine.finder.find(window.number);
    if (folder == nullptr || folder->kind == FinderWindowKind::infoPanel) {
        layer.background = std::make_shared<platform::Drawing>(foreignDrawing(machine, window, isActive));
        return layer;
    }
    layer.background = finderDrawing(machine, *folder, isActive);
    if (folder->fullScreen) {
        layer.cornerRadius = 0;
        layer.shadow.reset();
    }
    return layer;
}

SharedDrawing DesktopLayers::finderDrawing(Machine& machine, const FinderWindow& window, bool isActive) {
    FinderContent content =
        finderContent(machine.finder.browser(), machine.disk, window, lookOf(isActive), machine.clock.now());
    const platform::ColorScheme scheme = machine.appearance.colorScheme.get();
    const auto kept = finderDrawings.find(window.number);
    if (kept != finderDrawings.end() && kept->second.scheme == scheme && kept->second.content == content)
        return kept->second.drawing;
    DrawingBuilder builder(machine.text, scheme);
    drawFinderWindow(builder, content);
    auto drawing = std::make_shared<platform::Drawing>(std::move(builder.drawing));
    finderDrawings.insert_or_assign(window.number, FinderDrawing{std::move(content), scheme, drawing});
    return drawing;
}

}  // namespace desk
