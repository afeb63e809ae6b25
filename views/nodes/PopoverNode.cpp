#include "views/nodes/PopoverNode.h"

#include "views/LayoutPass.h"

namespace views {

void PopoverNode::append(LayoutPass& pass, View& view, const Opening& opening) {
    Siblings inner{pass.open(*this, view, opening)};
    pass.layout.popovers.push_back(inner.parent);
    pass.append(view.children.front(), inner, opening.around);
}

}  // namespace views
