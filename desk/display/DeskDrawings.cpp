#include "desk/display/DeskDrawings.h"

#include <algorithm>
#include <cmath>

#include "desk/look/Icons.h"

namespace desk {

namespace {

using platform::CGRect;
using platform::CGRectMake;
using platform::CGSize;
using platform::Color;
using platform::ColorRole;
using platform::FontWeight;

constexpr platform::Font bodyFont{13, FontWeight::regular};

}  // namespace

void drawAlert(DrawingBuilder& builder, const SystemAlert& alert, const AlertLayout& layout) {
    const CGRect& frame = layout.frame;
    const auto inside = [&](const CGRect& rect) {
        return CGRectMake(rect.minX() - frame.minX(), frame.maxY() - rect.maxY(), rect.width(), rect.height());
    };
    const CGRect whole = CGRectMake(0, 0, frame.width(), frame.height());
    builder.fill(whole, Color::of(ColorRole::windowBackground));
    const CGRect text = inside(layout.text);
    const double icon = 48;
    builder.view(applicationIcon("Finder", icon), CGRectMake(text.minX(), text.minY(), icon, icon));
    CGRect room = CGRectMake(text.minX() + icon + 16, text.minY(), text.width() - icon - 16, text.height());
    const double taken = builder.paragraph(alert.message, {13, FontWeight::bold}, Color::of(ColorRole::primary), room);
    room = CGRectMake(room.minX(), room.minY() + taken + 6, room.width(), room.height() - taken - 6);
    builder.paragraph(alert.informative, {11, FontWeight::regular}, Color::of(ColorRole::primary), room);
    for (const AlertButton& button : layout.buttons) {
        const bool isDefault = &button == &layout.buttons.back();
        const CGRect rect = inside(button.frame);
        builder.fill(rect, isDefault ? Color::of(ColorRole::accent) : builder.shade(0xFFFFFF, 0x5A5A5E), 6);
        if (!isDefault) builder.border(rect, Color::of(ColorRole::primary, 0.15), 0.5, 6);
        builder.text(button.label, bodyFont, Color::of(isDefault ? ColorRole::white : ColorRole::primary), rect,
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
        builder.view(applicationIcon(application, icon),
                     CGRectMake(std::floor((size.width - icon) / 2), std::floor(middle - icon), icon, icon));
    builder.text(note, bodyFont, Color::of(ColorRole::secondary),
                 CGRectMake(20, middle + 12, std::max(0.0, size.width - 40), 20), TextAlignment::center);
    drawWindowEdge(builder, size);
}

}  // namespace desk
