#include "views/nodes/ScrollNode.h"

#include <algorithm>

#include "views/Canvas.h"
#include "views/LayoutPass.h"

namespace views {

bool ScrollNode::update(Reconciler& reconciler, View& fresh, View* previous) {
    if (previous != nullptr) offset = previous->as<ScrollNode>().offset;
    return Node::update(reconciler, fresh, previous);
}

void ScrollNode::append(LayoutPass& pass, View& view, const Opening& opening) {
    Siblings inner{pass.open(*this, view, opening)};
    pass[inner.parent].clips = true;
    pass.append(view.children.front(), inner, opening.around);
}

CGSize ScrollNode::measure(LayoutPass& pass, std::int32_t index, const ProposedSize& proposal) const {
    const CGSize content = pass.measure(pass[index].firstChild, {proposal.width, unspecified});
    return {orElse(proposal.width, content.width), orElse(proposal.height, content.height)};
}

// A content that has become shorter is pulled down again.
void ScrollNode::place(LayoutPass& pass, std::int32_t index, const CGRect& frame) const {
    const std::int32_t content = pass[index].firstChild;
    const ProposedSize offered{frame.width(), unspecified};
    const CGSize size = pass.measure(content, offered);
    const double most = std::max(0.0, size.height - frame.height());
    *offset = std::clamp(*offset, 0.0, most);
    pass[index].natural = {frame.width(), most};
    const CGRect around = pass.visible;
    const CGRect seen = platform::CGRectIntersection(around, frame);
    pass.visible = platform::CGRectIsNull(seen) ? CGRect{frame.origin, {}} : seen;
    pass[content].offered = offered;
    pass.place(content, {{frame.midX() - size.width / 2, frame.minY() - *offset}, size});
    pass.visible = around;
}

void ScrollNode::draw(Canvas& canvas, const LayoutItem& item) const {
    canvas.drawChildrenClipped(item, 0, platform::CornerStyle::circular);
}

bool ScrollNode::scrolled(const LayoutItem& item, double deltaY) const {
    const double wanted = std::clamp(*offset - deltaY, 0.0, item.natural.height);
    if (wanted == *offset) return false;
    *offset = wanted;
    return true;
}

}  // namespace views
