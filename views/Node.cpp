#include "views/Node.h"

#include "views/HostingView.h"
#include "views/LayoutPass.h"
#include "views/MenuItems.h"
#include "views/Reconciler.h"

namespace views {

bool Node::update(Reconciler& reconciler, View& fresh, View* previous) {
    return reconciler.updateChildren(fresh, previous);
}

void Node::append(LayoutPass& pass, View& view, const Opening& opening) {
    Siblings inner{pass.open(*this, view, opening)};
    for (View& child : view.children) pass.append(child, inner, opening.around);
}

CGSize Node::measure(LayoutPass& pass, std::int32_t index, const ProposedSize& proposal) const {
    return pass.measure(pass[index].firstChild, proposal);
}

void Node::place(LayoutPass& pass, std::int32_t index, const CGRect& frame) const {
    const std::int32_t content = pass[index].firstChild;
    pass[content].offered = pass[index].offered;
    pass.place(content, frame);
}

void Node::mouseDown(HostingView& host, const LayoutItem& item, const platform::NSEvent& /*event*/) const {
    host.beginPress(item);
}

void Node::addMenuItems(const View& view, std::vector<platform::MenuItem>& items) const {
    for (const View& child : view.children) addMenuItemsOf(child, items);
}

}  // namespace views
