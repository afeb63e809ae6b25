#include "desk/system/AlertLayout.h"

#include <algorithm>

namespace desk {

namespace {

using platform::CGRect;
using platform::CGRectMake;

constexpr platform::CGSize alertSize{420, 170};
constexpr platform::CGSize buttonSize{120, 28};
constexpr double margin = 20;
constexpr double gap = 12;

// A little above the middle, as alerts are.
CGRect frameOn(const CGRect& visible) {
    const double x = visible.midX() - alertSize.width / 2;
    const double y = visible.minY() + (visible.height() - alertSize.height) * 2 / 3;
    return CGRectMake(std::floor(x), std::floor(y), alertSize.width, alertSize.height);
}

template <typename Matches>
const AlertButton* firstButton(const std::vector<AlertButton>& buttons, Matches matches) {
    const auto found = std::find_if(buttons.begin(), buttons.end(), matches);
    return found == buttons.end() ? nullptr : &*found;
}

}  // namespace

AlertLayout layoutOf(const SystemAlert& alert, const platform::NSScreen& screen) {
    AlertLayout layout;
    layout.frame = frameOn(screen.visibleFrame);
    const CGRect inner = CGRectInset(layout.frame, margin, margin);
    layout.text = CGRectMake(inner.minX(), inner.minY() + buttonSize.height + gap, inner.width(),
                             inner.height() - buttonSize.height - gap);
    double x = inner.maxX() - static_cast<double>(alert.buttons.size()) * (buttonSize.width + gap) + gap;
    for (const std::string& label : alert.buttons) {
        layout.buttons.push_back({label, CGRectMake(x, inner.minY(), buttonSize.width, buttonSize.height)});
        x += buttonSize.width + gap;
    }
    return layout;
}

const AlertButton* AlertLayout::buttonAt(const platform::CGPoint& point) const {
    return firstButton(buttons, [&](const AlertButton& button) { return CGRectContainsPoint(button.frame, point); });
}

const AlertButton* AlertLayout::buttonLabelled(const std::string& label) const {
    return firstButton(buttons, [&](const AlertButton& button) { return button.label == label; });
}

}  // namespace desk
