// A view with another one behind or in front of it, which takes its size: background() and overlay(). The first child is the view, the second its decoration.
#pragma once

#include "views/View.h"

namespace views {

class DecorationNode final : public NodeOf<DecorationNode> {
public:
    enum class Place : std::uint8_t { behind, inFront };
    DecorationNode(Place thePlace, Alignment theAlignment) : where(thePlace), alignment(theAlignment) {}

    const char* name() const override { return where == Place::behind ? "background" : "overlay"; }
    bool looksLike(const Node& other) const override;
    void append(LayoutPass& pass, View& view, const Opening& opening) override;
    CGSize measure(LayoutPass& pass, std::int32_t index, const ProposedSize& proposal) const override {
        return remembered(pass, index, proposal);
    }
    void place(LayoutPass& pass, std::int32_t index, const CGRect& frame) const override;

protected:
    CGSize measureAnew(LayoutPass& pass, std::int32_t index, const ProposedSize& proposal) const override;

private:
    std::int32_t contentOf(LayoutPass& pass, std::int32_t index) const;

    Place where;
    Alignment alignment;
};

}  // namespace views
