// Views on top of each other, the first at the back: ZStack. It is as large as the largest of them.
#pragma once

#include "views/View.h"

namespace views {

class LayersNode final : public NodeOf<LayersNode> {
public:
    explicit LayersNode(Alignment theAlignment) : alignment(theAlignment) {}

    const char* name() const override { return "layers"; }
    bool looksLike(const Node& other) const override { return alignment == same(other).alignment; }
    void append(LayoutPass& pass, View& view, const Opening& opening) override;
    CGSize measure(LayoutPass& pass, std::int32_t index, const ProposedSize& proposal) const override {
        return remembered(pass, index, proposal);
    }
    void place(LayoutPass& pass, std::int32_t index, const CGRect& frame) const override;

protected:
    CGSize measureAnew(LayoutPass& pass, std::int32_t index, const ProposedSize& proposal) const override;

private:
    Alignment alignment;
};

struct ZStackArguments {
    Alignment alignment = Alignment::center;
};

template <typename... Children>
View ZStack(ZStackArguments arguments, Children&&... children) {
    View view{LayersNode(arguments.alignment)};
    view.addChildren(std::forward<Children>(children)...);
    return view;
}

}  // namespace views
