#include "desk/finder/FinderListView.h"

#include <array>
#include <utility>

#include "desk/finder/FinderHit.h"
#include "desk/look/Icons.h"
#include "views/Views.h"

namespace desk {

namespace {

using platform::CGRect;
using platform::Color;
using platform::ColorRole;
using platform::Font;
using platform::FontWeight;
using views::Alignment;
using views::Edge;
using views::HorizontalAlignment;
using views::View;

constexpr Font nameFont{13, FontWeight::regular};
constexpr Font detailFont{11, FontWeight::regular};
constexpr Font columnFont{11, FontWeight::medium};
constexpr double iconSide = 16;
constexpr double listInset = 10;
constexpr double cellPadding = 8;
constexpr double rowRounding = 5;

struct Column {
    const char* title;
    double width;      // 0: what the others leave
    double fromWidth;  // of the list; hidden in a narrower one
    std::string FinderItem::*text;
    HorizontalAlignment alignment;
};
constexpr std::array columns{
    Column{"Name", 0, 0, &FinderItem::name, HorizontalAlignment::leading},
    Column{"Date Modified", 160, 380, &FinderItem::modified, HorizontalAlignment::leading},
    Column{"Size", 80, 300, &FinderItem::size, HorizontalAlignment::trailing},
    Column{"Kind", 120, 520, &FinderItem::kind, HorizontalAlignment::leading},
};

enum class Rules { none, betweenColumns };

View rule() {
    return View(views::Rectangle().fill(Color::of(ColorRole::separator)))
        .frame({.width = 0.5})
        .padding(Edge::vertical, 6);
}

// One cell for each column that such a list shows, as `make` answers it.
template <typename Make>
View cells(double listWidth, double height, Rules rules, Make make) {
    View row = views::HStack({.spacing = 0});
    for (const Column& column : columns) {
        if (listWidth < column.fromWidth) continue;
        const bool isFlexible = column.width == 0;
        View cell = make(column)
                        .padding(Edge::horizontal, cellPadding)
                        .frame({.minWidth = isFlexible ? 0 : column.width,
                                .maxWidth = isFlexible ? listWidth : column.width,
                                .minHeight = height,
                                .maxHeight = height,
                                .alignment = {column.alignment, views::VerticalAlignment::center}});
        const bool isRuled = rules == Rules::betweenColumns && !isFlexible;
        row.addChildren(isRuled ? std::move(cell).overlay(rule(), Alignment::leading) : std::move(cell));
    }
    return std::move(row).padding(Edge::horizontal, listInset);
}

View iconOf(const FinderItem& item) {
    if (item.icon == ItemIcon::folder) return folderIcon(iconSide);
    if (item.icon == ItemIcon::document) return documentIcon(iconSide);
    return applicationIcon(item.name.substr(0, item.name.rfind('.')), iconSide);
}

View cellOf(const FinderItem& item, const Column& column, bool isBright) {
    const bool isName = &column == &columns.front();
    View text = views::Text(item.*column.text)
                    .font(isName ? nameFont : detailFont)
                    .foregroundStyle(isBright ? ColorRole::white
                                     : isName ? ColorRole::primary
                                              : ColorRole::secondary);
    return isName ? views::HStack({.spacing = 6}, iconOf(item), std::move(text)) : std::move(text);
}

// A row beyond the last entry is a stripe.
View rowView(const FinderContent& content, const FinderLayout& layout, std::size_t offset, const Shades& shades) {
    const std::size_t index = layout.firstRow() + offset;
    const double width = layout.list().width();
    const double height = layout.row(index).height();
    const FinderItem* item = offset < content.items.size() ? &content.items[offset] : nullptr;
    const bool isSelected = item != nullptr && item->isSelected;
    const bool isBright = isSelected && content.look == WindowLook::active;
    const Color back = isBright     ? Color::of(ColorRole::accent)
                       : isSelected ? shades(0xDCDCDC, 0x464646)
                                    : shades.ink(index % 2 == 1 ? 0.04 : 0);
    View row = item == nullptr ? View(views::Spacer(0)).frame({.width = width, .height = height})
                               : cells(width, height, Rules::none,
                                       [&](const Column& column) { return cellOf(*item, column, isBright); });
    View plate = View(views::RoundedRectangle(rowRounding).fill(back))
                     .id(index < content.itemCount ? idOf({FinderPart::row, index}) : std::string())
                     .padding(Edge::horizontal, listInset);
    return std::move(row).background(std::move(plate));
}

View bandView(const FinderContent& content, const FinderLayout& layout, const Shades& shades) {
    if (!content.band) return views::EmptyView();
    const CGRect& band = *content.band;
    return View(views::Rectangle().fill(shades.ink(0.09)))
        .overlay(views::Rectangle().strokeBorder(shades.ink(0.3), 0.5))
        .frame({.width = band.width(), .height = band.height()})
        .padding({.top = band.minY() - layout.scrolled(), .leading = band.minX()});
}

// The strip along the right edge reacts, not the knob alone.
View scrollerView(const FinderLayout& layout, const Shades& shades) {
    const auto knob = layout.knob();
    if (!knob) return views::EmptyView();
    const CGRect list = layout.list();
    return View(views::Capsule().fill(shades.ink(0.32)))
        .frame({.width = knob->width(), .height = knob->height()})
        .padding({.top = knob->minY() - list.minY()})
        .frame({.width = FinderLayout::scrollerWidth, .height = list.height(), .alignment = Alignment::top})
        .id(idOf({FinderPart::scroller}));
}

View unreadableNote(const FinderContent& content) {
    if (content.isReadable || !content.items.empty()) return views::EmptyView();
    return views::Text("The contents of this folder can’t be shown.")
        .font(nameFont)
        .foregroundStyle(ColorRole::tertiary)
        .padding(Edge::horizontal, 20);
}

}  // namespace

View finderHeaderView(const FinderLayout& layout) {
    const CGRect header = layout.header();
    return cells(header.width(), header.height(), Rules::betweenColumns,
                 [](const Column& column) {
                     return views::Text(column.title).font(columnFont).foregroundStyle(ColorRole::secondary);
                 })
        .overlay(View(views::Rectangle().fill(Color::of(ColorRole::separator))).frame({.height = 0.5}),
                 Alignment::bottom)
        .id(idOf({FinderPart::header}));
}

View finderListView(const FinderContent& content, const FinderLayout& layout, const Shades& shades) {
    const CGRect list = layout.list();
    View rows = views::VStack({.spacing = 0});
    for (std::size_t i = 0; i < layout.rowsInSight(); ++i) rows.addChildren(rowView(content, layout, i, shades));
    return std::move(rows)
        .padding(Edge::top, layout.row(layout.firstRow()).minY() - list.minY())
        .frame({.width = list.width(), .height = list.height(), .alignment = Alignment::top})
        .overlay(bandView(content, layout, shades), Alignment::topLeading)
        .overlay(unreadableNote(content))
        .overlay(scrollerView(layout, shades), Alignment::trailing)
        .clipped()
        .id(idOf({FinderPart::emptyList}));
}

}  // namespace desk
