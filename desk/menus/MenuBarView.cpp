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
constexpr double titleInset = 10;
constexpr double itemInset = 6;
constexpr double leastGap = 20;  // between titles and items

// What can be pressed, on the shape that shows that it is.
View pressableView(View label, double inset, std::string id, const MenuBarContent& content, double height) {
    const double shown = content.open == id ? 0.12 : 0;
    return std::move(label)
        .padding(Edge::horizontal, inset)
        .frame({.height = height})
        .background(
            View(views::RoundedRectangle(4).fill(Color::of(ColorRole::primary, shown))).padding(Edge::vertical, 2))
        .id(std::move(id));
}

View titlesView(const MenuBarContent& content, double height) {
    View titles = views::HStack({.spacing = 0});
    for (std::size_t i = 0; i < content.titles.size(); ++i)
        titles.addChildren(
            pressableView(views::Text(content.titles[i]).font(i == 0 ? applicationFont : menuBarFont).fixedSize(),
                          titleInset, titleId(i), content, height));
    return titles;
}

View itemsView(const MenuBarContent& content, double height) {
    View items = views::HStack({.spacing = 0});
    for (std::size_t i = content.items.size(); i-- > 0;)
        items.addChildren(pressableView(views::Image(content.items[i]), itemInset, itemId(i), content, height));
    return items;
}

}  // namespace

std::string titleId(std::size_t index) {
    return "title " + std::to_string(index);
}

std::string itemId(std::size_t index) {
    return "item " + std::to_string(index);
}

View menuBarView(const MenuBarContent& content, double height, const Shades& shades) {
    return views::HStack({.spacing = 0}, views::Image("desk.mark").frame({.width = 18}).padding(Edge::leading, 14),
                         titlesView(content, height), views::Spacer(leastGap), itemsView(content, height),
                         views::Image("magnifyingglass")
                             .font({12, FontWeight::medium})
                             .padding({.top = 0, .leading = 8, .bottom = 0, .trailing = 17}),
                         views::Text(content.clock).fixedSize().padding(Edge::trailing, 14))
        .font(menuBarFont)
        .lineLimit(1)
        .truncationMode(platform::TextTruncation::middle)
        .frame({.height = height})
        .background(shades(0xF4F4F6, 0x1C1C1E, 0.86));
}

}  // namespace desk
