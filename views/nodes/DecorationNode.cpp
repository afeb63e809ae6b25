#include "views/nodes/DecorationNode.h"

#include "views/LayoutPass.h"

namespace views {

bool DecorationNode::looksLike(const Node& other) const {
    return where == same(other).where && alignment == same(other).alignment;
}

// In paint order.
void DecorationNode::append(LayoutPass& pass, View& view, const Opening& opening) {
    Siblings inner{pass.open(*this, view, opening)};
    const std::size_t first = where == Place::behind ? 1 : 0;
    pass.append(view.children[first], inner, opening.around);
    pass.append(view.children[1 - first], inner, opening.around);
}

std::int32_t DecorationNode::contentOf(LayoutPass& pass, std::int32_t index) const {
    const std::int32_t first = pass[index].firstChild;
    return where == Place::behind ? pass[first].nextSibling : first;
}

CGSize DecorationNode::measureAnew(LayoutPass& pass, std::int32_t index, const ProposedSize& proposal) const {
    return pass.measure(contentOf(pass, index), proposal);
}

void DecorationNode::place(LayoutPass& pass, std::int32_t index, const CGRect& frame) const {
    const std::int32_t first = pass[index].firstChild;
    const std::int32_t content = contentOf(pass, index);
    const std::int32_t decoration = content == first ? pass[first].nextSibling : first;
    pass.placeAligned(content, frame, Alignment::center, ProposedSize(pass[index].offered));
    pass.placeAligned(decoration, frame, alignment, {frame.size.width, frame.size.height});
}

}  // namespace views
