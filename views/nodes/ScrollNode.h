// Shows a part of a content that may be higher than itself, and moves it with the wheel: ScrollView. What is out of sight is neither drawn nor pressed. It keeps where it is scrolled to
// as long as its place is there.
#pragma once

#include <memory>
#include <utility>

#include "views/View.h"

namespace views {

class ScrollNode final : public NodeOf<ScrollNode> {
public:
    const char* name() const override { return "scroll"; }
    bool update(Reconciler& reconciler, View& fresh, View* previous) override;
    void takeBehaviour(Node& fresh) override { offset = std::move(same(fresh).offset); }

    void append(LayoutPass& pass, View& view, const Opening& opening) override;
    CGSize measure(LayoutPass& pass, std::int32_t index, const ProposedSize& proposal) const override;
    void place(LayoutPass& pass, std::int32_t index, const CGRect& frame) const override;
    void draw(Canvas& canvas, const LayoutItem& item) const override;
    bool scrolls() const override { return true; }
    bool scrolled(const LayoutItem& item, double deltaY) const override;

private:
    std::shared_ptr<double> offset = std::make_shared<double>(0);  // of the content above the upper edge
};

inline View ScrollView(View content) {
    return View(ScrollNode(), std::move(content));
}

}  // namespace views
