#include "desk/system/DockView.h"

#include <cmath>
#include <string>
#include <utility>

#include "desk/look/Icons.h"
#include "views/Views.h"

namespace desk {

namespace {

using platform::Color;
using platform::ColorRole;
using views::Alignment;
using views::Edge;
using views::View;

constexpr double dockGap = 8;
constexpr double smallestIcon = 8;

View itemView(const DockItem& item, std::size_t index, double side, const Shades& shades) {
    View icon = item.window != 0 ? windowIcon(shades, side) : applicationIcon(item.name, side);
    return std::move(icon)
        .id(std::to_string(index))
        .padding(views::EdgeInsets{.top = 6, .bottom = 10})
        .overlay(View(views::Capsule(platform::CornerStyle::circular)
                          .fill(Color::of(ColorRole::primary, item.isRunning ? 0.6 : 0)))
                     .frame({.width = 4, .height = 4})
                     .padding(Edge::bottom, 2.5),
                 Alignment::bottom);
}

View dividerView() {
    return View(views::Rectangle().fill(Color::of(ColorRole::primary, 0.25)))
        .frame({.width = 0.5})
        .padding(Edge::vertical, 10)
        .frame({.width = 4});
}

}  // namespace

View dockView(const std::vector<DockItem>& items, double height, const Shades& shades) {
    const double plate = height - dockGap;
    const double side = std::floor(plate - 2 * dockGap);
    if (side < smallestIcon || items.empty()) return views::EmptyView();
    View row = views::HStack({.spacing = dockGap});
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (items[i].window != 0 && items[i - 1].window == 0) row.addChildren(dividerView());
        row.addChildren(itemView(items[i], i, side, shades));
    }
    const bool isDark = shades.scheme == platform::ColorScheme::dark;
    return std::move(row)
        .padding(Edge::horizontal, dockGap)
        .frame({.height = plate})
        .background(views::RoundedRectangle(plate * 0.3).fill(shades(0xF2F2F6, 0x2A2A2E, 0.62)))
        .overlay(
            views::RoundedRectangle(plate * 0.3).strokeBorder(Color::of(ColorRole::white, isDark ? 0.16 : 0.5), 0.5))
        .id(dockPlateId)
        .padding(Edge::top, 2)
        .frame({.height = height, .alignment = Alignment::top});
}

}  // namespace desk
