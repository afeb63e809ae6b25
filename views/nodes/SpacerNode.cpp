#include "views/nodes/SpacerNode.h"

#include <algorithm>
#include <limits>

#include "views/LayoutPass.h"

namespace views {

void SpacerNode::append(LayoutPass& pass, View& view, const Opening& opening) {
    LayoutItem& item = pass.openLeaf(*this, view, opening);
    if (item.priority == 0) item.priority = std::numeric_limits<double>::lowest();
}

CGSize SpacerNode::measure(LayoutPass& pass, std::int32_t index, const ProposedSize& proposal) const {
    return pass[index].isVertical ? CGSize{0, std::max(minLength, proposal.height)}
                                  : CGSize{std::max(minLength, proposal.width), 0};
}

}  // namespace views
