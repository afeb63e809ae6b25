#include "views/nodes/LayersNode.h"

#include <algorithm>

#include "views/LayoutPass.h"

namespace views {

void LayersNode::append(LayoutPass& pass, View& view, const Opening& opening) {
    Siblings inner{pass.open(*this, view, opening), LayoutItem::none, true};
    for (View& child : view.children) pass.append(child, inner, opening.around);
}

CGSize LayersNode::measureAnew(LayoutPass& pass, std::int32_t index, const ProposedSize& proposal) const {
    CGSize all;
    for (std::int32_t child = pass[index].firstChild; child >= 0; child = pass[child].nextSibling) {
        const CGSize size = pass.measure(child, proposal);
        all = {std::max(all.width, size.width), std::max(all.height, size.height)};
    }
    return all;
}

void LayersNode::place(LayoutPass& pass, std::int32_t index, const CGRect& frame) const {
    for (std::int32_t child = pass[index].firstChild; child >= 0; child = pass[child].nextSibling)
        pass.placeAligned(child, frame, alignment, ProposedSize(pass[index].offered));
}

}  // namespace views
