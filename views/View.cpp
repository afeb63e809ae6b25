#include "views/View.h"

#include <algorithm>

#include "views/nodes/AccessibilityHiddenNode.h"
#include "views/nodes/AccessibilityLabelNode.h"
#include "views/nodes/ContextMenuNode.h"
#include "views/nodes/DecorationNode.h"
#include "views/nodes/EmptyNode.h"
#include "views/nodes/GroupNode.h"
#include "views/nodes/HelpNode.h"
#include "views/nodes/PopoverNode.h"
#include "views/nodes/ShadowNode.h"
#include "views/nodes/ShapeNode.h"
#include "views/nodes/TapGestureNode.h"
#include "views/nodes/TaskNode.h"

namespace views {

bool operator==(const ModifierList& a, const ModifierList& b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin());
}

View::View() : View(EmptyNode()) {}

View::View(Color color) : View(ShapeNode(color)) {}

View&& View::with(const Modifier& modifier) {
    if (modifiers.isFull()) wrap(GroupNode());
    modifiers.append(modifier);
    return std::move(*this);
}

View&& View::padding(Edge edges, double length) && {
    const auto of = [&](Edge edge) { return contains(edges, edge) ? length : 0.0; };
    return with(EdgeInsets{of(Edge::top), of(Edge::leading), of(Edge::bottom), of(Edge::trailing)});
}

View&& View::frame(const FrameArguments& arguments) && {
    const auto given = [](double a, double b) { return a != unspecified || b != unspecified; };
    if (given(arguments.width, arguments.height))
        with(FixedFrame{arguments.width, arguments.height, arguments.alignment});
    if (given(arguments.minWidth, arguments.maxWidth) || given(arguments.minHeight, arguments.maxHeight))
        with(FlexibleFrame{arguments.minWidth, arguments.maxWidth, arguments.minHeight, arguments.maxHeight,
                           arguments.alignment});
    return std::move(*this);
}

View&& View::background(View behind) && {
    wrap(DecorationNode(DecorationNode::Place::behind, Alignment::center));
    children.push_back(std::move(behind));
    return std::move(*this);
}

View&& View::overlay(View inFront, Alignment alignment) && {
    wrap(DecorationNode(DecorationNode::Place::inFront, alignment));
    children.push_back(std::move(inFront));
    return std::move(*this);
}

View&& View::clipShape(const Shape& shape) && {
    return with(Clip{shape.cornerRadius(), shape.cornerStyle()});
}

View&& View::shadow(const platform::Shadow& thrown) && {
    return wrap(ShadowNode(thrown));
}

View&& View::onTapGesture(std::function<void()> action) && {
    return wrap(TapGestureNode(std::move(action)));
}

View&& View::contextMenu(std::function<View()> menu) && {
    return wrap(ContextMenuNode(std::move(menu)));
}

View&& View::popover(Binding<bool> isPresented, Edge arrowEdge, std::function<View()> popoverContent) && {
    return wrap(PopoverNode(Popover{std::move(isPresented), arrowEdge, std::move(popoverContent)}));
}

View&& View::help(std::string text) && {
    return wrap(HelpNode(std::move(text)));
}

View&& View::task(std::function<Task()> start) && {
    return wrap(TaskNode(std::move(start)));
}

View&& View::accessibilityHidden() && {
    return wrap(AccessibilityHiddenNode());
}

View&& View::accessibilityLabel(std::string label) && {
    return wrap(AccessibilityLabelNode(std::move(label)));
}

}  // namespace views
