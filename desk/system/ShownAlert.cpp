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

constexpr double alertWidth = 420;
constexpr double leastLabelWidth = 80;
constexpr double margin = 20;
constexpr double iconSide = 48;

CGRect frameOn(const CGRect& visible, platform::CGSize size) {
    const double x = visible.midX() - size.width / 2;
    const double y = visible.minY() + (visible.height() - size.height) * 2 / 3;
    return {{std::floor(x), std::floor(y)}, size};
}

View buttonView(const std::string& label, bool isDefault) {
    return views::Button(nullptr, views::Text(label).frame({.minWidth = leastLabelWidth}))
        .buttonStyle(views::ButtonStyle::bordered)
        .keyboardShortcut(isDefault ? views::KeyboardShortcut::defaultAction : views::KeyboardShortcut::none)
        .layoutPriority(1)
        .id(label);
}

View buttonsView(const Alert& alert) {
    View buttons = views::HStack({.spacing = 12}, views::Spacer(0));
    for (const std::string& label : alert.buttons)
        if (label != alert.defaultButton) buttons.addChildren(buttonView(label, false));
    if (alert.defaultButton) buttons.addChildren(buttonView(*alert.defaultButton, true));
    return buttons;
}

View textsView(const Alert& alert) {
    View texts = views::VStack({.alignment = views::HorizontalAlignment::leading, .spacing = 6},
                               views::Text(alert.message).font({13, FontWeight::bold}));
    if (!alert.informative.empty()) texts.addChildren(views::Text(alert.informative).font({11, FontWeight::regular}));
    return std::move(texts).frame({.maxWidth = views::infinity, .alignment = views::Alignment::leading});
}

View iconView(const Alert& alert) {
    if (alert.picture.pixels() == nullptr) return applicationIcon(alert.icon, iconSide);
    return views::Image(alert.picture)
        .resizable()
        .interpolation(platform::ImageInterpolation::high)
        .frame({.width = iconSide, .height = iconSide});
}

View alertView(const Alert& alert, const Shades& shades) {
    return views::VStack({.spacing = 16},
                         views::HStack({.alignment = views::VerticalAlignment::top, .spacing = 16}, iconView(alert),
                                       textsView(alert)),
                         buttonsView(alert))
        .padding(margin)
        .frame({.width = alertWidth})
        .background(Color::of(ColorRole::windowBackground))
        .overlay(windowEdgeView(shades));
}

}  // namespace

ShownAlert::ShownAlert(const Alert& alert, const platform::NSScreen& screen, const Shades& shades,
                       platform::TextSystem& text)
    : place(frameOn(screen.visibleFrame, views::idealSize(alertView(alert, shades), text))),
      view(alertView(alert, shades), place.size, text) {}

std::optional<std::string> ShownAlert::buttonAt(const platform::CGPoint& point) const {
    const std::string* label = view.idAt(insideLaidOut(place, point));
    return label == nullptr ? std::nullopt : std::optional(*label);
}

std::optional<CGRect> ShownAlert::buttonLabelled(const std::string& label) const {
    const auto button = view.frameOf(label);
    return button ? std::optional(onScreen(place, *button)) : std::nullopt;
}

}  // namespace desk
