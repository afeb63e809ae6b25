#include "desk/look/SketchedWindowView.h"

#include <utility>

#include "desk/look/Icons.h"
#include "views/Views.h"

namespace desk {

views::View sketchedWindowView(const PlainWindow& window, const std::string& application, const std::string& note,
                               const Shades& shades) {
    constexpr double iconSide = 96;
    const bool hasRoom = window.size.height > windowTitleBarHeight + 2 * iconSide;
    views::View content =
        views::VStack({.spacing = 12}, hasRoom ? applicationIcon(application, iconSide) : views::EmptyView(),
                      views::Text(note)
                          .font({13, platform::FontWeight::regular})
                          .foregroundStyle(platform::ColorRole::secondary)
                          .padding(views::Edge::horizontal, 20));
    return plainWindowView(window, shades, std::move(content))
        .overlay(windowEdgeView(shades))
        .lineLimit(1)
        .truncationMode(platform::TextTruncation::middle);
}

}  // namespace desk
