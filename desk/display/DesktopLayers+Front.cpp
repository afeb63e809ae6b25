// What stands before all windows: Dock, menu bar, popovers, tooltip, the open menu, alert.
#include <algorithm>

#include "desk/Machine.h"
#include "desk/display/DeskDrawings.h"
#include "desk/display/DesktopLayers.h"
#include "desk/display/FinderWords.h"
#include "desk/display/MenuDrawing.h"
#include "desk/system/AlertLayout.h"

namespace desk {

namespace {

using platform::CGRect;
using platform::CGRectMake;

// Each screen has a Dock and a menu bar; popovers count on from the last identifier.
constexpr std::int64_t alertId = -1;
constexpr std::int64_t menuId = -2;
constexpr std::int64_t toolTipId = -3;
constexpr std::int64_t firstDockId = -1000;
constexpr std::int64_t firstMenuBarId = -2000;
constexpr std::int64_t firstPopoverId = -3000;

constexpr double toolTipCornerRadius = 3;

// A full-screen window's space shows neither menu bar nor Dock.
bool isFullScreen(const Machine& machine, const CGRect& screen) {
    const std::vector<const ServerWindow*> shown = machine.windows.onScreen();
    return std::any_of(shown.begin(), shown.end(), [&](const ServerWindow* window) {
        const FinderWindow* folder = machine.finder.find(window->number);
        return folder != nullptr && folder->fullScreen && window->frame == screen;
    });
}

Layer drawn(std::int64_t id, const CGRect& frame, DrawingBuilder& builder) {
    Layer layer;
    layer.id = id;
    layer.frame = frame;
    layer.background = std::make_shared<platform::Drawing>(std::move(builder.drawing));
    return layer;
}

Layer floating(std::int64_t id, const CGRect& frame, DrawingBuilder& builder, double cornerRadius,
               WindowShadow::Depth shadow) {
    Layer layer = drawn(id, frame, builder);
    layer.cornerRadius = cornerRadius;
    layer.shadow = shadow;
    layer.isOpaque = true;
    return layer;
}

}  // namespace

void DesktopLayers::addScreenFurniture(Machine& machine, std::size_t screen, std::vector<Layer>& layers) {
    const DisplayOptions& options = machine.displays.options()[screen];
    const CGRect& frame = options.frame;
    if (isFullScreen(machine, frame)) return;
    const auto place = static_cast<std::int64_t>(screen);
    const platform::ColorScheme scheme = machine.appearance.colorScheme.get();
    if (options.dock > 0) {
        DrawingBuilder builder(machine.text, scheme);
        const CGRect strip = CGRectMake(frame.minX(), frame.minY(), frame.width(), options.dock);
        drawDock(builder, strip.size, dockItems(machine));
        layers.push_back(drawn(firstDockId - place, strip, builder));
    }
    if (options.menuBar > 0) {
        DrawingBuilder builder(machine.text, scheme);
        const CGRect strip = CGRectMake(frame.minX(), frame.maxY() - options.menuBar, frame.width(), options.menuBar);
        drawMenuBar(builder, strip.size, {machine.input.menuBar().titles(strip), clockText(machine.clock.now())});
        layers.push_back(drawn(firstMenuBarId - place, strip, builder));
    }
}

void DesktopLayers::addMenus(Machine& machine, std::vector<Layer>& layers) {
    const platform::ColorScheme scheme = machine.appearance.colorScheme.get();
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
        const CGRect whole{{0, 0}, shown->frame.size};
        DrawingBuilder builder(machine.text, scheme);
        builder.fill(whole, builder.shade(0xF6F5F6, 0x3A393C), toolTipCornerRadius);
        builder.border(whole, builder.shade(0x000000, 0xFFFFFF, 0.18), 0.5, toolTipCornerRadius);
        builder.text(shown->text, toolTipFont, platform::Color::of(platform::ColorRole::primary),
                     CGRectInset(whole, toolTipInset, 0));
        layers.push_back(drawn(toolTipId, shown->frame, builder));
    }
    if (const OpenMenu* menu = machine.menus.menu()) {
        DrawingBuilder builder(machine.text, scheme);
        drawMenu(builder, *menu);
        layers.push_back(floating(menuId, menu->frame(), builder, menuCornerRadius, WindowShadow::Depth::back));
    }
}

void DesktopLayers::addAlert(Machine& machine, std::vector<Layer>& layers) {
    const std::optional<SystemAlert> alert = machine.alert();
    const std::optional<platform::NSScreen> screen = machine.displays.mainScreen();
    if (!alert || !screen) return;
    const AlertLayout layout = layoutOf(*alert, *screen);
    DrawingBuilder builder(machine.text, machine.appearance.colorScheme.get());
    drawAlert(builder, *alert, layout);
    layers.push_back(floating(alertId, layout.frame, builder, windowCornerRadius, WindowShadow::Depth::front));
}

}  // namespace desk
