#include "views/nodes/DividerNode.h"

#include "platform/Menus.h"
#include "views/Canvas.h"
#include "views/LayoutPass.h"

namespace views {

void DividerNode::append(LayoutPass& pass, View& view, const Opening& opening) {
    pass.openLeaf(*this, view, opening);
}

CGSize DividerNode::measure(LayoutPass& pass, std::int32_t index, const ProposedSize& proposal) const {
    return pass[index].isVertical ? CGSize{orElse(proposal.width, withoutPreference), 1}
                                  : CGSize{1, orElse(proposal.height, withoutPreference)};
}

void DividerNode::draw(Canvas& canvas, const LayoutItem& item) const {
    if (canvas.isAt(Canvas::Stratum::shapes))
        canvas.fill(canvas.crisp(item.frame), 0, platform::CornerStyle::circular, Color::of(ColorRole::separator));
}

void DividerNode::addMenuItems(const View& /*view*/, std::vector<platform::MenuItem>& items) const {
    items.emplace_back().isSeparator = true;
}

}  // namespace views
