// The place of an NSView in the tree, once it has been made. It takes all it is offered.
// The NSView draws itself.
#pragma once

#include <memory>
#include <utility>

#include "views/View.h"

namespace views {

class RepresentableNode final : public LeafOf<RepresentableNode> {
public:
    explicit RepresentableNode(std::shared_ptr<Representable> theView) : view(std::move(theView)) {}

    const char* name() const override { return "wrapped"; }
    bool update(Reconciler& reconciler, View& fresh, View* previous) override;
    void takeBehaviour(Node& fresh) override;

    void append(LayoutPass& pass, View& itself, const Opening& opening) override;
    CGSize measure(LayoutPass& pass, std::int32_t index, const ProposedSize& proposal) const override;
    void draw(Canvas& canvas, const LayoutItem& item) const override;

    bool reacts() const override { return true; }
    void mouseDown(HostingView& host, const LayoutItem& item, const platform::NSEvent& event) const override;
    NSView* wrappedView() const override { return made->view.get(); }
    std::optional<AccessibilityRole> role() const override { return AccessibilityRole::textField; }
    void describe(AccessibilityElement& element) const override;

private:
    std::shared_ptr<Representable> view;
    std::shared_ptr<RepresentedView> made;
};

template <RepresentsNSView T>
View::View(T view) : View(RepresentableNode(std::make_shared<RepresentableOf<T>>(std::move(view)))) {}

}  // namespace views
