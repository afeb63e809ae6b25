// A part of the declarative tree: what a window shows, said as a value by the body() of some view. Views are made by
// the builders (in nodes/), take modifiers by chaining, and are moved into the view that contains them. A view says
// nothing of where it is: see Layout.h.
//
//     HStack({.spacing = 0}, Text("Orvane").font({.size = 13}).padding(Edge::leading, 4),
//            Rectangle().fill(color).frame({.width = 1}))
//
// A type of one's own is a view when it has `View body() const`; it can be used wherever a View is expected. The tree
// keeps the value that declared it, so closures in body() may capture `this`.
#pragma once

#include <concepts>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "views/Binding.h"
#include "views/Composite.h"
#include "views/ModifierList.h"
#include "views/NSViewRepresentable.h"
#include "views/NodeBox.h"
#include "views/Task.h"

namespace views {

class Shape;

class View {
public:
    View();
    template <IsNode T>
    explicit View(T theNode) : node(std::move(theNode)) {}
    template <IsNode T>
    View(T theNode, View child) : node(std::move(theNode)) {
        children.push_back(std::move(child));
    }
    View(Color color);  // NOLINT(google-explicit-constructor)
    template <DeclaresBody T>
    View(T view);  // NOLINT(google-explicit-constructor); in nodes/CompositeNode.h
    template <RepresentsNSView T>
    View(T view);  // NOLINT(google-explicit-constructor); in nodes/RepresentableNode.h
    View(View&&) noexcept = default;
    View& operator=(View&&) noexcept = default;
    View(const View&) = delete;
    View& operator=(const View&) = delete;
    ~View() = default;

    // Layout
    View&& padding(double length) && { return std::move(*this).padding(Edge::all, length); }
    View&& padding(Edge edges, double length) &&;
    View&& padding(EdgeInsets insets) && { return with(insets); }
    View&& frame(const FrameArguments& arguments) &&;
    View&& fixedSize(bool horizontal = true, bool vertical = true) && { return with(FixedSize{horizontal, vertical}); }
    View&& layoutPriority(double value) && { return with(LayoutPriority{value}); }
    View&& background(View behind) &&;
    View&& overlay(View inFront, Alignment alignment = Alignment::center) &&;

    // Look; font and colour go down to everything inside that sets none of its own
    View&& font(Font value) && { return with(value); }
    View&& foregroundStyle(Color value) && { return with(value); }
    View&& foregroundStyle(ColorRole role) && { return with(Color::of(role)); }
    // Without a limit a text takes as many lines as its width asks for, whatever the height it is offered.
    View&& lineLimit(std::uint32_t lines) && { return with(LineLimit{lines}); }
    View&& truncationMode(TextTruncation value) && { return with(value); }
    View&& multilineTextAlignment(HorizontalAlignment value) && { return with(value); }
    View&& opacity(double value) && { return with(Opacity{value}); }
    View&& clipped() && { return with(Clip{}); }
    View&& clipShape(const Shape& shape) &&;
    View&& scaleEffect(double factor) && { return with(ScaleEffect{factor}); }
    // Of the filled shapes inside.
    View&& shadow(const platform::Shadow& thrown) &&;

    // Behaviour. What is disabled looks so, takes clicks and does nothing.
    View&& disabled(bool value) && { return with(Disabled{value}); }
    View&& buttonStyle(ButtonStyle value) && { return with(value); }
    // The default button of a window reacts to Return.
    View&& keyboardShortcut(KeyboardShortcut value) && { return with(value); }
    // The whole frame of a view that reacts takes clicks, so a rectangular content shape adds nothing to it.
    View&& contentShape() && { return std::move(*this); }
    View&& onTapGesture(std::function<void()> action) &&;
    // The content is evaluated when the menu opens.
    View&& contextMenu(std::function<View()> menu) &&;
    View&& popover(Binding<bool> isPresented, Edge arrowEdge, std::function<View()> popoverContent) &&;
    View&& help(std::string text) &&;
    // Started when the view's window is ordered in, cancelled when it is ordered out or the view's place goes. On which space the window is makes no difference.
    View&& task(std::function<Task()> start) &&;
    // Runs when the value is another one than at the evaluation before.
    template <typename Value>
    View&& onChange(Value of, std::function<void()> action) &&;  // in nodes/ChangeNode.h

    // Identity among repeated siblings, and what scripts, tests and assistive tools read.
    View&& id(std::string value) && {
        key = std::move(value);
        return std::move(*this);
    }
    View&& accessibilityLabel(std::string label) &&;
    View&& accessibilityHidden() &&;
    // A literal: the pointer is kept.
    View&& accessibilityIdentifier(const char* name) && { return with(AccessibilityIdentifier{name}); }

    template <typename... Children>
    void addChildren(Children&&... theChildren) {
        children.reserve(children.size() + sizeof...(Children));
        (children.emplace_back(std::forward<Children>(theChildren)), ...);
    }

    template <typename T>
    T& as() {
        return static_cast<T&>(*node);
    }
    template <typename T>
    const T& as() const {
        return static_cast<const T&>(*node);
    }

    NodeBox node;
    ModifierList modifiers;
    std::string key;
    std::vector<View> children;

private:
    View&& with(const Modifier& modifier);
    // Makes this view the only child so far of a new one.
    template <IsNode T>
    View&& wrap(T outerNode) {
        View outer(std::move(outerNode));
        outer.key = std::exchange(key, {});
        outer.children.push_back(std::move(*this));
        *this = std::move(outer);
        return std::move(*this);
    }
};

}  // namespace views
