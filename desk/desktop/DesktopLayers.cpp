// The windows of all processes.
#include "desk/desktop/DesktopLayers.h"

#include <algorithm>
#include <set>

#include "desk/Machine.h"
#include "desk/desktop/Visibility.h"
#include "desk/finder/FinderWindowView.h"
#include "desk/look/SketchedWindowView.h"
#include "platform/FileURL.h"
#include "views/LaidOutView.h"

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

SharedDrawing shared(platform::Drawing drawing) {
    return std::make_shared<platform::Drawing>(std::move(drawing));
}

Shades shadesOf(const Machine& machine) {
    return {machine.appearance.colorScheme.get()};
}

// An info panel of Finder, or a window of a process of which nothing but its name is known.
views::View foreignView(Machine& machine, const ServerWindow& window, bool isActive) {
    const Shades shades = shadesOf(machine);
    PlainWindow plain{window.title, window.frame.size, lookOf(isActive)};
    const FinderWindow* panel = machine.finder.find(window.number);
    if (panel != nullptr && !panel->subject.empty()) {
        plain.title = panel->name;
        return infoPanelView(plain, finderItem(machine.disk, panel->subject, machine.clock.now()),
                             platform::deletingLastPathComponent(panel->subject), shades);
    }
    const Process* owner = machine.processes.find(window.owner);
    const std::string name = owner == nullptr ? window.title : owner->name;
    const std::string note = owner != nullptr && owner->bundleIdentifier ? *owner->bundleIdentifier : name;
    return sketchedWindowView(plain, name, note, shades);
}

}  // namespace

DesktopContents DesktopLayers::read() {
    DesktopContents contents;
    contents.scheme = machine.appearance.colorScheme.get();
    for (const platform::NSScreen& screen : machine.displays.screens()) contents.screens.push_back(screen.frame);
    addWindows(contents.layers);
    for (std::size_t i = 0; i < contents.screens.size(); ++i) addScreenFurniture(i, contents.layers);
    addMenus(contents.layers);
    addAlert(contents.layers);
    return contents;
}

std::optional<Layer::Content> DesktopLayers::contentOf(std::int64_t number) {
    const ServerWindow* window = machine.windows.find(number);
    if (window == nullptr || window->window == nullptr || window->window->contentView() == nullptr) return std::nullopt;
    platform::ContentView& view = *window->window->contentView();
    // What is drawn is brought up to date first: the version is that of what was asked for last.
    view.drawing();
    const platform::WindowSettings& settings = window->window->settings();
    const double titleBar = isTitled(*window) ? windowTitleBarHeight : 0;
    return Layer::Content{number,
                          &view,
                          view.drawingVersion(),
                          {window->frame.width(), window->frame.height() - titleBar},
                          settings.backgroundColor,
                          settings.isPanel};
}

void DesktopLayers::addWindows(std::vector<Layer>& layers) {
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
            layers.push_back(foreignWindow(window, isActive));
        else if (window.window->contentView() != nullptr)
            layers.push_back(applicationWindow(window, isActive));
    }
}

Layer DesktopLayers::applicationWindow(const ServerWindow& window, bool isActive) {
    if (!isTitled(window)) {
        Layer layer;
        layer.id = window.number;
        layer.frame = window.frame;
        layer.content = contentOf(window.number);
        return layer;
    }
    Layer layer = framed(window, isActive);
    layer.content = contentOf(window.number);
    const platform::CGSize size = window.frame.size;
    const platform::WindowSettings& settings = window.window->settings();
    const PlainWindow plain{settings.title, size, lookOf(isActive), settings.styleMask};
    const Shades shades = shadesOf(machine);
    layer.background = shared(views::LaidOutView(plainWindowView(plain, shades), size, machine.text).drawing());
    layer.foreground = shared(views::LaidOutView(windowEdgeView(shades), size, machine.text).drawing());
    return layer;
}

Layer DesktopLayers::foreignWindow(const ServerWindow& window, bool isActive) {
    Layer layer = framed(window, isActive);
    const FinderWindow* folder = machine.finder.find(window.number);
    if (folder == nullptr || folder->kind == FinderWindowKind::infoPanel) {
        layer.background = shared(
            views::LaidOutView(foreignView(machine, window, isActive), window.frame.size, machine.text).drawing());
        return layer;
    }
    layer.background = finderDrawing(*folder, isActive);
    if (folder->fullScreen) {
        layer.cornerRadius = 0;
        layer.shadow.reset();
    }
    return layer;
}

SharedDrawing DesktopLayers::finderDrawing(const FinderWindow& window, bool isActive) {
    FinderContent content =
        finderContent(machine.finder.browser(), machine.disk, window, lookOf(isActive), machine.clock.now());
    const platform::ColorScheme scheme = machine.appearance.colorScheme.get();
    const auto kept = finderDrawings.find(window.number);
    if (kept != finderDrawings.end() && kept->second.scheme == scheme && kept->second.content == content)
        return kept->second.drawing;
    const views::LaidOutView laidOut(finderWindowView(content, {scheme}), content.size, machine.text);
    SharedDrawing drawing = shared(laidOut.drawing());
    finderDrawings.insert_or_assign(window.number, FinderDrawing{std::move(content), scheme, drawing});
    return drawing;
}

}  // namespace desk
