#include "desk/menus/ToolTipView.h"

#include "views/Views.h"

namespace desk {

views::View toolTipView(const std::string& text, const Shades& shades) {
    constexpr double rounding = 3;
    return views::Text(text)
        .lineLimit(1)
        .truncationMode(platform::TextTruncation::middle)
        .font({11, platform::FontWeight::regular})
        .lineLimit(1)
        .truncationMode(views::TextTruncation::middle)
        .padding({.top = 2.5, .leading = 5, .bottom = 2.5, .trailing = 5})
        .background(views::RoundedRectangle(rounding).fill(shades(0xF6F5F6, 0x3A393C)))
        .overlay(views::RoundedRectangle(rounding).strokeBorder(shades.ink(0.18), 0.5));
}

}  // namespace desk
