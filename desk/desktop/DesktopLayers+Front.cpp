// What stands before all windows: Dock, menu bar, popovers, tooltip, the open menu, alert.
#include <algorithm>

#include "desk/Machine.h"
#include "desk/desktop/DesktopLayers.h"
#include "desk/look/WindowFrameView.h"
#include "desk/menus/MenuView.h"
#include "desk/menus/ToolTipView.h"

namespace desk {

namespace {

using platform::CGRect;

// Each screen has a Dock and a menu bar; popovers count on from the last identifier.
constexpr std::int64_t alertId = -1;
constexpr std::int64_t menuId = -2;
constexpr std::int64_t toolTipId = -3;
constexpr std::int64_t firstDockId = -1000;
constexpr std::int64_t firstMenuBarId = -2000;
constexpr std::int64_t firstPopoverId = -3000;

// A full-screen window's space shows neither menu bar nor Dock.
bool isFullScreen(const Machine& machine, const CGRect& screen) {
    const std::vector<const ServerWindow*> shown = machine.windows.onScreen();
    return std::any_of(shown.begin(), shown.end(), [&](const ServerWindow* window) {
        const FinderWindow* folder = machine.finder.find(window->number);
        return folder != nullptr && folder->fullScreen && window->frame == screen;
    });
}

Layer drawn(std::int64_t id, const CGRect& frame, platform::Drawing drawing) {
    Layer layer;
    layer.id = id;
    layer.frame = frame;
    layer.background = std::make_shared<platform::Drawing>(std::move(drawing));
    return layer;
}

Layer floating(std::int64_t id, const CGRect& frame, platform::Drawing drawing, double cornerRadius,
               WindowShadow::Depth shadow) {
    Layer layer = drawn(id, frame, std::move(drawing));
    layer.cornerRadius = cornerRadius;
    layer.shadow = shadow;
    layer.isOpaque = true;
    return layer;
}

}  // namespace

void DesktopLayers::addScreenFurniture(std::size_t screen, std::vector<Layer>& layers) {
    const DisplayOptions& options = machine.displays.options()[screen];
    const CGRect& frame = options.frame;
    if (isFullScreen(machine, frame)) return;
    const auto place = static_cast<std::int64_t>(screen);
    if (options.dock > 0) {
        const CGRect strip = options.dockStrip();
        layers.push_back(drawn(firstDockId - place, strip, machine.dock.shown(strip.size).drawing()));
    }
    if (options.menuBar > 0) {
        const CGRect strip = options.menuBarStrip();
        layers.push_back(drawn(firstMenuBarId - place, strip, machine.menuBar.shown(strip).drawing()));
    }
}

void DesktopLayers::addMenus(std::vector<Layer>& layers) {
    const Shades shades{machine.appearance.colorScheme.get()};
    std::int64_t popoverId = firstPopoverId;
    for (const ShownPopover& shown : machine.menus.popovers()) {
        Layer layer;
        layer.id = popoverId--;
        layer.frame = shown.place.body;
        layer.background = std::make_shared<platform::Drawing>(shown.popover->content->drawing());
        layer.shadow = WindowShadow::Depth::back;
        layer.popover = shown.place;
        layers.push_back(std::move(layer));
    }
    if (const auto shown = machine.toolTips.shown()) {
        const views::LaidOutView tip(toolTipView(shown->text, shades), shown->frame.size, machine.text);
        layers.push_back(drawn(toolTipId, shown->frame, tip.drawing()));
    }
    if (const OpenMenu* menu = machine.menus.menu()) {
        layers.push_back(floating(menuId, menu->frame(), drawingOf(*menu, shades, machine.text), menuCornerRadius,
                                  WindowShadow::Depth::back));
    }
}

void DesktopLayers::addAlert(std::vector<Layer>& layers) {
    if (const auto alert = machine.alertSurface.shown())
        layers.push_back(
            floating(alertId, alert->frame(), alert->drawing(), windowCornerRadius, WindowShadow::Depth::front));
}

}  // namespace desk
