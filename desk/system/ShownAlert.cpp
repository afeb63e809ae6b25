#include "desk/system/ShownAlert.h"

#include <cmath>
#include <utility>

#include "desk/look/Icons.h"
#include "desk/look/WindowFrameView.h"
#include "desk/windows/WindowFrame.h"
#include "views/Views.h"

namespace desk {

namespace {

using platform::CGRect;
using platform::Color;
using platform::ColorRole;
using platform::FontWeight;
using views::View;

constexpr platform::CGSize alertSize{420, 170};
constexpr platform::CGSize buttonSize{120, 28};
constexpr double margin = 20;

CGRect frameOn(const CGRect& visible) {
    const double x = visible.midX() - alertSize.width / 2;
    const double y = visible.minY() + (visible.height() - alertSize.height) * 2 / 3;
    return {{std::floor(x), std::floor(y)}, alertSize};
}

View buttonView(const std::string& label, bool isDefault, const Shades& shades) {
    const double border = isDefault ? 0 : 0.15;
    return views::Text(label)
        .font({13, FontWeight::regular})
        .foregroundStyle(isDefault ? ColorRole::white : ColorRole::primary)
        .frame({.width = buttonSize.width, .height = buttonSize.height})
        .background(
            views::RoundedRectangle(6).fill(isDefault ? Color::of(ColorRole::accent) : shades(0xFFFFFF, 0x5A5A5E)))
        .overlay(views::RoundedRectangle(6).strokeBorder(Color::of(ColorRole::primary, border), 0.5))
        .id(label);
}

View alertView(const SystemAlert& alert, const Shades& shades) {
    View buttons = views::HStack({.spacing = 12}, views::Spacer(0));
    for (const std::string& label : alert.buttons)
        buttons.addChildren(buttonView(label, &label == &alert.buttons.back(), shades));
    View texts = views::VStack({.alignment = views::HorizontalAlignment::leading, .spacing = 6},
                               views::Text(alert.message).font({13, FontWeight::bold}),
                               views::Text(alert.informative).font({11, FontWeight::regular}));
    return views::VStack({.spacing = 0},
                         views::HStack({.alignment = views::VerticalAlignment::top, .spacing = 16},
                                       applicationIcon("Finder", 48), std::move(texts))
                             .frame({.maxWidth = views::infinity, .alignment = views::Alignment::leading}),
                         views::Spacer(0), std::move(buttons))
        .padding(margin)
        .frame({.width = alertSize.width, .height = alertSize.height})
        .background(Color::of(ColorRole::windowBackground))
        .overlay(windowEdgeView(shades));
}

}  // namespace

ShownAlert::ShownAlert(const SystemAlert& alert, const platform::NSScreen& screen, const Shades& shades,
                       platform::TextSystem& text)
    : place(frameOn(screen.visibleFrame)), view(alertView(alert, shades), alertSize, text) {}

std::optional<std::string> ShownAlert::buttonAt(const platform::CGPoint& point) const {
    const std::string* label = view.idAt(insideLaidOut(place, point));
    return label == nullptr ? std::nullopt : std::optional(*label);
}

std::optional<CGRect> ShownAlert::buttonLabelled(const std::string& label) const {
    const auto button = view.frameOf(label);
    return button ? std::optional(onScreen(place, *button)) : std::nullopt;
}

}  // namespace desk
