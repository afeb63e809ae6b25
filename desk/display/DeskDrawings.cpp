#include "desk/display/DeskDrawings.h"

#include <algorithm>
#include <cmath>

#include "desk/display/Icons.h"

namespace desk {

namespace {

using platform::CGRect;
using platform::CGRectMake;
using platform::CGSize;
using platform::Color;
using platform::ColorRole;
using platform::FontWeight;

}  // namespace

void drawMenuBar(DrawingBuilder& builder, CGSize size, const MenuBarContent& content) {
    builder.fill(CGRectMake(0, 0, size.width, size.height), builder.shade(0xF4F4F6, 0x1C1C1E, 0.86));
    const Color ink = Color::of(ColorRole::primary);
    builder.symbol("desk.mark", {13, FontWeight::regular}, ink, CGRectMake(14, 0, 18, size.height));
    const double clockWidth = builder.width(content.clock, menuBarFont);
    const CGRect clock = CGRectMake(size.width - clockWidth - 14, 0, clockWidth, size.height);
    const CGRect glass = CGRectMake(clock.minX() - 34, 0, 18, size.height);
    builder.text(content.clock, menuBarFont, ink, clock);
    builder.symbol("magnifyingglass", {12, FontWeight::medium}, ink, glass);

    for (const MenuBarTitle& title : content.titles) {
        const bool isFirst = &title == &content.titles.front();
        if (title.isOpen) builder.fill(CGRectInset(title.box, 0, 2), Color::of(ColorRole::primary, 0.12), 4);
        builder.text(title.text, isFirst ? menuBarApplicationFont : menuBarFont, ink, title.box, TextAlignment::center);
    }
}

void drawDock(DrawingBuilder& builder, CGSize size, const std::vector<DockItem>& items) {
    const DockLayout layout(size, items);
    const CGRect& plate = layout.plate;
    if (layout.icons.empty()) return;
    builder.fill(plate, builder.shade(0xF2F2F6, 0x2A2A2E, 0.62), plate.height() * 0.3);
    builder.border(plate, builder.shade(0xFFFFFF, 0xFFFFFF, builder.isDark() ? 0.16 : 0.5), 0.5, plate.height() * 0.3);
    if (layout.divider)
        builder.fill(CGRectMake(*layout.divider, plate.minY() + 10, 0.5, plate.height() - 20),
                     Color::of(ColorRole::primary, 0.25));
    for (std::size_t i = 0; i < items.size(); ++i) {
        const CGRect& icon = layout.icons[i];
        if (items[i].window != 0)
            drawWindowIcon(builder, icon);
        else
            drawApplicationIcon(builder, icon, items[i].name);
        if (items[i].isRunning)
            builder.circle({icon.midX(), plate.maxY() - 4.5}, 4, Color::of(ColorRole::primary, 0.6));
    }
}

void drawAlert(DrawingBuilder& builder, const SystemAlert& alert, const AlertLayout& layout) {
    const CGRect& frame = layout.frame;
    const auto inside = [&](const CGRect& rect) {
        return CGRectMake(rect.minX() - frame.minX(), frame.maxY() - rect.maxY(), rect.width(), rect.height());
    };
    const CGRect whole = CGRectMake(0, 0, frame.width(), frame.height());
    builder.fill(whole, Color::of(ColorRole::windowBackground));
    const CGRect text = inside(layout.text);
    const double icon = 48;
    drawApplicationIcon(builder, CGRectMake(text.minX(), text.minY(), icon, icon), "Finder");
    CGRect room = CGRectMake(text.minX() + icon + 16, text.minY(), text.width() - icon - 16, text.height());
    const double taken = builder.paragraph(alert.message, {13, FontWeight::bold}, Color::of(ColorRole::primary), room);
    room = CGRectMake(room.minX(), room.minY() + taken + 6, room.width(), room.height() - taken - 6);
    builder.paragraph(alert.informative, {11, FontWeight::regular}, Color::of(ColorRole::primary), room);
    for (const AlertButton& button : layout.buttons) {
        const bool isDefault = &button == &layout.buttons.back();
        const CGRect rect = inside(button.frame);
        builder.fill(rect, isDefault ? Color::of(ColorRole::accent) : builder.shade(0xFFFFFF, 0x5A5A5E), 6);
        if (!isDefault) builder.border(rect, Color::of(ColorRole::primary, 0.15), 0.5, 6);
        builder.text(button.label, menuBarFont, Color::of(isDefault ? ColorRole::white : ColorRole::primary), rect,
                     TextAlignment::center);
    }
    drawWindowEdge(builder, frame.size);
}

void drawOtherWindow(DrawingBuilder& builder, CGSize size, std::string_view title, std::string_view application,
                     std::string_view note, WindowLook look) {
    drawPlainWindow(builder, size, title, look);
    const double middle = (size.height + windowTitleBarHeight) / 2;
    const double icon = 96;
    if (middle - icon > windowTitleBarHeight)
        drawApplicationIcon(builder,
                            CGRectMake(std::floor((size.width - icon) / 2), std::floor(middle - icon), icon, icon),
                            application);
    builder.text(note, menuBarFont, Color::of(ColorRole::secondary),
                 CGRectMake(20, middle + 12, std::max(0.0, size.width - 40), 20), TextAlignment::center);
    drawWindowEdge(builder, size);
}

}  // namespace desk
