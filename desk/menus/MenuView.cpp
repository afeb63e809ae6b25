#include "desk/menus/MenuView.h"

#include <algorithm>
#include <utility>

#include "views/LaidOutView.h"
#include "views/Views.h"

namespace desk {

namespace {

using platform::Color;
using platform::ColorRole;
using views::Edge;
using views::View;

constexpr double symbolWidth = 16;
constexpr double highlightInset = 5;
constexpr double highlightRadius = 4;
constexpr platform::Font scrollerFont{9, platform::FontWeight::bold};

View separatorView(double height, const Shades& shades) {
    return View(views::Rectangle().fill(shades.ink(0.12)))
        .frame({.height = 1})
        .padding(Edge::horizontal, menuTextInset)
        .frame({.height = height});
}

View rowView(const OpenMenu& menu, std::size_t row, double height) {
    const platform::MenuItem& item = menu.items()[row];
    const bool isHighlighted = menu.highlighted() == row;
    const double symbolColumn = menu.layout().hasSymbols() ? menuSymbolWidth : 0;
    return views::HStack({.spacing = 0},
                         views::Image(item.symbol)
                             .frame({.width = symbolColumn > 0 ? symbolWidth : 0})
                             .padding(Edge::trailing, symbolColumn > 0 ? symbolColumn - symbolWidth : 0),
                         views::Text(item.title))
        .frame({.maxWidth = views::infinity, .alignment = views::Alignment::leading})
        .font(menuFont)
        .lineLimit(1)
        .truncationMode(platform::TextTruncation::middle)
        .foregroundStyle(isHighlighted  ? ColorRole::white
                         : item.enabled ? ColorRole::primary
                                        : ColorRole::tertiary)
        .padding(Edge::horizontal, menuTextInset)
        .frame({.height = height})
        .background(
            View(views::RoundedRectangle(highlightRadius).fill(Color::of(ColorRole::accent, isHighlighted ? 1 : 0)))
                .padding(Edge::horizontal, highlightInset));
}

// Those in sight, the first of them scrolled by as much as the menu is.
View rowsView(const OpenMenu& menu, const Shades& shades) {
    const MenuLayout& layout = menu.layout();
    const double scrolled = menu.scrolledBy();
    const std::size_t first = layout.rowAt(std::max(scrolled, menuPadding)).value_or(0);
    View rows = views::VStack({.spacing = 0});
    for (std::size_t row = first; row < menu.items().size() && layout.top(row) - scrolled < menu.frame().height();
         ++row) {
        const double height = layout.bottom(row) - layout.top(row);
        rows.addChildren(menu.items()[row].isSeparator ? separatorView(height, shades) : rowView(menu, row, height));
    }
    return std::move(rows)
        .padding(Edge::top, layout.top(first) - scrolled)
        .frame({.height = menu.frame().height(), .alignment = views::Alignment::top});
}

View scrollerView(const OpenMenu& menu, int direction) {
    if (!menu.canScroll(direction)) return views::EmptyView();
    return views::Image(direction < 0 ? "chevron.up" : "chevron.down")
        .font(scrollerFont)
        .frame({.height = menuScrollerHeight});
}

// Beside and before the rows.
View edgesView(const OpenMenu& menu, const Shades& shades) {
    return views::VStack({.spacing = 0}, scrollerView(menu, -1), views::Spacer(0), scrollerView(menu, 1))
        .frame({.width = menu.frame().width()})
        .overlay(views::RoundedRectangle(menuCornerRadius).strokeBorder(shades.ink(0.18), 0.5));
}

}  // namespace

platform::Drawing drawingOf(const OpenMenu& menu, const Shades& shades, platform::TextSystem& text) {
    const platform::CGSize size = menu.frame().size;
    const double top = menu.canScroll(-1) ? menuScrollerHeight : 0;
    const double bottom = menu.canScroll(1) ? menuScrollerHeight : 0;
    platform::Drawing drawing;
    const auto add = [&](View view) {
        for (auto& operation : views::LaidOutView(std::move(view), size, text).drawing().operations)
            drawing.operations.push_back(std::move(operation));
    };
    add(shades(0xF3F2F3, 0x2C2B2E));
    drawing.operations.emplace_back(
        platform::BeginClip{platform::CGRectMake(0, top, size.width, std::max(0.0, size.height - top - bottom))});
    add(rowsView(menu, shades));
    drawing.operations.emplace_back(platform::EndClip{});
    add(edgesView(menu, shades));
    return drawing;
}

}  // namespace desk
