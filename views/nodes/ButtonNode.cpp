#include "views/nodes/ButtonNode.h"

#include <algorithm>

#include "views/Canvas.h"
#include "views/HostingView.h"
#include "views/LayoutPass.h"
#include "views/MenuItems.h"

namespace views {

namespace {

constexpr double insetAside = 12;
constexpr double insetAbove = 3;
constexpr double buttonRadius = 6;
constexpr double opacityWhenDisabled = 0.4;
constexpr double shadeWhenPressed = 0.15;

Color labelColor(const ControlState& control) {
    if (!control.isEnabled) return Color::of(ColorRole::primary, opacityWhenDisabled);
    return Color::of(control.isDefault() ? ColorRole::white : ColorRole::primary);
}

}  // namespace

void ButtonNode::append(LayoutPass& pass, View& view, const Opening& opening) {
    const ControlState control = opening.around.control;
    Siblings inner{pass.open(*this, view, opening)};
    Surroundings around = opening.around;
    around.control.style = ButtonStyle::plain;
    around.control.shortcut = KeyboardShortcut::none;
    if (control.isBordered()) around.color = labelColor(control);
    pass.append(view.children.front(), inner, around);
}

CGSize ButtonNode::measure(LayoutPass& pass, std::int32_t index, const ProposedSize& proposal) const {
    if (!pass[index].control.isBordered()) return Node::measure(pass, index, proposal);
    const CGSize label = pass.measure(
        pass[index].firstChild, {reduced(proposal.width, 2 * insetAside), reduced(proposal.height, 2 * insetAbove)});
    return {label.width + 2 * insetAside, label.height + 2 * insetAbove};
}

void ButtonNode::place(LayoutPass& pass, std::int32_t index, const CGRect& frame) const {
    if (!pass[index].control.isBordered()) return Node::place(pass, index, frame);
    const CGRect inside = platform::CGRectInset(frame, insetAside, insetAbove);
    pass.placeAligned(pass[index].firstChild, inside, Alignment::center, {inside.width(), inside.height()});
}

void ButtonNode::draw(Canvas& canvas, const LayoutItem& item) const {
    if (item.control.isBordered() && canvas.isAt(Canvas::Stratum::shapes)) {
        const CGRect rect = canvas.crisp(item.frame);
        const double radius = canvas.drawn(buttonRadius);
        const bool isFilled = item.control.isDefault() && item.control.isEnabled;
        const auto shape = [&](Color color) { canvas.fill(rect, radius, platform::CornerStyle::continuous, color); };
        shape(Color::of(isFilled ? ColorRole::accent : ColorRole::controlBackground));
        if (!isFilled)
            canvas.add(rect, platform::StrokeShape{{platform::CGRectInset(rect, 0.5, 0.5), radius - 0.5,
                                                    platform::CornerStyle::continuous},
                                                   Color::of(ColorRole::separator),
                                                   1});
        if (canvas.isPressed(item)) shape(Color::of(ColorRole::black, shadeWhenPressed));
    }
    canvas.drawChildren(item);
}

void ButtonNode::clicked(HostingView& host) const {
    host.run(action);
}

void ButtonNode::addMenuItems(const View& view, std::vector<platform::MenuItem>& items) const {
    items.push_back(labelledMenuItem(view));
    items.back().enabled = true;
    items.back().action = action;
}

}  // namespace views
