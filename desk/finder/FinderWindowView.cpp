#include "desk/finder/FinderWindowView.h"

#include <array>
#include <string>
#include <utility>

#include "desk/finder/FinderHit.h"
#include "desk/finder/FinderListView.h"
#include "desk/look/Icons.h"
#include "views/Views.h"

namespace desk {

namespace {

using platform::Color;
using platform::ColorRole;
using platform::Font;
using platform::FontWeight;
using views::Alignment;
using views::Edge;
using views::View;

constexpr Font bodyFont{13, FontWeight::regular};
constexpr Font smallFont{11, FontWeight::regular};
constexpr double arrowWidth = 20;
constexpr double narrowestWithArrows = 200;
constexpr double placeHeight = 26;
constexpr double sectionTitleHeight = 22;
constexpr double betweenSections = 10;

View hairline() {
    return View(views::Rectangle().fill(Color::of(ColorRole::separator))).frame({.height = 0.5});
}

View arrowView(const char* symbol, bool leadsSomewhere, FinderPart part) {
    const Color ink = Color::of(leadsSomewhere ? ColorRole::secondary : ColorRole::tertiary, leadsSomewhere ? 1 : 0.6);
    return views::Image(symbol)
        .font({12, FontWeight::medium})
        .foregroundStyle(ink)
        .padding(Edge::trailing, 4)
        .frame({.width = arrowWidth, .height = windowTitleBarHeight})
        .id(idOf({part}));
}

View titleBarView(const FinderContent& content, const FinderLayout& layout, const Shades& shades) {
    const bool hasArrows = content.size.width >= narrowestWithArrows;
    View row = views::HStack({.spacing = 0});
    if (hasArrows)
        row.addChildren(arrowView("chevron.left", content.canGoBack, FinderPart::back),
                        arrowView("chevron.right", content.canGoForward, FinderPart::forward));
    row.addChildren(
        folderIcon(16).padding(views::EdgeInsets{.leading = 4, .trailing = 6}),
        views::Text(content.title).font({13, FontWeight::semibold}).foregroundStyle(titleColor(content.look)));
    return std::move(row)
        .frame({.maxWidth = views::infinity, .alignment = Alignment::leading})
        .padding({.leading = layout.sidebarWidth() > 0 ? 12 : windowButtonsWidth, .trailing = 12})
        .frame({.width = layout.list().width(), .height = windowTitleBarHeight})
        .background(titleBarColor(shades, content.look))
        .overlay(hairline(), Alignment::bottom)
        .id(idOf({FinderPart::titleBar}));
}

View placeView(const FinderContent& content, std::size_t index, const Shades& shades) {
    const FinderPlace& place = content.places[index];
    const bool isShown = place.path ? *place.path == content.path : content.path.empty() && place.name == content.title;
    const bool isActive = content.look == WindowLook::active;
    return views::HStack({.spacing = 6},
                         views::Image(place.symbol)
                             .foregroundStyle(isActive ? ColorRole::accent : ColorRole::secondary)
                             .frame({.width = 20}),
                         views::Text(place.name).foregroundStyle(isActive ? ColorRole::primary : ColorRole::secondary))
        .frame({.maxWidth = views::infinity, .alignment = Alignment::leading})
        .font(bodyFont)
        .padding(Edge::horizontal, 6)
        .frame({.height = placeHeight})
        .background(views::RoundedRectangle(5).fill(shades.ink(isShown ? 0.09 : 0)))
        .id(idOf({FinderPart::place, index}))
        .padding(Edge::horizontal, 10);
}

View sectionView(const char* title, bool isOfVolumes, const FinderContent& content, const Shades& shades) {
    View section = views::VStack({.alignment = views::HorizontalAlignment::leading, .spacing = 0},
                                 views::Text(title)
                                     .font({11, FontWeight::semibold})
                                     .foregroundStyle(ColorRole::tertiary)
                                     .padding({.leading = 18, .bottom = 2})
                                     .frame({.height = sectionTitleHeight}));
    for (std::size_t i = 0; i < content.places.size(); ++i)
        if (content.places[i].isVolume == isOfVolumes) section.addChildren(placeView(content, i, shades));
    return section;
}

View sidebarView(const FinderContent& content, const FinderLayout& layout, const Shades& shades) {
    const bool isActive = content.look == WindowLook::active;
    View titleBar =
        View(Color::of(ColorRole::clear)).frame({.height = windowTitleBarHeight}).id(idOf({FinderPart::titleBar}));
    View sections = views::VStack({.alignment = views::HorizontalAlignment::leading, .spacing = betweenSections},
                                  sectionView("Favourites", false, content, shades),
                                  sectionView("Locations", true, content, shades));
    return views::VStack({.spacing = 8}, std::move(titleBar), std::move(sections))
        .frame({.width = layout.sidebarWidth(), .height = content.size.height, .alignment = Alignment::top})
        .background(isActive ? shades(0xE6E5E9, 0x2B2A2E) : shades(0xF0EFF1, 0x262528))
        .overlay(View(views::Rectangle().fill(Color::of(ColorRole::separator))).frame({.width = 0.5}),
                 Alignment::trailing)
        .clipped()
        .id(idOf({FinderPart::sidebar}));
}

View statusView(const FinderContent& content, const FinderLayout& layout, const Shades& shades) {
    const std::string count = std::to_string(content.itemCount);
    const std::string text = content.selectedCount == 0
                                 ? count + (content.itemCount == 1 ? " item" : " items")
                                 : std::to_string(content.selectedCount) + " of " + count + " selected";
    return views::Text(text)
        .font(smallFont)
        .foregroundStyle(ColorRole::secondary)
        .padding(Edge::horizontal, 12)
        .frame({.width = layout.status().width(), .height = layout.status().height()})
        .background(titleBarColor(shades, content.look))
        .overlay(hairline(), Alignment::top)
        .id(idOf({FinderPart::status}));
}

View factView(const char* label, const std::string& value) {
    return views::HStack({.spacing = 6},
                         views::Text(label)
                             .foregroundStyle(ColorRole::secondary)
                             .frame({.width = 64, .alignment = Alignment::trailing}),
                         views::Text(value))
        .frame({.maxWidth = views::infinity, .alignment = Alignment::leading})
        .font(smallFont)
        .frame({.height = 20});
}

}  // namespace

View finderWindowView(const FinderContent& content, const Shades& shades) {
    const FinderLayout layout(content.size, content.itemCount, content.scrolled);
    View parts = views::VStack({.spacing = 0}, titleBarView(content, layout, shades), finderHeaderView(layout),
                               finderListView(content, layout, shades), statusView(content, layout, shades));
    return views::HStack({.alignment = views::VerticalAlignment::top, .spacing = 0},
                         layout.sidebarWidth() > 0 ? sidebarView(content, layout, shades) : views::EmptyView(),
                         std::move(parts))
        .background(Color::of(ColorRole::controlBackground))
        .overlay(windowButtonsView(content.size, content.look, everyWindowButton, shades), Alignment::topLeading)
        .overlay(windowEdgeView(shades))
        .lineLimit(1)
        .truncationMode(platform::TextTruncation::middle);
}

View infoPanelView(const PlainWindow& window, const FinderItem& item, const std::string& folder, const Shades& shades) {
    View icon = item.icon == ItemIcon::document ? documentIcon(32) : folderIcon(32);
    View content = views::VStack(
        {.spacing = 0},
        views::HStack({.spacing = 10}, std::move(icon), views::Text(item.name).font({13, FontWeight::semibold}))
            .frame({.maxWidth = views::infinity, .alignment = Alignment::leading})
            .padding({.top = 14, .leading = 16, .bottom = 12, .trailing = 16}),
        hairline().padding(Edge::bottom, 9), factView("Kind:", item.kind), factView("Size:", item.size),
        factView("Where:", folder), factView("Modified:", item.modified), views::Spacer(0));
    return plainWindowView(window, shades, std::move(content))
        .overlay(windowEdgeView(shades))
        .lineLimit(1)
        .truncationMode(platform::TextTruncation::middle);
}

}  // namespace desk
