#include "desk/menus/MenuBarView.h"

#include <utility>

#include "views/Views.h"

namespace desk {

namespace {

using platform::Color;
using platform::ColorRole;
using platform::Font;
using platform::FontWeight;
using views::Edge;
using views::View;

constexpr Font menuBarFont{13, FontWeight::regular};
constexpr Font applicationFont{13, FontWeight::bold};

View titleView(const MenuBarContent& content, std::size_t index, double height) {
    const double shown = content.open == index ? 0.12 : 0;
    return views::Text(content.titles[index])
        .font(index == 0 ? applicationFont : menuBarFont)
        .fixedSize()
        .padding(Edge::horizontal, 10)
        .frame({.height = height})
        .background(
            View(views::RoundedRectangle(4).fill(Color::of(ColorRole::primary, shown))).padding(Edge::vertical, 2))
        .id(std::to_string(index));
}

}  // namespace

View menuBarView(const MenuBarContent& content, double height, const Shades& shades) {
    View titles = views::HStack({.spacing = 0});
    for (std::size_t i = 0; i < content.titles.size(); ++i) titles.addChildren(titleView(content, i, height));
    return views::HStack({.spacing = 0}, views::Image("desk.mark").frame({.width = 18}).padding(Edge::leading, 14),
                         std::move(titles), views::Spacer(0),
                         views::Image("magnifyingglass").font({12, FontWeight::medium}).padding(Edge::trailing, 17),
                         views::Text(content.clock).fixedSize().padding(Edge::trailing, 14))
        .font(menuBarFont)
        .lineLimit(1)
        .truncationMode(platform::TextTruncation::middle)
        .frame({.height = height})
        .background(shades(0xF4F4F6, 0x1C1C1E, 0.86));
}

}  // namespace desk
