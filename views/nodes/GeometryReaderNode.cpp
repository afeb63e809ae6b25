#include "views/nodes/GeometryReaderNode.h"

#include "views/LayoutPass.h"
#include "views/Reconciler.h"

namespace views {

// With the size it had, so that a difference inside is found before anything is laid out. A new reader waits for its
// size.
bool GeometryReaderNode::update(Reconciler& reconciler, View& fresh, View* previous) {
    if (previous == nullptr || previous->children.empty()) return false;
    size = previous->as<GeometryReaderNode>().size;
    reconciler.evaluate([&] { fresh.children.push_back(build(size)); });
    return reconciler.update(fresh.children.front(), &previous->children.front());
}

void GeometryReaderNode::append(LayoutPass& pass, View& view, const Opening& opening) {
    const std::int32_t index = pass.open(*this, view, opening);
    pass[index].kept = pass.keep(opening.around);
}

CGSize GeometryReaderNode::measure(LayoutPass& /*pass*/, std::int32_t /*index*/, const ProposedSize& proposal) const {
    return {orElse(proposal.width, withoutPreference), orElse(proposal.height, withoutPreference)};
}

void GeometryReaderNode::place(LayoutPass& pass, std::int32_t index, const CGRect& frame) const {
    View& view = *pass[index].view;
    auto& self = view.as<GeometryReaderNode>();
    if (view.children.empty() || size != frame.size) {
        self.size = frame.size;
        pass.redeclare(view, [this](std::vector<View>& children) { children.push_back(build(size)); });
    }
    Siblings inner{index};
    pass.append(view.children.front(), inner, pass.kept(pass[index].kept));
    pass.placeAligned(pass[index].firstChild, frame, Alignment::topLeading, {frame.size.width, frame.size.height});
}

}  // namespace views
