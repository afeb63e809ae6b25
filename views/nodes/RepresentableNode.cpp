#include "views/nodes/RepresentableNode.h"

#include "views/AccessibilityElement.h"
#include "views/Canvas.h"
#include "views/LayoutPass.h"

namespace views {

bool RepresentableNode::update(Reconciler& /*reconciler*/, View& /*fresh*/, View* previous) {
    auto* before = previous == nullptr ? nullptr : &previous->as<RepresentableNode>();
    const bool isKept = before != nullptr && before->made && before->view->type() == view->type();
    made = isKept ? std::move(before->made) : std::make_shared<RepresentedView>(view->make());
    view->update(*made);
    return isKept;
}

void RepresentableNode::takeBehaviour(Node& fresh) {
    view = std::move(same(fresh).view);
    made = std::move(same(fresh).made);
}

void RepresentableNode::append(LayoutPass& pass, View& itself, const Opening& opening) {
    pass.layout.wrappedViews.push_back(pass.open(*this, itself, opening));
}

CGSize RepresentableNode::measure(LayoutPass& /*pass*/, std::int32_t /*index*/, const ProposedSize& proposal) const {
    return {orElse(proposal.width, withoutPreference), orElse(proposal.height, withoutPreference)};
}

void RepresentableNode::draw(Canvas& canvas, const LayoutItem& /*item*/) const {
    if (canvas.isAt(Canvas::Stratum::shapes))
        made->view->drawShapes(canvas.into);
    else
        made->view->drawText(canvas.into);
}

void RepresentableNode::mouseDown(HostingView& /*host*/, const LayoutItem& /*item*/,
                                  const platform::NSEvent& event) const {
    const auto kept = made->view;
    kept->mouseDown(event);
}

void RepresentableNode::describe(AccessibilityElement& element) const {
    element.value = made->view->accessibilityValue();
}

}  // namespace views
