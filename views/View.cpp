#include "views/View.h"

#include "views/Shapes.h"

namespace views {

namespace {

ShapeContent plain(Color color) {
    ShapeContent content;
    content.style = ShapeStyle::filled;
    content.color = color;
    return content;
}

}  // namespace

bool operator==(const ModifierList& a, const ModifierList& b) {
    if (a.size() != b.size()) return false;
    for (std::size_t index = 0; index < a.size(); ++index)
        if (a[index] != b[index]) return false;
    return true;
}

View::View(Color color) : View(ViewKind::shape, plain(color)) {}

View&& View::with(const Modifier& modifier) {
    if (modifiers.isFull()) wrap(ViewKind::group, {});
    modifiers.append(modifier);
    return std::move(*this);
}

View&& View::wrap(ViewKind outerKind, ViewContent outerContent) {
    View outer(outerKind, std::move(outerContent));
    outer.key = std::exchange(key, {});
    outer.children.push_back(std::move(*this));
    *this = std::move(outer);
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
    wrap(ViewKind::background, StackContent{});
    children.push_back(std::move(behind));
    return std::move(*this);
}

View&& View::overlay(View inFront, Alignment alignment) && {
    wrap(ViewKind::overlay, StackContent{alignment, 0});
    children.push_back(std::move(inFront));
    return std::move(*this);
}

View&& View::clipShape(const Shape& shape) && {
    const ShapeContent& form = shape.form();
    const double radius = form.form == ShapeForm::capsule ? infinity : form.radius;
    return with(Clip{radius, form.corners});
}

View&& View::onTapGesture(std::function<void()> action) && {
    return wrap(ViewKind::tapGesture, ActionContent{std::move(action)});
}

View&& View::contextMenu(std::function<View()> menu) && {
    return wrap(ViewKind::contextMenu, MenuContent{std::move(menu)});
}

View&& View::popover(Binding<bool> isPresented, Edge arrowEdge, std::function<View()> popoverContent) && {
    auto popover = std::make_unique<Popover>();
    popover->isPresented = std::move(isPresented);
    popover->arrowEdge = arrowEdge;
    popover->content = std::move(popoverContent);
    return wrap(ViewKind::popover, PopoverContent{std::move(popover)});
}

View&& View::help(std::string text) && {
    return wrap(ViewKind::help, TextContent{std::move(text)});
}

View&& View::task(std::function<Task()> start) && {
    return wrap(ViewKind::task, TaskContent{std::move(start), nullptr});
}

View&& View::accessibilityLabel(std::string label) && {
    return wrap(ViewKind::accessibilityLabel, TextContent{std::move(label)});
}

}  // namespace views
