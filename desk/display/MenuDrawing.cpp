#include "desk/display/MenuDrawing.h"

#include <algorithm>

namespace desk {

namespace {

using platform::CGRect;
using platform::CGRectMake;
using platform::CGSize;
using platform::Color;
using platform::ColorRole;

constexpr double highlightInset = 5;
constexpr double highlightRadius = 4;
constexpr platform::Font symbolFont{13, platform::FontWeight::regular};
constexpr platform::Font scrollerFont{9, platform::FontWeight::bold};

Color background(const DrawingBuilder& builder) {
    return builder.shade(0xF3F2F3, 0x2C2B2E);
}

void drawRow(DrawingBuilder& builder, const OpenMenu& menu, std::size_t row, const CGRect& rect) {
    const platform::MenuItem& item = menu.items()[row];
    if (item.isSeparator) {
        builder.fill(CGRectMake(menuTextInset, rect.midY() - 0.5, std::max(0.0, rect.width() - 2 * menuTextInset), 1),
                     builder.shade(0x000000, 0xFFFFFF, 0.12));
        return;
    }
    const bool isHighlighted = menu.highlighted() == row;
    if (isHighlighted)
        builder.fill(CGRectInset(rect, highlightInset, 0), Color::of(ColorRole::accent), highlightRadius);
    const Color ink = Color::of(isHighlighted  ? ColorRole::white
                                : item.enabled ? ColorRole::primary
                                               : ColorRole::tertiary);
    double x = menuTextInset;
    if (!item.symbol.empty())
        builder.symbol(item.symbol, symbolFont, ink,
                       CGRectMake(x - 2, rect.minY(), menuSymbolWidth - 4, rect.height()));
    if (menu.layout().hasSymbols()) x += menuSymbolWidth;
    builder.text(item.title, menuFont, ink,
                 CGRectMake(x, rect.minY(), std::max(0.0, rect.width() - x - menuTextInset), rect.height()));
}

void drawScroller(DrawingBuilder& builder, const OpenMenu& menu, int direction) {
    if (!menu.canScroll(direction)) return;
    const CGSize size = menu.frame().size;
    const CGRect strip =
        CGRectMake(0, direction < 0 ? 0 : size.height - menuScrollerHeight, size.width, menuScrollerHeight);
    builder.fill(strip, background(builder));
    builder.symbol(direction < 0 ? "chevron.up" : "chevron.down", scrollerFont, Color::of(ColorRole::primary), strip);
}

}  // namespace

void drawMenu(DrawingBuilder& builder, const OpenMenu& menu) {
    const CGSize size = menu.frame().size;
    const CGRect whole = CGRectMake(0, 0, size.width, size.height);
    const MenuLayout& layout = menu.layout();
    builder.fill(whole, background(builder));
    builder.beginClip(whole);
    for (std::size_t row = layout.rowAt(std::max(menu.scrolledBy(), menuPadding)).value_or(0);
         row < menu.items().size() && layout.top(row) - menu.scrolledBy() < size.height; ++row)
        drawRow(builder, menu, row,
                CGRectMake(0, layout.top(row) - menu.scrolledBy(), size.width, layout.bottom(row) - layout.top(row)));
    builder.endClip();
    drawScroller(builder, menu, -1);
    drawScroller(builder, menu, 1);
    builder.border(whole, builder.shade(0x000000, 0xFFFFFF, 0.18), 0.5, menuCornerRadius);
}

}  // namespace desk
